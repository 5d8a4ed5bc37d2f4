#include "SymbolsFixture.h"

#include <gtest/gtest.h>

using namespace nsModAsmFe;

namespace {

/// Each place as "file:line:column name kind", definitions with a star.
QStringList placesOf(const SymbolTable& table)
{
    static const char* const kinds[] = {"label", "constant", "namespace", "device", "file"};
    QStringList result;
    for (int file = 0; file < table.files.size(); ++file) {
        for (int symbol = 0; symbol < table.symbols().size(); ++symbol) {
            for (const sSymbolPlace& place : table.placesOf(symbol)) {
                if (place.file == file)
                    result.append(QString("%1:%2:%3 %4 %5%6")
                                      .arg(place.file)
                                      .arg(place.line)
                                      .arg(place.column)
                                      .arg(table.symbol(symbol).fullName(), kinds[table.symbol(symbol).kind],
                                           place.isDefinition ? "*" : ""));
            }
        }
    }
    return result;
}

TEST(SymbolTable, namesHaveTheirDefinitionsAndUses)
{
    Sources sources;
    sources.add("a.psm", "#EQU one, 1\n#EQU two, (one + one)\nstart: LOAD s0, one\n  ADD s0, two + one\nJUMP start\n");
    ASSERT_TRUE(sources.assemble());
    EXPECT_EQ(placesOf(sources.table()),
              QStringList({"0:0:5 one constant*", "0:1:11 one constant", "0:1:17 one constant", "0:2:16 one constant",
                           "0:3:16 one constant", "0:1:5 two constant*", "0:3:10 two constant", "0:2:0 start label*",
                           "0:4:5 start label"}));
}

TEST(SymbolTable, valuesAreThoseOfTheRun)
{
    Sources sources;
    sources.add("a.psm", "#EQU one, 0x11\n#EQU alias, one\nLOAD s0, alias\nhere: JUMP here\n");
    ASSERT_TRUE(sources.assemble());
    const SymbolTable table = sources.table();
    const sSymbol& alias = table.symbol(table.find(symbolConstant, "", "alias"));
    EXPECT_TRUE(alias.hasValue);
    EXPECT_EQ(alias.value, 0x11);
    EXPECT_EQ(alias.text, "one");
    const sSymbol& here = table.symbol(table.find(symbolLabel, "", "here"));
    EXPECT_TRUE(here.hasValue);
    EXPECT_EQ(here.value, 1);
    EXPECT_TRUE(table.isAssembled);
    EXPECT_EQ(table.processor, "Xilinx PicoBlaze 3");
}

TEST(SymbolTable, theSameNameInTwoNamespacesIsTwoSymbols)
{
    Sources sources;
    sources.add("a.psm", "#NAMESPACE x\nsame: JUMP same\n#ENDNAMESPACE\n#NAMESPACE y\nsame: JUMP same\nJUMP x::same\n"
                         "#ENDNAMESPACE\n");
    ASSERT_TRUE(sources.assemble());
    EXPECT_EQ(
        placesOf(sources.table()),
        QStringList({"0:0:11 x namespace*", "0:5:5 x namespace", "0:1:0 x::same label*", "0:1:11 x::same label",
                     "0:5:8 x::same label", "0:3:11 y namespace*", "0:4:0 y::same label*", "0:4:11 y::same label"}));
    EXPECT_EQ(sources.table().nameSpaceAt(0, 1), "x");
    EXPECT_EQ(sources.table().nameSpaceAt(0, 5), "y");
    EXPECT_EQ(sources.table().nameSpaceAt(0, 7), "y");
}

TEST(SymbolTable, stringsCommentsAndSkippedTextHoldNoNames)
{
    Sources sources;
    sources.add("a.psm", "#EQU one, 1\n#EQU text, \"one\"\n#IFDEF nothing\nLOAD s0, one\nlost: NOP\n#ELSE\n"
                         "LOAD s0, one ; one and one\n#ENDIF\nLOAD s1, text'LEN\n");
    sources.assemble();
    EXPECT_EQ(placesOf(sources.table()), QStringList({"0:0:5 one constant*", "0:6:9 one constant",
                                                      "0:1:5 text constant*", "0:8:9 text constant"}));
}

TEST(SymbolTable, caseCounts)
{
    Sources sources;
    sources.add("a.psm", "#EQU one, 1\n#EQU One, 2\nload s0, one\nLOAD s0, One\n");
    ASSERT_TRUE(sources.assemble());
    EXPECT_EQ(placesOf(sources.table()),
              QStringList({"0:0:5 one constant*", "0:2:9 one constant", "0:1:5 One constant*", "0:3:9 One constant"}));
}

TEST(SymbolTable, aReplacedConstantHasAllItsDefinitions)
{
    Sources sources;
    sources.config.behaviorEqu = AsmFeConfig::equWarn;
    sources.add("a.psm", "#EQU one, 1\n#EQU one, 2\nLOAD s0, one\n");
    ASSERT_TRUE(sources.assemble());
    EXPECT_EQ(placesOf(sources.table()),
              QStringList({"0:0:5 one constant*", "0:1:5 one constant*", "0:2:9 one constant"}));
}

TEST(SymbolTable, rangesAttributesAndParenthesesAreNotPartOfANameInIt)
{
    Sources sources;
    sources.add("a.psm", "#EQU v, 0x1234\n#EQU w, v'2BE\nLOAD s0, v[15:8]\nLOAD s0, (w)[7:0]\nl: LOAD s1, l[7:0]\n");
    sources.assemble();
    EXPECT_EQ(placesOf(sources.table()),
              QStringList({"0:0:5 v constant*", "0:1:8 v constant", "0:2:9 v constant", "0:1:5 w constant*",
                           "0:3:10 w constant", "0:4:0 l label*", "0:4:12 l label"}));
}

TEST(SymbolTable, devicesAndTheirTemplates)
{
    Sources sources;
    sources.add("a.psm", "#SET IODev::ram::en, true\n#SET IODev::ram::size, 4\n"
                         "#SET IODev::ram::vhdlTmplFile, \"t/mem.vhd\"\nNOP\n");
    sources.assemble();
    EXPECT_EQ(placesOf(sources.table()), QStringList({"0:0:5 IODev::ram device*", "0:1:5 IODev::ram device",
                                                      "0:2:5 IODev::ram device", "0:2:32 /none/t/mem.vhd file"}));
}

TEST(SymbolTable, aSourceWithErrorsHasItsOtherNames)
{
    Sources sources;
    sources.add("a.psm", "#NAMESPACE open\nlost: JUMP\nbad line : \"\nmissing: LOAD s0, nothing\n");
    sources.add("b.psm", "other: JUMP other\n");
    EXPECT_FALSE(sources.assemble());
    const SymbolTable table = sources.table();
    EXPECT_FALSE(table.isAssembled);
    EXPECT_GE(table.find(symbolLabel, "open", "lost"), 0);
    EXPECT_GE(table.find(symbolLabel, "open", "missing"), 0);
    // The namespace that nobody has ended ends with its source.
    EXPECT_GE(table.find(symbolLabel, "", "other"), 0);
}

TEST(SymbolTable, textThatWasEditedAfterTheRunIsRead)
{
    Sources sources;
    sources.add("a.psm", "LOAD s0, 1\nhere: JUMP here\n");
    ASSERT_TRUE(sources.assemble());
    sources.all()[0].text = "; ä and \xE2\x82\xAC\n\n  LOAD s0, 1\nnew: NOP\nhere: JUMP here\n";
    const SymbolTable table = sources.table();
    const sSymbolPlace* place = table.definitionOf(table.find(symbolLabel, "", "here"));
    ASSERT_NE(place, nullptr);
    EXPECT_EQ(place->line, 4);
    EXPECT_EQ(table.symbol(place->symbol).value, 1);
    EXPECT_FALSE(table.symbol(table.find(symbolLabel, "", "new")).hasValue);
}

TEST(SymbolTable, aColumnIsThatOfTheText)
{
    Sources sources;
    sources.add("a.psm",
                QString::fromUtf8("#EQU s, \"\xC3\xA4\"'UTF-8\nl: LOAD s0, s[0] ; \xF0\x9F\x98\x80\nJUMP l\n"));
    sources.assemble();
    const SymbolTable table = sources.table();
    for (int column = 12; column <= 13; ++column) {
        const sSymbolPlace* place = table.placeAt(0, 1, column);
        ASSERT_NE(place, nullptr);
        EXPECT_EQ(table.symbol(place->symbol).name, "s");
    }
    EXPECT_EQ(table.placeAt(0, 1, 14), nullptr);
    EXPECT_EQ(table.placeAt(0, 1, 4), nullptr);
    EXPECT_EQ(table.placeAt(0, 9, 0), nullptr);
    EXPECT_EQ(table.placeAt(7, 0, 0), nullptr);
}

TEST(SymbolTable, withoutAProcessorThereAreNamesToo)
{
    Sources sources("none");
    sources.add("a.psm", "start: JUMP start\n");
    EXPECT_FALSE(sources.assemble());
    EXPECT_EQ(placesOf(sources.table()), QStringList({"0:0:0 start label*", "0:0:12 start label"}));
}

} // namespace
