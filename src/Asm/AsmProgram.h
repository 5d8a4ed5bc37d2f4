#pragma once

#include "AsmDefines.h"
#include "EquList.h"
#include "IODevList.h"
#include "LabelList.h"
#include "MemRangeList.h"
#include "MetaTags.h"
#include "OpcodeList.h"
#include "OrgList.h"
#include "SetList.h"
#include "StringPool.h"

#include <QStringList>

namespace nsModAsmFe {

/// Shape of the instruction memory, as the memory mapper has found it.
struct AsmMemGeometry
{
    int pageSize = 0; ///< words
    int pageCount = 1;
    bool isSharedHigh = true; ///< the shared range lies at the top of each page
};

/// The program of a run: what the sources declare, and what the stages have found out about it.
///
/// The reader fills it, each stage adds its part, the writers and the simulators read it. Elements live until clear().
struct AsmProgram
{
    EquList equs;
    SetList sets;
    OrgList orgs;
    OpcodeList opcodes;
    LabelList labels;
    IODevList ioDevs;
    MemRangeList memRanges;
    AsmDefines defines;
    StringPool texts; ///< names that the elements share
    /// From the last run that got as far as the memory mapper.
    AsmMemGeometry geometry;
    /// From the last run that got as far as the devices.
    MetaTags metaTags;
    QStringList writtenFiles; ///< output files, absolute, in the order of writing

    /// Deletes all elements. The geometry and the texts for templates stay until their stage writes them anew.
    void clear();
};

} // namespace nsModAsmFe
