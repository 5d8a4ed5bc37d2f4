#include "AsmProgram.h"

namespace nsModAsmFe {

void AsmProgram::clear()
{
    // The list of instructions first: those who keep pointers into it are told before anything is gone.
    opcodes.clear();
    equs.clear();
    orgs.clear();
    labels.clear();
    sets.clear();
    ioDevs.clear();
    defines.clear();
    memRanges.clear();
    texts.clear();
    writtenFiles.clear();
}

} // namespace nsModAsmFe
