// Every form of the dialects, converted by the filters that ship, and assembled.

#include "DialectCase.h"

#include "AsmText.h"
#include "ImportFilter.h"
#include "ImportFilterIf.h"
#include "Opcode.h"
#include "OpcodeList.h"

#include <gtest/gtest.h>

using nsModImport::ImportFilter;
using nsModImport::ImportFilterIf;

namespace {

const char* const filterDir = NALVO_SOURCE_DIR "/Common/asmImportFilter";

QString processorOf(const QString& filter)
{
    if (filter == "KCPSM6")
        return "Xilinx PicoBlaze 6";
    return filter.startsWith("Mico8") ? "Lattice Mico8 v3.x" : "Xilinx PicoBlaze 3";
}

class Dialects : public ::testing::TestWithParam<DialectCase>
{
protected:
    void convert(ImportFilterIf* filter)
    {
        filter->setupRules();
        for (QString line : QString(GetParam().source).split('\n')) {
            isStopped = !filter->convertLine(&line) || isStopped;
            converted.append(line);
        }
        filter->clearRules();
    }
    /// The converted lines behind an instruction at address 0.
    void assemble()
    {
        text = std::make_unique<AsmText>(processorOf(GetParam().filter));
        text->config.behaviorChkIntVector = nsModAsmFe::AsmFeConfig::intVectorSilent;
        // Room for addresses of twelve bits.
        const QByteArray end = isSix() ? "\n#SET INSTMEM::PAGESIZE, 4096\nNOP\n" : "\nNOP\n";
        isAssembled = text->assemble("here: NOP\n" + converted.join('\n').toUtf8() + end);
    }
    static bool isSix() { return qstrcmp(GetParam().filter, "KCPSM6") == 0; }
    QList<unsigned> words()
    {
        QList<unsigned> result;
        for (nsModAsmFe::Opcode* opcode : text->program().opcodes) {
            if (opcode->srcRef.lineNo > 0 && opcode->srcRef.lineNo <= converted.size())
                result.append(unsigned(opcode->instWord));
        }
        return result;
    }

    QStringList converted;
    bool isStopped = false;
    bool isAssembled = false;
    std::unique_ptr<AsmText> text;
};

} // namespace

TEST_P(Dialects, areConvertedToTheSameWordsOrRefused)
{
    ImportFilter filters(filterDir);
    ImportFilterIf* filter = filters.filter(GetParam().filter);
    ASSERT_NE(filter, nullptr);
    convert(filter);
    EXPECT_EQ(converted, QString(GetParam().converted).split('\n')) << qPrintable(converted.join('\n'));
    const QString refusal = GetParam().refusal;
    EXPECT_EQ(isStopped, refusal == "stop");
    if (isStopped)
        return;
    assemble();
    const QString complaints = text->complaints().join('\n');
    if (refusal.isEmpty()) {
        EXPECT_TRUE(isAssembled) << qPrintable(complaints);
        EXPECT_EQ(words(), GetParam().words) << qPrintable(complaints);
        return;
    }
    EXPECT_TRUE(complaints.contains(refusal)) << qPrintable(complaints);
    EXPECT_TRUE(!isAssembled || refusal.startsWith("warn"));
}

void PrintTo(const DialectCase& form, std::ostream* out)
{
    *out << form.filter << ": " << form.source;
}

INSTANTIATE_TEST_SUITE_P(Kcpsm3, Dialects, ::testing::ValuesIn(picoBlaze3Cases()));
INSTANTIATE_TEST_SUITE_P(Kcpsm6, Dialects, ::testing::ValuesIn(picoBlaze6Cases()));
INSTANTIATE_TEST_SUITE_P(PBlazIde, Dialects, ::testing::ValuesIn(pBlazIdeCases()));
INSTANTIATE_TEST_SUITE_P(Mico8, Dialects, ::testing::ValuesIn(mico8Cases()));

TEST(ImportFilters, thatShipAreFive)
{
    ImportFilter filters(filterDir);
    EXPECT_EQ(filters.filterNames(),
              QStringList({"KCPSM3", "KCPSM6", "Mico8 (GNU assembler)", "Mico8 (vendor's assembler)", "pBlazIDE"}));
    for (const QString& name : filters.filterNames())
        EXPECT_FALSE(filters.filter(name)->description().isEmpty()) << qPrintable(name);
}
