#include "XPBlze6AsmBe.h"

#include "ProcCoreConfig.h"

#include "Set.h"

namespace nsXPBlze6 {

namespace {

using namespace nsModAsmFe;
using namespace nsProc;

/// The instruction set. Words without their operands: number and register form, or always, Z, NZ, C, NC and computed
/// target, or DISABLE, ENABLE.
const QVector<sInstr_t>& instrs()
{
    static const QVector<sInstr_t> table = {
        {ocLoad, formTwoOperand, {0x01000, 0x00000}},
        {ocAnd, formTwoOperand, {0x03000, 0x02000}},
        {ocOr, formTwoOperand, {0x05000, 0x04000}},
        {ocXor, formTwoOperand, {0x07000, 0x06000}},
        {ocTest, formTwoOperand, {0x0D000, 0x0C000}},
        {ocTestc, formTwoOperand, {0x0F000, 0x0E000}},
        {ocAdd, formTwoOperand, {0x11000, 0x10000}},
        {ocAddc, formTwoOperand, {0x13000, 0x12000}},
        {ocStar, formTwoOperand, {0x17000, 0x16000}},
        {ocSub, formTwoOperand, {0x19000, 0x18000}},
        {ocSubc, formTwoOperand, {0x1B000, 0x1A000}},
        {ocComp, formTwoOperand, {0x1D000, 0x1C000}},
        {ocCompc, formTwoOperand, {0x1F000, 0x1E000}},
        {ocRdprt, formPort, {0x09000, 0x08000}},
        {ocRdmem, formScrpd, {0x0B000, 0x0A000}},
        {ocWrprt, formPort, {0x2D000, 0x2C000, 0x2B000}},
        {ocWrmem, formScrpd, {0x2F000, 0x2E000}},
        {ocJump, formFlow, {0x22000, 0x32000, 0x36000, 0x3A000, 0x3E000, 0x26000}},
        {ocCall, formFlow, {0x20000, 0x30000, 0x34000, 0x38000, 0x3C000, 0x24000}},
        {ocRet, formReturn, {0x25000, 0x31000, 0x35000, 0x39000, 0x3D000}},
        {ocReti, formSwitch, {0x29000, 0x29001}},
        {ocInt, formSwitch, {0x28000, 0x28001}},
        {ocLoadret, formRegNumber, {0x21000}},
        {ocRegbank, formBank, {0x37000}},
        {ocHwbuild, formReg, {0x14080}},
        {ocNop, formNone, {0x00000}},
        {ocRolc, formReg, {0x14000}},
        {ocRol, formReg, {0x14002}},
        {ocSlx, formReg, {0x14004}},
        {ocSl0, formReg, {0x14006}},
        {ocSl1, formReg, {0x14007}},
        {ocRorc, formReg, {0x14008}},
        {ocSrx, formReg, {0x1400A}},
        {ocRor, formReg, {0x1400C}},
        {ocSr0, formReg, {0x1400E}},
        {ocSr1, formReg, {0x1400F}},
    };
    return table;
}

const sInstrLayout_t layout = {8, 4, 0, 255, 255, 12, false, false};

} // namespace

XPBlze6AsmBe::XPBlze6AsmBe(QObject* parent)
    : ProcAsmBe(&instrs(), layout, "XPBlze6AsmBeMessages", parent)
{
    for (int number = 0; number < 16; ++number)
        m_regs.insert('s' + QString::number(number, 16).toUpper(), number);
    m_banks = {{"A", 0}, {"B", 1}};
}

QString XPBlze6AsmBe::processorDefine() const
{
    return QStringLiteral("PROC::XPBLZE6");
}

bool XPBlze6AsmBe::setConfigFromDirective(Set* set, bool* known)
{
    *known = true;
    if (set->nameUpper == QLatin1String("INTVECTOR"))
        return overrideConfig(set, &m_config->intVectorAddr, "intVectorAddr") && checkConfigIntVectorAddr(&set->srcRef);
    if (set->nameUpper == QLatin1String("SCRPDSIZE")) {
        if (!overrideConfig(set, &m_config->scrpdSize, "scrpdSize"))
            return false;
        m_scrpdMax = m_config->scrpdSize - 1;
        return checkConfigScrpdSize(&set->srcRef);
    }
    return ProcAsmBe::setConfigFromDirective(set, known);
}

bool XPBlze6AsmBe::checkConfigStage1()
{
    return checkConfigIntVectorAddr(nullptr) && checkConfigScrpdSize(nullptr);
}

bool XPBlze6AsmBe::checkConfigScrpdSize(const SrcReference* srcRef)
{
    const int size = m_config->scrpdSize;
    if (size == 64 || size == 128 || size == 256)
        return true;
    signMsg(errIvldScrpdSize, srcRef, QString::number(size), 0);
    return false;
}

} // namespace nsXPBlze6
