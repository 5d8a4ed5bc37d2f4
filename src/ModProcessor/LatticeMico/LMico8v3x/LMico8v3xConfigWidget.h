#pragma once

#include "ProcConfigWidget.h"
#include "ProcTables.h"

namespace nsLMico8v3x {

/// The settings of the Mico8 v3.x.
class LMico8v3xConfigWidget : public nsProc::ProcConfigWidget
{
    Q_OBJECT

public:
    explicit LMico8v3xConfigWidget(QWidget* parent = nullptr)
        : ProcConfigWidget(nsProc::lMico8v3xTable(), parent)
    {
    }
};

} // namespace nsLMico8v3x
