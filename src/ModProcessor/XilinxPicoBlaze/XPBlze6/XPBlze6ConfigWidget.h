#pragma once

#include "ProcConfigWidget.h"
#include "ProcTables.h"

namespace nsXPBlze6 {

/// The settings of the PicoBlaze 6.
class XPBlze6ConfigWidget : public nsProc::ProcConfigWidget
{
    Q_OBJECT

public:
    explicit XPBlze6ConfigWidget(QWidget* parent = nullptr)
        : ProcConfigWidget(nsProc::xpBlze6Table(), parent)
    {
    }
};

} // namespace nsXPBlze6
