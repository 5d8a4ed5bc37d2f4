#include "XPBlze6ConfigWidget.h"

#include "XPBlze6Config.h"

namespace nsXPBlze6 {

namespace {

using Field = nsProc::sProcConfigField;

QVector<Field> fields()
{
    const Field scrpdSize = {
        "scrpdSize",
        Field::ePageCore,
        Field::eChoice,
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Scratchpad size:"),
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Bytes"),
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Size of the scratchpad that the processor is built with"),
        &nsProc::ProcCoreConfig::scrpdSize,
        0,
        0,
        0,
        {64, 128, 256}};
    const Field intVectorAddr = {
        "intVectorAddr",
        Field::ePageCore,
        Field::eNumber,
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Interrupt vector address:"),
        "",
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Address where the processor goes on at an interrupt"),
        &nsProc::ProcCoreConfig::intVectorAddr,
        0,
        4095,
        4095};
    return {nsProc::procConfigClkFreq(), scrpdSize, intVectorAddr, nsProc::procConfigPageSize()};
}

} // namespace

XPBlze6ConfigWidget::XPBlze6ConfigWidget(QWidget* parent)
    : ProcConfigWidget(fields(), XPBlze6Config(), QStringLiteral("pageId://configPageXPBlze6Processor"), parent)
{
}

} // namespace nsXPBlze6
