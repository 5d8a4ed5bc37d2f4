#pragma once

#include "ActionGroup.h"

namespace nsModAsmFe {

/// The assembler's entries in menu and tool bar.
class AsmFeActions : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionAssemble = 0, eActionButton1 = 1, eActionButton2 = 2 };

    explicit AsmFeActions(QObject* parent);

signals:
    void triggered(nsModAsmFe::AsmFeActions::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

} // namespace nsModAsmFe
