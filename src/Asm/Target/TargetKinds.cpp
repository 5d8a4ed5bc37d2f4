#include "TargetKinds.h"

#include "EnumTable.h"
#include "TargetFileWriteVerilog.h"
#include "TargetFileWriteVhdl.h"
#include "TargetWriteFileHex.h"
#include "TargetWriteFileImage.h"
#include "TargetWriteFileMem.h"

namespace nsModAsmFe {

namespace {

template <class Writer>
std::unique_ptr<TargetMapper> newWriter()
{
    return std::make_unique<Writer>();
}

// The context of the translation is the class that shows the messages.
#define NALVO_GROUP(text) QT_TRANSLATE_NOOP("nsModAsmFe::AsmFeMsgHndlr", text)

constexpr char ofAssembler[] = "AsmFe/target";
constexpr char ofImages[] = "Outputs";

/// Indexed by eTargetKind_t.
constexpr sTargetKind_t kinds[] = {
    {kindVhdl, ofAssembler, "vhdl", "VHDL", NALVO_GROUP("Writing vhdl files..."), true, false, false, "",
     &newWriter<TargetFileWriteVhdl>},
    {kindVerilog, ofAssembler, "verilog", "Verilog", NALVO_GROUP("Writing verilog files..."), true, false, false, "",
     &newWriter<TargetFileWriteVerilog>},
    {kindHex, ofAssembler, "hex", "HEX", NALVO_GROUP("Writing hex files..."), false, false, false, "",
     &newWriter<TargetWriteFileHex>},
    {kindMem, ofAssembler, "mem", "MEM", NALVO_GROUP("Writing mem files..."), false, true, false, "",
     &newWriter<TargetWriteFileMem>},
    {kindMif, ofImages, "mif", "MIF", NALVO_GROUP("Writing MIF files..."), false, false, true, "",
     &newWriter<TargetWriteFileMif>},
    {kindCoe, ofImages, "coe", "COE", NALVO_GROUP("Writing COE files..."), false, false, true, "",
     &newWriter<TargetWriteFileCoe>},
    {kindBinary, ofImages, "binary", "BINARY", NALVO_GROUP("Writing binary files..."), false, false, true, "little big",
     &newWriter<TargetWriteFileBinary>},
    {kindIntelHex, ofImages, "ihex", "IHEX", NALVO_GROUP("Writing Intel HEX files..."), false, false, true,
     "little big words", &newWriter<TargetWriteFileIntelHex>},
    {kindRamMem, ofImages, "ram", "RAM", NALVO_GROUP("Writing block RAM files..."), false, false, true, "halves whole",
     &newWriter<TargetWriteFileRamMem>},
};

static_assert(isIndexedBy(kinds, &sTargetKind_t::kind, targetKindCount), "the rows are indexed by eTargetKind_t");

} // namespace

const sTargetKind_t& targetKind(eTargetKind_t kind)
{
    return kinds[kind];
}

const sTargetKind_t (&targetKinds())[targetKindCount]
{
    return kinds;
}

} // namespace nsModAsmFe
