#pragma once

#include "TargetFile.h"

#include <QStringList>

#include <memory>

namespace nsModAsmFe {

class TargetMapper;

/// What distinguishes a kind of output file from the others. A further kind is a further row, and a
/// section and a title in the settings page, which the compiler asks for.
struct sTargetKind_t
{
    eTargetKind_t kind;
    const char* section; ///< of the project's settings
    const char* key;     ///< in the keys of the project, "<section>/<key>/..."
    const char* setName; ///< in front of the `#SET` parameters, which are compared in upper case; as messages name it
    const char* group;   ///< text of the message group while such files are written
    bool hasTemplate;    ///< has an entity name and a template
    bool hasGapStuffing; ///< can leave out the words that nothing wrote
    /// An image for a tool of a vendor, whose words have a width. A project that does not use such a kind neither
    /// stores its settings nor reads a word about it in a run.
    bool isImage;
    const char* layouts; ///< names of the layouts, separated by blanks, the first one the default; empty if it has none
    std::unique_ptr<TargetMapper> (*newWriter)();

    QStringList layoutNames() const { return QString::fromLatin1(layouts).split(' ', Qt::SkipEmptyParts); }
};

/// The row of a kind.
const sTargetKind_t& targetKind(eTargetKind_t kind);
/// All of them, in the order in which they are written.
const sTargetKind_t (&targetKinds())[targetKindCount];

} // namespace nsModAsmFe
