#pragma once

namespace nsModAsmFe {

/// A position in the sources, copied by value into every element.
struct SrcReference
{
    int fileNo = 0; ///< index of the source in the file list of the run
    int lineNo = 0; ///< line inside that file, counted from 0
    int absLineNo =
        0; ///< running line count over all files of the run, counted from 0; orders labels, directives and opcodes
};

} // namespace nsModAsmFe
