#pragma once

#include <QActionGroup>
#include <QList>

namespace nsModEditor {

/// What can be done with the simulator's marks of all documents, in the menu.
class EditorActionsSim : public QActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionClearBreakpoints = 0, eActionClearStartPointer = 1 };

    explicit EditorActionsSim(QObject* parent);

    void setEnabled(bool enabled);
    void setEnabled(eAction_t action, bool enabled);
    QList<QAction*> menuActions() const;
    /// There is none.
    QList<QAction*> toolBarActions() const;

signals:
    void triggered(nsModEditor::EditorActionsSim::eAction_t action);

private slots:
    void handleAction(QAction* action);

private:
    QAction* add(eAction_t action, const QString& text);
};

} // namespace nsModEditor
