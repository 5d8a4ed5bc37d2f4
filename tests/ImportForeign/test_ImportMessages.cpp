// Each message of the import is provoked, here or where it is named.

#include "ForeignFixture.h"

#include "ImportMsg.h"

#include <QSet>

namespace {

using namespace nsImport;

class ImportMessagesTest : public ForeignTest
{
};

TEST_F(ImportMessagesTest, everyMessageIsProvokedOrNamed)
{
    struct Case
    {
        const char* key;
        Dialect::eDialect_t dialect;
        const char* text;
    };
    const Case cases[] = {
        {"errImpIncludeMissing", Dialect::eKcpsm6, "INCLUDE \"none.psm\"\n"},
        {"errImpIncludeCycle", Dialect::eKcpsm6, "INCLUDE \"main.psm\"\n"},
        {"errImpIncludeOutside", Dialect::eKcpsm6, "INCLUDE \"/etc/passwd\"\n"},
        {"infoImpDialectChosen", Dialect::eKcpsm3, "LOAD s0, 1\n"},
        {"errImpSyntax", Dialect::eMico8, "movi r1, (1\n"},
        {"errImpUnknownWord", Dialect::eKcpsm3, "FOO\n"},
        {"errImpNoCounterpart", Dialect::eMico8, "nop\n.byte 1\n"},
        {"errImpOperandCount", Dialect::eKcpsm3, "LOAD s0\n"},
        {"errImpExpectRegister", Dialect::eKcpsm3, "LOAD 1, 2\n"},
        {"errImpExpectValue", Dialect::eMico8, "movi r1, r2\n"},
        {"errImpExpectTarget", Dialect::eKcpsm3, "JUMP s0\n"},
        {"errImpExpectWord", Dialect::eKcpsm3, "RETURNI MAYBE\n"},
        {"errImpUnknownName", Dialect::eKcpsm3, "LOAD s0, nothing\n"},
        {"warnImpNameIsNumber", Dialect::eKcpsm3, "CONSTANT AD, 1\nLOAD s0, AD\n"},
        {"infoImpNameCase", Dialect::ePblazide, "x: JUMP X\n"},
        {"errImpDuplicateName", Dialect::eKcpsm3, "x: LOAD s0, 1\nx: LOAD s0, 1\n"},
        {"errImpAmbiguousName", Dialect::eMico8, "movi r1, x\n.set x, 1\n.set x, 2\n"},
        {"errImpAmbiguousOrder", Dialect::eMico8, "movi r1, 1 + 1 << 2\n"},
        {"infoImpAfterEnd", Dialect::eMico8, "ret\n.end\nret\n"},
        {"errImpCircle", Dialect::eKcpsm3, "CONSTANT x, x\nLOAD s0, x\n"},
        {"errImpNumber", Dialect::eKcpsm6, "TABLE t#, [12]'b\nLOAD&RETURN s0, t#\n"},
        {"errImpTooLargeNumber", Dialect::eKcpsm3, "LOAD s0, 100\n"},
        {"errImpAddressRange", Dialect::eKcpsm3, "JUMP 400\n"},
        {"errImpAddressTwice", Dialect::eKcpsm3, "LOAD s0, 1\nADDRESS 0\nLOAD s0, 1\n"},
        {"errImpTooFar", Dialect::eMico8, "b 0x900\n"},
        {"errImpNoSuchWord", Dialect::eKcpsm6, "INST 3FFFF\n"},
        {"errImpNoInstructions", Dialect::eKcpsm3, "; nothing\n"},
        {"infoImpRenamed", Dialect::eKcpsm3, "COMP: LOAD s0, 1\n"},
        {"infoImpTargetMade", Dialect::eKcpsm3, "JUMP 3FF\n"},
        {"infoImpStartFilled", Dialect::eKcpsm3, "ADDRESS 1\nLOAD s0, 1\n"},
        {"infoImpReordered", Dialect::eKcpsm3, "ADDRESS 1\nLOAD s0, 1\nADDRESS 0\nLOAD s0, 1\n"},
        {"infoImpUnusedFilled", Dialect::eKcpsm6, "x: DEFAULT_JUMP x\nLOAD s0, 1\n"},
        {"infoImpIntVector", Dialect::eKcpsm6, "LOAD s0, 1\nADDRESS 3F0\nRETURNI ENABLE\n"},
        {"infoImpNumberForName", Dialect::eKcpsm6, "x: OUTPUTK x'lower, 1\n"},
        {"warnImpStamp", Dialect::eKcpsm6, "LOAD s0, timestamp_hours\n"},
        {"warnImpOutput", Dialect::ePblazide, "VHDL \"a\", \"b\", \"c\"\nRET\n"},
    };
    QSet<QString> provoked;
    for (const Case& example : cases) {
        import(example.dialect, example.text);
        EXPECT_TRUE(has(example.key)) << example.key << '\n' << messages().toStdString();
        provoked.insert(example.key);
    }
    // In test_Hostile.cpp, test_Sources.cpp and test_Kcpsm6.cpp.
    for (const char* key :
         {"errImpCannotRead", "errImpNotAFile", "errImpTooLarge", "errImpTooManyFiles", "errImpTooManyLines",
          "errImpBinary", "errImpLineTooLong", "errImpIncludeDepth", "infoImpIncludeCase", "errImpDialectUnknown",
          "errImpTooManyWords", "infoImpStamp", "errImpTooManyMessages", "infoImpTooManyNotes"})
        provoked.insert(key);
    // In tests/NalvoImport.
    for (const char* key : {"infoImpDialectGuessed", "errImpCannotWrite", "errImpExists", "errImpOriginal",
                            "errImpReference", "warnImpNoReference", "errImpNoInstruction"})
        provoked.insert(key);
    // Faults of the importer itself.
    provoked.insert("errImpWrongResult");
    provoked.insert("errImpRescue");
    for (int i = 0; importMsg(i) != nullptr; ++i)
        EXPECT_TRUE(provoked.contains(importMsg(i)->key)) << importMsg(i)->key;
    EXPECT_EQ(provoked.size(), eImportMsgCount);
}

TEST_F(ImportMessagesTest, ArgumentsAreNoPlaces)
{
    ImportMessages messages;
    messages.add(errImpCannotRead, {"%2", "%1"}, "file", 7);
    EXPECT_EQ(messages.all().first().text, "Can not read \"%2\": %1");
    EXPECT_EQ(messages.all().first().grade(), ModMsgHookIf::eMsgError);
    EXPECT_EQ(messages.errors(), 1);
    EXPECT_EQ(importMsg(eImportMsgCount), nullptr);
    EXPECT_EQ(importMsg(-1), nullptr);
}

TEST_F(ImportMessagesTest, EveryPrintableCharacterIsAByte)
{
    QByteArray text;
    QString expected;
    for (int c = 0x20; c < 0x7F; ++c) {
        const QByteArray character = QByteArray(1, char(c));
        const QByteArray name = "k" + QByteArray::number(c) + '_';
        text += "CONSTANT " + name + ", \"" + character + "\"\nLOAD s0, \"" + character + "\"\nOUTPUTK \"" + character +
                "\", 1\nLOAD s1, " + name + "\nOUTPUTK " + name + ", 2\nOUTPUT s0, " + name + "\nLOAD s1, ~" + name +
                '\n';
        const QString hex = QString("%1").arg(c, 2, 16, QChar('0')).toUpper();
        const QString inverted = QString("%1").arg(~c & 0xFF, 2, 16, QChar('0')).toUpper();
        expected += QString("010%1 2B%11 011%1 2B%12 2D0%1 011%2 ").replace("%1", hex).replace("%2", inverted);
    }
    expectWords(Dialect::eKcpsm6, text, expected.trimmed());
}

} // namespace
