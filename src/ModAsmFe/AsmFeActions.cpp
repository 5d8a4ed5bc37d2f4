#include "AsmFeActions.h"

#include <QAction>
#include <QKeySequence>

namespace nsModAsmFe {

AsmFeActions::AsmFeActions(QObject* parent)
    : QActionGroup(parent)
{
    setExclusive(false);
    add(eActionAssemble, tr("Run assembler"), tr("Run assembler and write the output files of the save event"),
        "assemble");
    add(eActionButton1, tr("Write output files button 1"), tr("Write output files button 1"), "assemble1");
    add(eActionButton2, tr("Write output files button 2"), tr("Write output files button 2"), "assemble2");
    connect(this, SIGNAL(triggered(QAction*)), this, SLOT(handleAction(QAction*)));
}

QAction* AsmFeActions::add(eAction_t action, const QString& text, const QString& toolTip, const QString& icon)
{
    QAction* entry = addAction(QIcon(":/ModAsmFe/img/actions/" + icon + ".png"), text);
    entry->setToolTip(toolTip);
    entry->setStatusTip(toolTip);
    entry->setData(int(action));
    return entry;
}

void AsmFeActions::setEnabled(bool enabled)
{
    for (QAction* entry : actions())
        entry->setEnabled(enabled);
}

void AsmFeActions::setEnabled(eAction_t action, bool enabled)
{
    for (QAction* entry : actions()) {
        if (entry->data().toInt() == int(action))
            entry->setEnabled(enabled);
    }
}

QList<QAction*> AsmFeActions::menuActions() const
{
    return actions();
}

QList<QAction*> AsmFeActions::toolBarActions() const
{
    return actions();
}

void AsmFeActions::handleAction(QAction* action)
{
    emit triggered(eAction_t(action->data().toInt()));
}

} // namespace nsModAsmFe
