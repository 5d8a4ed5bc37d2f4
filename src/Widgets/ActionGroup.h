#pragma once

#include <QActionGroup>
#include <QKeySequence>
#include <QList>
#include <QMap>

#include <initializer_list>

/// The entries of one theme in menu and tool bar, made from a table.
///
/// A class of its own for each module holds the table, the numbers of the entries and the signal triggered(eAction_t),
/// which it emits in report(). Each entry carries its number as data; a separator carries none.
class ActionGroup : public QActionGroup
{
    Q_OBJECT

public:
    struct sEntry_t
    {
        int action;       ///< its number, unique in the group
        const char* text; ///< null for a separator; marked with QT_TR_NOOP in the class that holds the table
        const char* toolTip = nullptr; ///< null: as the text
        const char* icon = nullptr;    ///< name without folder and ending; null for none
        const char* key = nullptr;     ///< one more shortcut, as "Ctrl+D"; null for none
        QKeySequence::StandardKey standardKey = QKeySequence::UnknownKey; ///< what the desktop has for it
    };

    /// All entries at once.
    void setEnabled(bool enabled);
    /// One entry.
    void setEnabled(int action, bool enabled);

    /// Entries and separators in the order of the screen. Owned by the group.
    QList<QAction*> menuActions() const { return actions(); }
    virtual QList<QAction*> toolBarActions() const { return actions(); }

protected:
    /// @p iconFolder: the resource folder of the icons, with a slash at its end
    ActionGroup(QObject* parent, const char* iconFolder);

    /// A line between two entries of a table.
    static sEntry_t separator() { return {-1, nullptr}; }

    /// Makes the entries; called once, in the constructor of the class that has the table.
    void addEntries(std::initializer_list<sEntry_t> entries);
    /// null if there is no such entry
    QAction* entry(int action) const;
    /// Another icon and tool tip than those of the table, until resetLook().
    void setLook(int action, const char* icon, const QString& toolTip);
    void resetLook(int action);
    /// Emits the signal of the class that has the table.
    virtual void report(int action) = 0;

private slots:
    void handleAction(QAction* action);

private:
    void addEntry(const sEntry_t& row);

    const char* m_iconFolder;
    const char* m_context = nullptr; ///< in which the texts are translated: the name of the class with the table
    QMap<int, sEntry_t> m_rows;
};
