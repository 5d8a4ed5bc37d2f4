#include "LMico8v3xConfigWidget.h"

#include "LMico8v3xConfig.h"

namespace nsLMico8v3x {

namespace {

using Field = nsProc::sProcConfigField;

QVector<Field> fields()
{
    const Field regCount = {
        "regCount",
        Field::ePageCore,
        Field::eChoice,
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Register count:"),
        "",
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Number of registers that the processor is built with"),
        &nsProc::ProcCoreConfig::regCount,
        0,
        0,
        0,
        {LMico8v3xConfig::minRegCount, LMico8v3xConfig::maxRegCount}};
    const Field scrpdSize = {
        "scrpdSize",
        Field::ePageCore,
        Field::eLargeNumber,
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Internal scratchpad size:"),
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Bytes"),
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Size of the scratchpad that the processor is built with"),
        &nsProc::ProcCoreConfig::scrpdSize,
        32,
        4294967296.0,
        32};
    const Field instrClkCnt = {
        "instrClkCnt",
        Field::ePageCore,
        Field::eNumber,
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Instruction clock cycle count:"),
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Clock cycles"),
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Clock cycles that the processor takes for an instruction"),
        &nsProc::ProcCoreConfig::instrClkCnt,
        0,
        LMico8v3xConfig::maxInstrClkCnt,
        0};
    return {nsProc::procConfigClkFreq(), regCount, scrpdSize, instrClkCnt, nsProc::procConfigPageSize()};
}

} // namespace

LMico8v3xConfigWidget::LMico8v3xConfigWidget(QWidget* parent)
    : ProcConfigWidget(fields(), LMico8v3xConfig(), QStringLiteral("pageId://configPageLMico8v3xProcessor"), parent)
{
}

} // namespace nsLMico8v3x
