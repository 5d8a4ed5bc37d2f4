#include "ShortcutsPage.h"

#include "KeyEdit.h"
#include "MyPageLayout.h"
#include "SchemeIcons.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

namespace nsModAction {

namespace {

enum eColumn_t { columnMenu, columnCommand, columnKeys, columnCount };

const int gap = 8;
const int leastRows = 8;

QString nativeText(const QList<QKeySequence>& keys)
{
    return QKeySequence::listToString(keys, QKeySequence::NativeText);
}

QString nameOf(const Shortcuts::sCommand_t& command)
{
    return command.menu + QStringLiteral(" > ") + command.text;
}

} // namespace

ShortcutsPage::ShortcutsPage(QWidget* parent)
    : QWidget(parent)
    , m_search(new QLineEdit(this))
    , m_list(new QTreeWidget(this))
    , m_edit(new KeyEdit(this))
    , m_reset(new QPushButton(tr("Reset"), this))
    , m_resetAll(new QPushButton(tr("Reset all"), this))
    , m_take(new QPushButton(tr("Take it from there"), this))
{
    setObjectName(QStringLiteral("configPage"));
    addList();
    addFields();
    connect(m_search, &QLineEdit::textChanged, this, &ShortcutsPage::filter);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &ShortcutsPage::showCommand);
    connect(m_edit, &KeyEdit::keysPressed, this, &ShortcutsPage::setKeys);
    connect(m_reset, &QPushButton::clicked, this, &ShortcutsPage::resetOne);
    connect(m_resetAll, &QPushButton::clicked, this, [this] { setDefaultConfig(); });
    connect(m_take, &QPushButton::clicked, this, &ShortcutsPage::takeKeys);
    showCommand();
}

void ShortcutsPage::addList()
{
    m_search->setObjectName(QStringLiteral("shortcutSearch"));
    m_search->setClearButtonEnabled(true);
    // Neither the words that are looked for nor the keys of the selected command are a change of the page.
    m_search->setProperty("isSetting", false);
    m_edit->setProperty("isSetting", false);
    m_search->setPlaceholderText(tr("Words of the command, or keys"));
    m_list->setObjectName(QStringLiteral("shortcutList"));
    m_list->setAccessibleName(tr("Commands and their keys"));
    m_list->setRootIsDecorated(false);
    m_list->setAllColumnsShowFocus(true);
    m_list->setUniformRowHeights(true);
    m_list->setColumnCount(columnCount);
    m_list->setHeaderLabels({tr("Menu"), tr("Command"), tr("Keys")});
    m_list->header()->setSectionResizeMode(columnMenu, QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(columnCommand, QHeaderView::ResizeToContents);
    m_list->setMinimumHeight(fontMetrics().height() * 3 / 2 * leastRows);
}

void ShortcutsPage::addFields()
{
    m_edit->setObjectName(QStringLiteral("shortcutKeys"));
    m_reset->setObjectName(QStringLiteral("shortcutReset"));
    m_reset->setToolTip(tr("Gives the command the keys that it comes with"));
    m_resetAll->setObjectName(QStringLiteral("shortcutResetAll"));
    m_resetAll->setToolTip(tr("Gives all commands the keys that they come with"));
    m_take->setObjectName(QStringLiteral("shortcutTake"));
    m_take->setToolTip(tr("Removes the keys from the other command"));

    auto* layout = new MyPageLayout(this, tr("Shortcuts of all commands"));
    layout->addSection(tr("Commands"));
    layout->addField(tr("Search:"), m_search, tr("Shows the commands with these words in their name or keys"));
    layout->addFill(m_list);
    auto* row = new QHBoxLayout;
    row->setSpacing(gap);
    row->addWidget(m_take);
    row->addWidget(m_reset);
    row->addWidget(m_resetAll);
    row->addStretch(1);
    layout->addField(tr("Keys:"), m_edit,
                     tr("Press the new keys of the selected command here; Backspace removes them"));
    layout->addRow(row);
    m_conflict = layout->addHint(QString());
    m_conflict->setObjectName(QStringLiteral("shortcutConflict"));
    m_conflict->setTextFormat(Qt::PlainText);
}

void ShortcutsPage::setCommands(const QVector<Shortcuts::sCommand_t>& commands)
{
    m_commands = commands;
    const QSignalBlocker blocker(m_list);
    m_list->clear();
    for (int command = 0; command < m_commands.size(); ++command) {
        auto* item = new QTreeWidgetItem({m_commands.at(command).menu, m_commands.at(command).text});
        m_list->addTopLevelItem(item);
        if (m_commands.at(command).isFixed) {
            for (int column = 0; column < columnCount; ++column)
                item->setForeground(column, palette().color(QPalette::Disabled, QPalette::Text));
        }
        showRow(command);
    }
    if (!m_commands.isEmpty())
        m_list->setCurrentItem(m_list->topLevelItem(0));
    filter(m_search->text());
    showCommand();
}

QHash<QString, QList<QKeySequence>> ShortcutsPage::keys() const
{
    QHash<QString, QList<QKeySequence>> result;
    for (const Shortcuts::sCommand_t& command : m_commands) {
        if (!command.isFixed)
            result.insert(command.id, command.keys);
    }
    return result;
}

QIcon ShortcutsPage::pageIcon()
{
    return SchemeIcons::of(QStringLiteral(":/ModAction/img/configPage/configPageShortcuts.png"));
}

QString ShortcutsPage::pageTitle()
{
    return tr("All shortcuts");
}

QString ShortcutsPage::pageHelpRef()
{
    return QStringLiteral("pageId://configPageShortcuts");
}

void ShortcutsPage::setDefaultConfig()
{
    for (int command = 0; command < m_commands.size(); ++command)
        change(command, m_commands.at(command).standard);
    showCommand();
}

bool ShortcutsPage::checkConfig()
{
    for (int command = 0; command < m_commands.size(); ++command) {
        const bool isTaken = conflictOf(command) != noCommand || !menuWith(m_commands.at(command).keys).isEmpty();
        if (m_commands.at(command).keys == m_commands.at(command).standard || !isTaken)
            continue;
        m_search->clear();
        m_list->setCurrentItem(m_list->topLevelItem(command));
        return false;
    }
    return true;
}

void ShortcutsPage::filter(const QString& text)
{
    const QString wanted = text.trimmed();
    for (int command = 0; command < m_commands.size(); ++command) {
        const QString row = nameOf(m_commands.at(command)) + QLatin1Char(' ') + nativeText(m_commands.at(command).keys);
        m_list->topLevelItem(command)->setHidden(!row.contains(wanted, Qt::CaseInsensitive));
    }
}

int ShortcutsPage::current() const
{
    return m_list->indexOfTopLevelItem(m_list->currentItem());
}

/// Another command that has one of its keys, noCommand for none.
int ShortcutsPage::conflictOf(int command) const
{
    if (m_commands.at(command).isFixed)
        return noCommand;
    for (int other = 0; other < m_commands.size(); ++other) {
        if (other == command)
            continue;
        for (const QKeySequence& key : m_commands.at(command).keys) {
            // A key that the command comes with means the same in a list, as Copy does.
            const bool isOwn = m_commands.at(other).isFixed && m_commands.at(command).standard.contains(key);
            if (!isOwn && m_commands.at(other).keys.contains(key))
                return other;
        }
    }
    return noCommand;
}

/// The menu that one of the keys opens, as Alt with its first letter does.
QString ShortcutsPage::menuWith(const QList<QKeySequence>& keys) const
{
    for (const Shortcuts::sCommand_t& command : m_commands) {
        if (command.isFixed)
            break;
        const QString key = QStringLiteral("Alt+") + command.menu.left(1);
        if (keys.contains(QKeySequence::fromString(key, QKeySequence::PortableText)))
            return command.menu;
    }
    return {};
}

void ShortcutsPage::change(int command, const QList<QKeySequence>& keys)
{
    m_commands[command].keys = keys;
    showRow(command);
}

void ShortcutsPage::showRow(int command)
{
    QTreeWidgetItem* item = m_list->topLevelItem(command);
    item->setText(columnKeys, nativeText(m_commands.at(command).keys));
    QFont changed = font();
    changed.setBold(m_commands.at(command).keys != m_commands.at(command).standard);
    item->setFont(columnKeys, changed);
}

void ShortcutsPage::showCommand()
{
    const int command = current();
    const bool isOne = command != noCommand;
    m_edit->setEnabled(isOne && !m_commands.at(command).isFixed);
    m_reset->setEnabled(isOne && m_commands.at(command).keys != m_commands.at(command).standard);
    m_edit->setKeys(isOne ? m_commands.at(command).keys : QList<QKeySequence>());
    showConflict();
}

void ShortcutsPage::showConflict()
{
    const int command = current();
    const int other = command == noCommand ? noCommand : conflictOf(command);
    const QString menu = command == noCommand ? QString() : menuWith(m_commands.at(command).keys);
    const bool isOtherFixed = other != noCommand && m_commands.at(other).isFixed;
    QString text;
    if (command != noCommand && m_commands.at(command).isFixed)
        text = tr("These keys hold in this place alone and can not be changed.");
    else if (!menu.isEmpty())
        text = tr("These keys open the menu \"%1\".").arg(menu);
    else if (isOtherFixed)
        text = tr("These keys belong to \"%1\", where they can not be changed.").arg(nameOf(m_commands.at(other)));
    else if (other != noCommand)
        text = tr("These keys belong to \"%1\", too.").arg(nameOf(m_commands.at(other)));
    m_conflict->setText(text);
    m_take->setEnabled(menu.isEmpty() && other != noCommand && !isOtherFixed);
}

void ShortcutsPage::setKeys(const QKeySequence& keys)
{
    const int command = current();
    if (command == noCommand || m_commands.at(command).isFixed)
        return;
    change(command, keys.isEmpty() ? QList<QKeySequence>() : QList<QKeySequence>{keys});
    showCommand();
}

void ShortcutsPage::resetOne()
{
    const int command = current();
    if (command == noCommand)
        return;
    change(command, m_commands.at(command).standard);
    showCommand();
}

void ShortcutsPage::takeKeys()
{
    const int command = current();
    if (command == noCommand)
        return;
    for (int other = conflictOf(command); other != noCommand && !m_commands.at(other).isFixed;
         other = conflictOf(command)) {
        QList<QKeySequence> left = m_commands.at(other).keys;
        for (const QKeySequence& key : m_commands.at(command).keys)
            left.removeAll(key);
        change(other, left);
    }
    showCommand();
}

} // namespace nsModAction
