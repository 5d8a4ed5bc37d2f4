#include "Shortcuts.h"

#include <QAction>
#include <QMenu>
#include <QVariant>

#include <algorithm>

namespace nsModAction {

namespace {

/// On an action: the keys that it comes with, and those that it was given here, as text.
const char* const standardProperty = "standardKeys";
const char* const givenProperty = "givenKeys";

QString textOf(const QList<QKeySequence>& keys)
{
    return QKeySequence::listToString(keys, QKeySequence::PortableText);
}

/// The user may have taken its keys away.
bool hasKeys(const QAction* action)
{
    return !action->shortcuts().isEmpty() || !action->property(standardProperty).toString().isEmpty();
}

bool isKnown(const QKeySequence& keys)
{
    for (int i = 0; i < keys.count(); ++i) {
        if ((keys[i] & ~int(Qt::KeyboardModifierMask)) == Qt::Key_unknown)
            return false;
    }
    return keys.count() > 0;
}

QList<QKeySequence> keysOf(const QString& text)
{
    QList<QKeySequence> keys;
    for (const QKeySequence& one : QKeySequence::listFromString(text, QKeySequence::PortableText)) {
        if (isKnown(one))
            keys.append(one);
    }
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
    // Its owner may give it other keys later.
    const QString present = textOf(action->shortcuts());
    const QVariant given = action->property(givenProperty);
    if (!given.isValid() || given.toString() != present) {
        action->setProperty(standardProperty, present);
        action->setProperty(givenProperty, present);
    }
    return keysOf(action->property(standardProperty).toString());
}

void Shortcuts::apply(const QString& menu, QAction* action) const
{
    const QList<QKeySequence> standard = standardKeys(action);
    const QList<QKeySequence> keys = m_chosen.value(idOf(menu, action), standard);
    if (keys != action->shortcuts())
        action->setShortcuts(keys);
    action->setProperty(givenProperty, textOf(action->shortcuts()));
}

void Shortcuts::setEntries(const QString& menu, const QList<QAction*>& actions)
{
    if (!m_menus.contains(menu))
        m_menus.append(menu);
    QList<QPointer<QAction>>& entries = m_entries[menu];
    entries.clear();
    for (QAction* action : commandsIn(actions)) {
        entries.append(action);
        m_standard.insert(idOf(menu, action), standardKeys(action));
        apply(menu, action);
    }
}

QVector<Shortcuts::sCommand_t> Shortcuts::commands() const
{
    QVector<sCommand_t> result;
    for (const QString& menu : m_menus) {
        for (const QPointer<QAction>& action : m_entries.value(menu)) {
            if (action != nullptr)
                result.append({idOf(menu, action), menu, plainText(action->text()), standardKeys(action),
                               action->shortcuts(), false});
        }
    }
    return result;
}

void Shortcuts::setChosen(const QHash<QString, QList<QKeySequence>>& chosen)
{
    for (const sCommand_t& command : commands())
        m_standard.insert(command.id, command.standard);
    for (auto it = chosen.cbegin(); it != chosen.cend(); ++it) {
        if (*it == m_standard.value(it.key()))
            m_chosen.remove(it.key());
        else
            m_chosen.insert(it.key(), *it);
    }
    applyAll();
}

void Shortcuts::applyAll()
{
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
        const QString text = entry.mid(separator + 1);
        const QList<QKeySequence> keys = keysOf(text);
        // Without keys on purpose, or what is there can not be read.
        if (separator > 0 && (text.isEmpty() || !keys.isEmpty()))
            m_chosen.insert(entry.left(separator), keys);
    }
    applyAll();
}

} // namespace nsModAction
