#pragma once

#include <QActionGroup>
#include <QKeySequence>
#include <QList>

namespace nsModEditor {

/// What can be done with files, in menu and tool bar.
class EditorActionsFile : public QActionGroup
{
    Q_OBJECT

public:
    enum eAction_t {
        eActionNew = 0,
        eActionOpen = 1,
        eActionSaveAll = 2,
        eActionSave = 3,
        eActionSaveAs = 4,
        eActionReloadAll = 5,
        eActionReload = 6,
        eActionPrint = 7,
        eActionClose = 8,
        eActionCloseAll = 9,
        eActionCloseOthers = 10,
    };

    explicit EditorActionsFile(QObject* parent);

    void setEnabled(bool enabled);
    void setEnabled(eAction_t action, bool enabled);
    QList<QAction*> menuActions() const;
    QList<QAction*> toolBarActions() const;

signals:
    void triggered(nsModEditor::EditorActionsFile::eAction_t action);

private slots:
    void handleAction(QAction* action);

private:
    QAction* add(eAction_t action, const QString& text, const QString& toolTip, const QString& icon,
                 QKeySequence::StandardKey key = QKeySequence::UnknownKey);
    void addSeparator();
};

} // namespace nsModEditor
