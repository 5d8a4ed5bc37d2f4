#include "ProcActionsSim.h"

#include <QAction>
#include <QKeySequence>

namespace nsProc {

namespace {

struct sAction_t
{
    ProcActionsSim::eAction_t action;
    const char* text;
    const char* toolTip; ///< null: as the text
    const char* icon;
    const char* keys; ///< null for none
    bool separatorBehind;
};

#define NALVO_TR(text) QT_TRANSLATE_NOOP("nsProc::ProcActionsSim", text)

/// In the order of the screen.
const sAction_t simActions[] = {
    {ProcActionsSim::eActionEnable, NALVO_TR("Enable/disable simulator"), nullptr, "simEn", nullptr, true},
    {ProcActionsSim::eActionReset, NALVO_TR("Reset"), NALVO_TR("Reset simulator"), "simRestart", nullptr, false},
    {ProcActionsSim::eActionSetPc, NALVO_TR("Set program counter from text cursor"), nullptr, "simSetPc", nullptr, false},
    {ProcActionsSim::eActionInterrupt, NALVO_TR("Interrupt"), NALVO_TR("Toggle interrupt"), "simInt", nullptr, true},
    {ProcActionsSim::eActionRun, NALVO_TR("Run..."), NALVO_TR("Run simulation"), "simRun", "F9", false},
    {ProcActionsSim::eActionNextLine, NALVO_TR("Next line"), NALVO_TR("Simulate next line"), "simNext", "F10", false},
    {ProcActionsSim::eActionNextInstruction, NALVO_TR("Next instruction"), NALVO_TR("Simulate next instruction"),
     "simNextLine", "F11", false},
    {ProcActionsSim::eActionToEndOfCall, NALVO_TR("Simulate to end of call"), nullptr, "simToEndOfCall", "Shift+F11", false},
    {ProcActionsSim::eActionToCursor, NALVO_TR("Simulate to cursor"), nullptr, "simToCursor", "Shift+F9", true},
    {ProcActionsSim::eActionBaseDec, NALVO_TR("Dec"), NALVO_TR("Set numeric base to decimal"), "baseDec", nullptr, false},
    {ProcActionsSim::eActionBaseHex, NALVO_TR("Hex"), NALVO_TR("set numeric base to hexadecimal"), "baseHex", nullptr, false},
    {ProcActionsSim::eActionBaseOct, NALVO_TR("Oct"), NALVO_TR("Set numeric base to octal"), "baseOct", nullptr, false},
};

} // namespace

ProcActionsSim::ProcActionsSim(QObject* parent)
    : QActionGroup(parent)
{
    setExclusive(false);
    for (const sAction_t& row : simActions) {
        const QString icon = QStringLiteral(":/ProcCommon/img/simulator/%1.png").arg(QLatin1String(row.icon));
        QAction* entry = addAction(QIcon(icon), tr(row.text));
        const QString toolTip = tr(row.toolTip != nullptr ? row.toolTip : row.text);
        entry->setToolTip(toolTip);
        entry->setStatusTip(toolTip);
        entry->setData(int(row.action));
        if (row.keys != nullptr)
            entry->setShortcut(QKeySequence(QLatin1String(row.keys)));
        if (row.separatorBehind)
            addSeparator();
    }
    connect(this, SIGNAL(triggered(QAction*)), this, SLOT(handleAction(QAction*)));
}

void ProcActionsSim::addSeparator()
{
    auto* separator = new QAction(this);
    separator->setSeparator(true);
    addAction(separator);
}

void ProcActionsSim::setEnabled(bool enabled)
{
    for (QAction* entry : actions())
        entry->setEnabled(enabled);
}

void ProcActionsSim::setEnabled(eAction_t action, bool enabled)
{
    for (QAction* entry : actions()) {
        if (!entry->isSeparator() && entry->data().toInt() == int(action))
            entry->setEnabled(enabled);
    }
}

bool ProcActionsSim::isEnabled(eAction_t action) const
{
    for (const QAction* entry : actions()) {
        if (!entry->isSeparator() && entry->data().toInt() == int(action))
            return entry->isEnabled();
    }
    return false;
}

void ProcActionsSim::handleAction(QAction* action)
{
    emit triggered(eAction_t(action->data().toInt()));
}

} // namespace nsProc
