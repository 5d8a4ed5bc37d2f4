#include "Shortcuts.h"

#include <QAction>
#include <QMenu>
#include <QVariant>

#include <algorithm>

namespace nsModAction {

namespace {

/// On an action: the keys that it was made with, as text.
const char* const standardProperty = "standardKeys";

QString textOf(const QList<QKeySequence>& keys)
{
    return QKeySequence::listToString(keys, QKeySequence::PortableText);
}

/// The user may have taken its keys away.
bool hasKeys(const QAction* action)
{
    return !action->shortcuts().isEmpty() || !action->property(standardProperty).toString().isEmpty();
}

QList<QKeySequence> keysOf(const QString& text)
{
    QList<QKeySequence> keys = QKeySequence::listFromString(text, QKeySequence::PortableText);
    keys.removeAll(QKeySequence());
    return keys;
}

/// Also those of submenus of commands. A submenu whose entries have no keys at all, such as that of recent files,
/// offers things and no commands.
QList<QAction*> commandsIn(const QList<QAction*>& actions)
{
    QList<QAction*> commands;
    for (QAction* action : actions) {
        if (action->isSeparator() || Shortcuts::plainText(action->text()).isEmpty())
            continue;
        if (action->menu() == nullptr) {
            commands.append(action);
            continue;
        }
        const QList<QAction*> entries = commandsIn(action->menu()->actions());
        if (std::any_of(entries.cbegin(), entries.cend(), [](QAction* entry) { return hasKeys(entry); }))
            commands.append(entries);
    }
    return commands;
}

} // namespace

QString Shortcuts::plainText(const QString& text)
{
    QString plain = text;
    plain.remove(QLatin1Char('&'));
    while (plain.endsWith(QLatin1Char('.')))
        plain.chop(1);
    return plain;
}

QString Shortcuts::idOf(const QString& menu, const QAction* action)
{
    return menu + QLatin1Char('/') + plainText(action->text());
}

QList<QKeySequence> Shortcuts::standardKeys(QAction* action)
{
    const QVariant known = action->property(standardProperty);
    if (known.isValid())
        return keysOf(known.toString());
    action->setProperty(standardProperty, textOf(action->shortcuts()));
    return action->shortcuts();
}

void Shortcuts::apply(const QString& menu, QAction* action) const
{
    const QList<QKeySequence> standard = standardKeys(action);
    const QList<QKeySequence> keys = m_chosen.value(idOf(menu, action), standard);
    if (keys != action->shortcuts())
        action->setShortcuts(keys);
}

void Shortcuts::setEntries(const QString& menu, const QList<QAction*>& actions)
{
    if (!m_menus.contains(menu))
        m_menus.append(menu);
    QList<QPointer<QAction>>& entries = m_entries[menu];
    entries.clear();
    for (QAction* action : commandsIn(actions)) {
        entries.append(action);
        apply(menu, action);
    }
}

QVector<Shortcuts::sCommand_t> Shortcuts::commands() const
{
    QVector<sCommand_t> result;
    for (const QString& menu : m_menus) {
        for (const QPointer<QAction>& action : m_entries.value(menu)) {
            if (action != nullptr)
                result.append(
                    {idOf(menu, action), menu, plainText(action->text()), standardKeys(action), action->shortcuts()});
        }
    }
    return result;
}

void Shortcuts::setChosen(const QHash<QString, QList<QKeySequence>>& chosen)
{
    const QVector<sCommand_t> known = commands();
    for (const sCommand_t& command : known) {
        const auto it = chosen.constFind(command.id);
        if (it == chosen.constEnd() || *it == command.standard)
            m_chosen.remove(command.id);
        else
            m_chosen.insert(command.id, *it);
    }
    for (const QString& menu : qAsConst(m_menus)) {
        for (const QPointer<QAction>& action : m_entries.value(menu)) {
            if (action != nullptr)
                apply(menu, action);
        }
    }
}

QStringList Shortcuts::stored() const
{
    QStringList entries;
    for (auto it = m_chosen.cbegin(); it != m_chosen.cend(); ++it)
        entries.append(it.key() + QLatin1Char('=') + textOf(it.value()));
    entries.sort();
    return entries;
}

void Shortcuts::setStored(const QStringList& entries)
{
    m_chosen.clear();
    for (const QString& entry : entries) {
        // A key can be "=", an id has none behind its last one that separates: the first one does.
        const int separator = entry.indexOf(QLatin1Char('='));
        if (separator > 0)
            m_chosen.insert(entry.left(separator), keysOf(entry.mid(separator + 1)));
    }
    for (const QString& menu : qAsConst(m_menus)) {
        for (const QPointer<QAction>& action : m_entries.value(menu)) {
            if (action != nullptr)
                apply(menu, action);
        }
    }
}

} // namespace nsModAction
