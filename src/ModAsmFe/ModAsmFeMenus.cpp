// What the editor gets from the assembler: the insertion menu and the highlighting rules.

#include "ModAsmFe.h"

namespace nsModAsmFe {

void ModAsmFe::setupSupportMenuBasic() {}
void ModAsmFe::setupSupportMenuDynamics() {}
void ModAsmFe::setupSupportMenuHardware() {}
void ModAsmFe::setHighlighter() {}

} // namespace nsModAsmFe
