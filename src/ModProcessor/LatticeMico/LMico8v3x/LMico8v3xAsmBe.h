#pragma once

#include "ProcAsmBe.h"

namespace nsLMico8v3x {

/// The assembler back end of the Mico8. Its jumps hold the distance to their target.
class LMico8v3xAsmBe : public nsProc::ProcAsmBe
{
    Q_OBJECT

public:
    explicit LMico8v3xAsmBe(QObject* parent = nullptr);

protected:
    bool setConfigFromDirective(nsModAsmFe::Set* set, bool* known) override;
    bool checkConfigStage1() override;

private:
    bool setConfigRegCount(nsModAsmFe::Set* set);
    bool setConfigInstrClkCnt(nsModAsmFe::Set* set);
    /// @param srcRef may be null
    bool checkConfigScrpdSize(const nsModAsmFe::SrcReference* srcRef);
};

} // namespace nsLMico8v3x
