#include "XPBlze3ConfigWidget.h"

#include "XPBlze3Config.h"

namespace nsXPBlze3 {

XPBlze3ConfigWidget::XPBlze3ConfigWidget(QWidget* parent)
    : ProcConfigWidget({nsProc::procConfigClkFreq(), nsProc::procConfigPageSize()}, XPBlze3Config(),
                       QStringLiteral("pageId://configPageXPBlze3Processor"), parent)
{
}

} // namespace nsXPBlze3
