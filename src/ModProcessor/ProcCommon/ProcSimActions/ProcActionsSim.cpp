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
    bool separatorAfter;
};

#define NALVO_TR(text) QT_TRANSLATE_NOOP("nsProc::ProcActionsSim", text)

/// In the order of the screen.
const sAction_t simActions[] = {
    {ProcActionsSim::eActionEnable, NALVO_TR("Enable/disable simulator"), nullptr, "simEn", nullptr, true},
    {ProcActionsSim::eActionReset, NALVO_TR("Reset"), NALVO_TR("Reset simulator"), "simRestart", nullptr, false},
    {ProcActionsSim::eActionSetPc, NALVO_TR("Set program counter from text cursor"), nullptr, "simSetPc", nullptr,
     false},
    {ProcActionsSim::eActionInterrupt, NALVO_TR("Interrupt"), NALVO_TR("Toggle interrupt"), "simInt", nullptr, true},
    {ProcActionsSim::eActionRun, NALVO_TR("Run..."), NALVO_TR("Run simulation"), "simRun", "F9", false},
    {ProcActionsSim::eActionNextLine, NALVO_TR("Next line"), NALVO_TR("Simulate next line"), "simNext", "F10", false},
    {ProcActionsSim::eActionNextInstruction, NALVO_TR("Next instruction"), NALVO_TR("Simulate next instruction"),
     "simNextLine", "F11", false},
    {ProcActionsSim::eActionToEndOfCall, NALVO_TR("Simulate to end of call"), nullptr, "simToEndOfCall", "Shift+F11",
     false},
    {ProcActionsSim::eActionToCursor, NALVO_TR("Simulate to cursor"), nullptr, "simToCursor", "Shift+F9", true},
    {ProcActionsSim::eActionBaseDec, NALVO_TR("Dec"), NALVO_TR("Set numeric base to decimal"), "baseDec", nullptr,
     false},
    {ProcActionsSim::eActionBaseHex, NALVO_TR("Hex"), NALVO_TR("set numeric base to hexadecimal"), "baseHex", nullptr,
     false},
    {ProcActionsSim::eActionBaseOct, NALVO_TR("Oct"), NALVO_TR("Set numeric base to octal"), "baseOct", nullptr, false},
};

QIcon iconOf(const char* name)
{
    return QIcon(QStringLiteral(":/ProcCommon/img/simulator/%1.png").arg(QLatin1String(name)));
}

QString toolTipOf(const sAction_t& row)
{
    return ProcActionsSim::tr(row.toolTip != nullptr ? row.toolTip : row.text);
}

} // namespace

ProcActionsSim::ProcActionsSim(QObject* parent)
    : QActionGroup(parent)
{
    setExclusive(false);
    for (const sAction_t& row : simActions) {
        QAction* entry = addAction(iconOf(row.icon), tr(row.text));
        entry->setToolTip(toolTipOf(row));
        entry->setStatusTip(toolTipOf(row));
        entry->setData(int(row.action));
        if (row.keys != nullptr)
            entry->setShortcut(QKeySequence(QLatin1String(row.keys)));
        if (row.separatorAfter)
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

QAction* ProcActionsSim::actionOf(eAction_t action) const
{
    for (QAction* entry : actions()) {
        if (!entry->isSeparator() && entry->data().toInt() == int(action))
            return entry;
    }
    return nullptr;
}

void ProcActionsSim::setEnabled(eAction_t action, bool enabled)
{
    if (QAction* entry = actionOf(action))
        entry->setEnabled(enabled);
}

bool ProcActionsSim::isEnabled(eAction_t action) const
{
    const QAction* entry = actionOf(action);
    return entry != nullptr && entry->isEnabled();
}

void ProcActionsSim::setStopping(eAction_t action, bool stopping)
{
    QAction* entry = actionOf(action);
    if (entry == nullptr)
        return;
    for (const sAction_t& row : simActions) {
        if (row.action != action)
            continue;
        entry->setIcon(iconOf(stopping ? "simStop" : row.icon));
        const QString toolTip = stopping ? tr("Stop simulation") : toolTipOf(row);
        entry->setToolTip(toolTip);
        entry->setStatusTip(toolTip);
    }
}

void ProcActionsSim::handleAction(QAction* action)
{
    emit triggered(eAction_t(action->data().toInt()));
}

} // namespace nsProc
