#pragma once

#include "ProcConfigWidget.h"

namespace nsXPBlze6 {

/// The settings of the PicoBlaze 6.
class XPBlze6ConfigWidget : public nsProc::ProcConfigWidget
{
    Q_OBJECT

public:
    explicit XPBlze6ConfigWidget(QWidget* parent = nullptr);
};

} // namespace nsXPBlze6
