#pragma once

#include <QHash>
#include <QKeySequence>
#include <QList>
#include <QPointer>
#include <QStringList>
#include <QVector>

class QAction;

namespace nsModAction {

/// The keys of all commands in the menus: those that they come with, and what the user has changed.
class Shortcuts
{
public:
    struct sCommand_t
    {
        QString id;   ///< the same in every start of the program
        QString menu; ///< title of its menu
        QString text; ///< without mnemonic and dots
        QList<QKeySequence> standard;
        QList<QKeySequence> keys; ///< the present ones
        bool isFixed = false;     ///< no command: keys of a single list or view, which can not be changed
    };

    /// The entries of a menu as they are now. Entries that are new get the keys that the user has chosen for them.
    void setEntries(const QString& menu, const QList<QAction*>& actions);

    /// The commands in the order of the menus.
    QVector<sCommand_t> commands() const;
    /// Other keys for commands. Those that are not named keep theirs: they have come since the list was asked for.
    void setChosen(const QHash<QString, QList<QKeySequence>>& chosen);

    /// What the settings hold: an entry "id=keys" for each command with other keys than it comes with.
    QStringList stored() const;
    void setStored(const QStringList& entries);

    static QString plainText(const QString& text);

private:
    static QString idOf(const QString& menu, const QAction* action);
    static QList<QKeySequence> standardKeys(QAction* action);
    void apply(const QString& menu, QAction* action) const;
    void applyAll();

    QStringList m_menus; ///< in the order of setEntries()
    QHash<QString, QList<QPointer<QAction>>> m_entries;
    QHash<QString, QList<QKeySequence>> m_standard; ///< by id, of all commands so far
    QHash<QString, QList<QKeySequence>> m_chosen;   ///< by id, also of commands that are not there now
};

} // namespace nsModAction
