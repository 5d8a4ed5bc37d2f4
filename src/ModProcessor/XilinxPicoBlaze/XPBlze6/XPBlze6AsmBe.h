#pragma once

#include "ProcAsmBe.h"

namespace nsXPBlze6 {

/// The assembler back end of the PicoBlaze 6.
class XPBlze6AsmBe : public nsProc::ProcAsmBe
{
    Q_OBJECT

public:
    explicit XPBlze6AsmBe(QObject* parent = nullptr);

protected:
    bool setConfigFromDirective(nsModAsmFe::Set* set, bool* known) override;
    bool checkConfigStage1() override;

private:
    /// @param srcRef may be null
    bool checkConfigScrpdSize(const nsModAsmFe::SrcReference* srcRef);
};

} // namespace nsXPBlze6
