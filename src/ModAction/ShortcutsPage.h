#pragma once

#include "ModConfigPagePluginIf.h"
#include "Shortcuts.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace nsModAction {

class KeyEdit;

/// The settings page with the keys of all commands: found by name or keys, changed, reset. Keys of two commands at once
/// are told and not accepted.
class ShortcutsPage : public QWidget, public nsModConfig::ModConfigPagePluginIf
{
    Q_OBJECT

public:
    explicit ShortcutsPage(QWidget* parent = nullptr);

    /// @param commands those that are fixed stand behind all others
    void setCommands(const QVector<Shortcuts::sCommand_t>& commands);
    /// The keys on the page, by the id of the command.
    QHash<QString, QList<QKeySequence>> keys() const;

    // ModConfigPagePluginIf
    QWidget* pageWidget() override { return this; }
    QIcon pageIcon() override;
    QString pageTitle() override;
    QString pageHelpRef() override;
    void setPrjConfigEnabled(bool) override {}
    bool pageIsEnabled() override { return true; }
    void setFocus(bool) override {}
    void setDefaultConfig() override;
    /// @return no keys that the user has changed are those of another command
    bool checkConfig() override;

private slots:
    void filter(const QString& text);
    void showCommand();
    void setKeys(const QKeySequence& keys);
    void resetOne();
    void takeKeys();

private:
    static const int noCommand = -1;

    void addList();
    void addFields();
    int current() const;
    int conflictOf(int command) const;
    QString menuWith(const QList<QKeySequence>& keys) const;
    void change(int command, const QList<QKeySequence>& keys);
    void showRow(int command);
    void showConflict();

    QVector<Shortcuts::sCommand_t> m_commands; ///< with the keys on the page
    QLineEdit* m_search;
    QTreeWidget* m_list;
    KeyEdit* m_edit;
    QPushButton* m_reset;
    QPushButton* m_resetAll;
    QPushButton* m_take;
    QLabel* m_conflict = nullptr;
};

} // namespace nsModAction
