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

    /// Names the files that a button writes in its tool tip. @param files as the user reads them; empty: unknown
    void setFiles(eAction_t action, const QStringList& files);

signals:
    void triggered(nsModAsmFe::AsmFeActions::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

} // namespace nsModAsmFe
