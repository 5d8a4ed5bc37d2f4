#pragma once

#include "ProcConfigWidget.h"
#include "ProcTables.h"

namespace nsXPBlze3 {

/// The settings of the PicoBlaze 3.
class XPBlze3ConfigWidget : public nsProc::ProcConfigWidget
{
    Q_OBJECT

public:
    explicit XPBlze3ConfigWidget(QWidget* parent = nullptr)
        : ProcConfigWidget(nsProc::xpBlze3Table(), parent)
    {
    }
};

} // namespace nsXPBlze3
