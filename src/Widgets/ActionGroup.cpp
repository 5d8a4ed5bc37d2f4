#include "ActionGroup.h"

#include "SchemeIcons.h"

#include <QAction>
#include <QCoreApplication>
#include <QIcon>

ActionGroup::ActionGroup(QObject* parent, const char* iconFolder)
    : QActionGroup(parent)
    , m_iconFolder(iconFolder)
{
    setExclusive(false);
    connect(this, &QActionGroup::triggered, this, &ActionGroup::handleAction);
}

void ActionGroup::addEntries(std::initializer_list<sEntry_t> entries)
{
    // In a constructor, this is the class that it belongs to.
    m_context = metaObject()->className();
    for (const sEntry_t& row : entries) {
        if (row.text == nullptr)
            addAction(QString())->setSeparator(true);
        else
            addEntry(row);
    }
}

void ActionGroup::addEntry(const sEntry_t& row)
{
    QAction* action = addAction(QCoreApplication::translate(m_context, row.text));
    action->setData(row.action);
    m_rows.insert(row.action, row);
    resetLook(row.action);
    QList<QKeySequence> keys = QKeySequence::keyBindings(row.standardKey);
    if (row.key != nullptr && !keys.contains(QKeySequence(QLatin1String(row.key))))
        keys.append(QKeySequence(QLatin1String(row.key)));
    action->setShortcuts(keys);
}

void ActionGroup::setLook(int action, const char* icon, const QString& toolTip)
{
    QAction* one = entry(action);
    if (one == nullptr)
        return;
    if (icon != nullptr)
        one->setIcon(SchemeIcons::of(QLatin1String(m_iconFolder) + QLatin1String(icon) + QStringLiteral(".png")));
    one->setToolTip(toolTip);
    one->setStatusTip(toolTip);
}

void ActionGroup::resetLook(int action)
{
    const auto row = m_rows.constFind(action);
    if (row == m_rows.constEnd())
        return;
    const char* toolTip = row->toolTip != nullptr ? row->toolTip : row->text;
    setLook(action, row->icon, QCoreApplication::translate(m_context, toolTip));
}

void ActionGroup::setEnabled(bool enabled)
{
    for (QAction* action : actions())
        action->setEnabled(enabled);
}

void ActionGroup::setEnabled(int action, bool enabled)
{
    if (QAction* one = entry(action))
        one->setEnabled(enabled);
}

QAction* ActionGroup::entry(int action) const
{
    for (QAction* one : actions()) {
        if (one->data().isValid() && one->data().toInt() == action)
            return one;
    }
    return nullptr;
}

void ActionGroup::handleAction(QAction* action)
{
    // A separator has no function.
    if (action->data().isValid())
        report(action->data().toInt());
}
