#include "EditorActionsSim.h"

#include <QAction>

namespace nsModEditor {

EditorActionsSim::EditorActionsSim(QObject* parent)
    : QActionGroup(parent)
{
    setExclusive(false);
    add(eActionClearBreakpoints, tr("Clear all breakpoints"));
    add(eActionClearStartPointer, tr("Set simulator start address to zero"));
    connect(this, SIGNAL(triggered(QAction*)), this, SLOT(handleAction(QAction*)));
}

QAction* EditorActionsSim::add(eAction_t action, const QString& text)
{
    QAction* entry = addAction(text);
    entry->setToolTip(text);
    entry->setStatusTip(text);
    entry->setData(int(action));
    return entry;
}

void EditorActionsSim::setEnabled(bool enabled)
{
    for (QAction* entry : actions())
        entry->setEnabled(enabled);
}

void EditorActionsSim::setEnabled(eAction_t action, bool enabled)
{
    for (QAction* entry : actions()) {
        if (entry->data().toInt() == int(action))
            entry->setEnabled(enabled);
    }
}

QList<QAction*> EditorActionsSim::menuActions() const
{
    return actions();
}

QList<QAction*> EditorActionsSim::toolBarActions() const
{
    return {};
}

void EditorActionsSim::handleAction(QAction* action)
{
    emit triggered(eAction_t(action->data().toInt()));
}

} // namespace nsModEditor
