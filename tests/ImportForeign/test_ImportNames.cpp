// Names that the result can not have, and what becomes of them.

#include "ForeignFixture.h"

#include "ImportNames.h"
#include "ProcTables.h"

namespace {

using namespace nsImport;

QString make(ImportNames* names, const QString& wanted, ImportNames::eUse_t use = ImportNames::eLabel)
{
    QString reason;
    const QString name = names->make(wanted, use, &reason);
    EXPECT_EQ(reason.isEmpty(), name == wanted) << wanted.toStdString();
    return name;
}

TEST(ImportNames, AllowedNamesStay)
{
    ImportNames names(nsProc::xpBlze3Table());
    for (const char* name : {"loop", "main", "_x", "x1", "b", "bit2", "A", "LOADx", "r1", "s10"})
        EXPECT_EQ(make(&names, name), name);
}

TEST(ImportNames, WordsOfTheLanguage)
{
    ImportNames names(nsProc::xpBlze6Table());
    EXPECT_EQ(make(&names, "ADD"), "ADD_label");
    EXPECT_EQ(make(&names, "Set", ImportNames::eConstant), "Set_const");
    EXPECT_EQ(make(&names, "comp", ImportNames::eRegister), "comp_reg");
    EXPECT_EQ(make(&names, "nz"), "nz_label");
    EXPECT_EQ(make(&names, "enable"), "enable_label");
    EXPECT_EQ(make(&names, "LOADRET"), "LOADRET_label");
    EXPECT_EQ(make(&names, "s3"), "s3_label");
    EXPECT_EQ(make(&names, "SF", ImportNames::eConstant), "SF_const");
    EXPECT_EQ(make(&names, "A", ImportNames::eConstant), "A_const");
    EXPECT_EQ(make(&names, "b1"), "b1_label");
    EXPECT_EQ(make(&names, "0x12", ImportNames::eConstant), "0x12_const");
}

TEST(ImportNames, NamesAreUniqueAlsoWithoutTheirCase)
{
    ImportNames names(nsProc::xpBlze3Table());
    EXPECT_EQ(make(&names, "loop"), "loop");
    EXPECT_EQ(make(&names, "Loop"), "Loop_2");
    EXPECT_EQ(make(&names, "LOOP"), "LOOP_3");
    EXPECT_EQ(make(&names, "LOOP", ImportNames::eConstant), "LOOP_const");
    EXPECT_EQ(make(&names, "loop", ImportNames::eConstant), "loop_const2");
}

TEST(ImportNames, CharactersThatANameCanNotHave)
{
    ImportNames names(nsProc::xpBlze3Table());
    EXPECT_EQ(make(&names, "a.b"), "a_b");
    EXPECT_EQ(make(&names, "a-b"), "a_b_2");
    EXPECT_EQ(make(&names, ".L1"), "_L1");
    EXPECT_EQ(make(&names, QString(QChar(0xe9))), "_");
}

using ImportNamesOfProgram = ForeignTest;

TEST_F(ImportNamesOfProgram, AreToldAndStillMeanTheSame)
{
    expectWords(Dialect::eKcpsm3,
                "CONSTANT COMP, 1\nCONSTANT loop, 2\nNAMEREG s3, RET\n"
                "Loop: LOAD RET, COMP\nLOOP: LOAD RET, loop\nSET: JUMP Loop\nJUMP LOOP\nJUMP SET\n",
                "00301 00302 34000 34001 34002");
    EXPECT_EQ(m_import->messages().count(infoImpRenamed), 5) << messages().toStdString();
    EXPECT_TRUE(messages().contains("\"COMP\" is now \"COMP_const\": a word of the language"));
    EXPECT_TRUE(messages().contains("\"Loop\" is now \"Loop_label\": \"loop\" differs by case alone"));
}

TEST_F(ImportNamesOfProgram, AConstantAndALabelOfOneName)
{
    expectWords(Dialect::eKcpsm3, "CONSTANT x, 5\nLOAD s0, 1\nx: LOAD s0, x\nJUMP x\n", "00001 00005 34001");
}

TEST_F(ImportNamesOfProgram, AMadeLabelAvoidsTheNamesOfTheProgram)
{
    expectWords(Dialect::eKcpsm3, "addr_200: JUMP 200\n", "34200 @200 00000");
    EXPECT_TRUE(source().contains("addr_200_2:"));
}

} // namespace
