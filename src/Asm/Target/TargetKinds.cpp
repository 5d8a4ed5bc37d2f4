#include "TargetKinds.h"

#include "EnumTable.h"
#include "TargetFileWriteVerilog.h"
#include "TargetFileWriteVhdl.h"
#include "TargetWriteFileHex.h"
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

/// Indexed by eTargetKind_t.
constexpr sTargetKind_t kinds[] = {
    {kindVhdl, "vhdl", "VHDL", NALVO_GROUP("Writing vhdl files..."), true, false, &newWriter<TargetFileWriteVhdl>},
    {kindVerilog, "verilog", "Verilog", NALVO_GROUP("Writing verilog files..."), true, false,
     &newWriter<TargetFileWriteVerilog>},
    {kindHex, "hex", "HEX", NALVO_GROUP("Writing hex files..."), false, false, &newWriter<TargetWriteFileHex>},
    {kindMem, "mem", "MEM", NALVO_GROUP("Writing mem files..."), false, true, &newWriter<TargetWriteFileMem>},
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
