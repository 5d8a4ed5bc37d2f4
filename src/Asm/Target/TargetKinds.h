#pragma once

#include "TargetFile.h"

#include <memory>

namespace nsModAsmFe {

class TargetMapper;

/// What distinguishes a kind of output file from the others. A further kind is a further row, and a
/// section and a title in the settings page, which the compiler asks for.
struct sTargetKind_t
{
    eTargetKind_t kind;
    const char* key;     ///< in the keys of the project, "AsmFe/target/<key>/..."
    const char* setName; ///< in front of the `#SET` parameters, which are compared in upper case; as messages name it
    const char* group;   ///< text of the message group while such files are written
    bool hasTemplate;    ///< has an entity name and a template
    bool hasGapStuffing; ///< can leave out the words that nothing wrote
    std::unique_ptr<TargetMapper> (*newWriter)();
};

/// The row of a kind.
const sTargetKind_t& targetKind(eTargetKind_t kind);
/// All of them, in the order in which they are written.
const sTargetKind_t (&targetKinds())[targetKindCount];

} // namespace nsModAsmFe
