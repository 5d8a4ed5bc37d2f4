#include "EditorActionsFile.h"

#include <QAction>
#include <QIcon>

namespace nsModEditor {

EditorActionsFile::EditorActionsFile(QObject* parent)
    : QActionGroup(parent)
{
    setExclusive(false);
    add(eActionNew, tr("New..."), tr("New document"), "document-new", QKeySequence::New);
    add(eActionOpen, tr("Open..."), tr("Open document"), "document-open", QKeySequence::Open);
    addSeparator();
    // One key writes every open document, since the assembler reads them all.
    add(eActionSaveAll, tr("Save all"), tr("Save all documents"), "document-saveAll", QKeySequence::Save);
    add(eActionSave, tr("Save"), tr("Save document"), "document-save");
    add(eActionSaveAs, tr("Save as..."), tr("Save document as"), "document-save-as");
    addSeparator();
    add(eActionReloadAll, tr("Reload all"), tr("Reload all documents"), "document-revert");
    add(eActionReload, tr("Reload"), tr("Reload current document"), "document-revert", QKeySequence::Refresh);
    addSeparator();
    add(eActionPrint, tr("Print..."), tr("Print document"), "printer");
    addSeparator();
    add(eActionClose, tr("Close"), tr("Close document"), "document-close", QKeySequence::Close);
    add(eActionCloseAll, tr("Close all"), tr("Close all documents"), "document-close");
    add(eActionCloseOthers, tr("Close all other documents"), tr("Close all other documents"), "document-close");
    addSeparator();
    connect(this, SIGNAL(triggered(QAction*)), this, SLOT(handleAction(QAction*)));
}

QAction* EditorActionsFile::add(eAction_t action, const QString& text, const QString& toolTip, const QString& icon,
                                QKeySequence::StandardKey key)
{
    QAction* entry = addAction(QIcon(":/ModEditor/img/file/" + icon + ".png"), text);
    entry->setToolTip(toolTip);
    entry->setStatusTip(toolTip);
    entry->setData(int(action));
    if (key != QKeySequence::UnknownKey)
        entry->setShortcuts(key);
    return entry;
}

void EditorActionsFile::addSeparator()
{
    addAction(QString())->setSeparator(true);
}

void EditorActionsFile::setEnabled(bool enabled)
{
    for (QAction* entry : actions())
        entry->setEnabled(enabled);
}

void EditorActionsFile::setEnabled(eAction_t action, bool enabled)
{
    for (QAction* entry : actions()) {
        if (entry->data().isValid() && entry->data().toInt() == int(action))
            entry->setEnabled(enabled);
    }
}

QList<QAction*> EditorActionsFile::menuActions() const
{
    return actions();
}

QList<QAction*> EditorActionsFile::toolBarActions() const
{
    return actions().mid(0, 2);
}

void EditorActionsFile::handleAction(QAction* action)
{
    // A separator has no function.
    if (action->data().isValid())
        emit triggered(eAction_t(action->data().toInt()));
}

} // namespace nsModEditor
