#include "Borders.h"
#include "FixtureTree.h"

#include <gtest/gtest.h>

using namespace nsHouse;

namespace {

const SourceTree& nalvo()
{
    static const SourceTree tree(NALVO_SOURCE_DIR);
    return tree;
}

std::string joined(const QStringList& findings)
{
    return findings.join('\n').toStdString();
}

/// Two modules, two libraries of the ground floor and their documents, without a fault.
class BordersFixture : public ::testing::Test
{
protected:
    void SetUp() override
    {
        m_tree.write("src/Base/CMakeLists.txt", "nalvo_core(NAME NalvoBase)\n");
        m_tree.write("src/Base/SafeFile.h", "#include <QString>\n#include <vector>\n");
        m_tree.write("src/Base/ModMsgHookIf.h", "");
        m_tree.write("src/Asm/CMakeLists.txt", "nalvo_core(NAME NalvoAsm USES NalvoBase)\n");
        m_tree.write("src/Asm/Opcode.h", "#include \"SafeFile.h\"\n");
        m_tree.write("src/ModMsg/If/CMakeLists.txt", "nalvo_interface(NAME ModMsg)\n");
        m_tree.write("src/ModMsg/If/MsgGroup.h", "");
        m_tree.write("src/ModMsg/CMakeLists.txt", "nalvo_module(NAME ModMsg USES ModPrj)\n");
        m_tree.write("src/ModMsg/ModMsg.cpp", "#include \"MsgGroup.h\"\n#include \"PrjHook.h\"\n");
        m_tree.write("src/ModPrj/If/CMakeLists.txt", "nalvo_interface(NAME ModPrj)\n");
        m_tree.write("src/ModPrj/If/PrjHook.h", "");
        m_tree.write("src/ModPrj/CMakeLists.txt", "nalvo_module(NAME ModPrj CORES NalvoAsm)\n");
        m_tree.write("src/ModPrj/ModPrj.cpp", "#include \"Opcode.h\"\n#include \"SafeFile.h\"\n");
        m_tree.write("src/Nalvo.cpp", "f(new nsModMsg::ModMsg(this));\nf(new nsModPrj::ModPrj(this));\n");
        m_tree.write("cmake/NalvoModule.cmake", "set(NALVO_MODULES ModMsg\n  ModPrj)\n");
        m_tree.write("ARCHITECTURE.md", "| module | purpose | serves | uses | owns |\n|---|---|---|---|---|\n"
                                        "| ModMsg | messages | ModMsgHookIf | Prj | the view |\n"
                                        "| ModPrj | the project | ModPrjHookIf | | the tree |\n");
    }

    Borders borders() const { return Borders(SourceTree(m_tree.root()), NALVO_QT_CORE_HEADERS); }

    FixtureTree m_tree;
};

} // namespace

TEST(Borders, everyModuleNamesWhatItIncludes)
{
    EXPECT_EQ(joined(Borders(nalvo(), NALVO_QT_CORE_HEADERS).declaredUses()), "");
}

TEST(Borders, theDocumentNamesWhatTheModulesName)
{
    EXPECT_EQ(joined(Borders(nalvo(), NALVO_QT_CORE_HEADERS).documentedUses()), "");
}

TEST(Borders, theGroundFloorHasNoWindow)
{
    EXPECT_EQ(joined(Borders(nalvo(), NALVO_QT_CORE_HEADERS).groundFloor()), "");
}

TEST(Borders, everyHeaderHasANameOfItsOwn)
{
    EXPECT_EQ(joined(Borders(nalvo(), NALVO_QT_CORE_HEADERS).doubleNames()), "");
}

TEST(Borders, theListOfModulesIsThatOfTheWindow)
{
    EXPECT_EQ(joined(Borders(nalvo(), NALVO_QT_CORE_HEADERS).moduleList()), "");
}

TEST_F(BordersFixture, aTreeWithoutFaultHasNoFindings)
{
    EXPECT_EQ(joined(borders().declaredUses()), "");
    EXPECT_EQ(joined(borders().documentedUses()), "");
    EXPECT_EQ(joined(borders().groundFloor()), "");
    EXPECT_EQ(joined(borders().doubleNames()), "");
    EXPECT_EQ(joined(borders().moduleList()), "");
}

TEST_F(BordersFixture, aFaceThatIsIncludedButNotNamed)
{
    m_tree.write("src/ModPrj/ModPrj.cpp", "#include \"Opcode.h\"\n#  include \"MsgGroup.h\"\n");
    EXPECT_EQ(joined(borders().declaredUses()), "ModPrj: USES does not name ModMsg, whose face it includes");
}

TEST_F(BordersFixture, aFaceThatStandsOnTheGroundFloor)
{
    m_tree.write("src/ModPrj/ModPrj.cpp", "#include \"Opcode.h\"\n#include \"ModMsgHookIf.h\"\n");
    EXPECT_EQ(joined(borders().declaredUses()), "ModPrj: USES does not name ModMsg, whose face it includes");
}

TEST_F(BordersFixture, aFaceThatIsNamedWithoutNeed)
{
    m_tree.write("src/ModPrj/CMakeLists.txt", "nalvo_module(NAME ModPrj USES ModMsg\n             CORES NalvoAsm)\n");
    EXPECT_EQ(joined(borders().declaredUses()), "ModPrj: USES names ModMsg without need");
}

TEST_F(BordersFixture, aLibraryThatIsIncludedButNotNamed)
{
    m_tree.write("src/ModMsg/If/MsgGroup.h", "#include \"Opcode.h\"\n");
    EXPECT_EQ(joined(borders().declaredUses()), "ModMsg/If: CORES does not name NalvoAsm, whose headers it includes");
}

TEST_F(BordersFixture, aDocumentThatDisagrees)
{
    m_tree.write("ARCHITECTURE.md", "| ModPrj | the project | ModPrjHookIf | Msg | the tree |\n"
                                    "| ModHlp | help | ModHlpHookIf | | |\n");
    EXPECT_EQ(joined(borders().documentedUses()),
              "ModMsg: not in the table of ARCHITECTURE.md\n"
              "ModPrj: ARCHITECTURE.md names ModMsg without need\n"
              "ModHlp: in the table of ARCHITECTURE.md, but there is no such module");
}

TEST_F(BordersFixture, aRowThatLacksAHook)
{
    m_tree.write("ARCHITECTURE.md", "| ModMsg | messages | ModMsgHookIf | | the view |\n| ModPrj | p | | | |\n");
    EXPECT_EQ(joined(borders().documentedUses()), "ModMsg: ARCHITECTURE.md does not name ModPrj, which USES names");
}

TEST_F(BordersFixture, aWidgetOnTheGroundFloor)
{
    m_tree.write("src/Asm/EquList.cpp", "#include \"SafeFile.h\"\n#include <QtWidgets/QWidget>\n#include <QList>\n");
    EXPECT_EQ(joined(borders().groundFloor()), "src/Asm/EquList.cpp includes QWidget, which is not of Qt Core");
}

TEST_F(BordersFixture, aModuleOnTheGroundFloor)
{
    m_tree.write("src/Asm/EquList.cpp", "#include \"MsgGroup.h\"\n");
    EXPECT_EQ(joined(borders().groundFloor()),
              "src/Asm/EquList.cpp includes src/ModMsg/If/MsgGroup.h of the upper floor");
}

TEST_F(BordersFixture, aLibraryAboveOnTheGroundFloor)
{
    m_tree.write("src/Base/SafeFile.cpp", "#include \"Opcode.h\"\n");
    EXPECT_EQ(joined(borders().groundFloor()), "NalvoBase: USES does not name NalvoAsm, whose headers it includes");
}

TEST_F(BordersFixture, twoHeadersOfOneName)
{
    m_tree.write("src/ModPrj/MsgGroup.h", "");
    EXPECT_EQ(joined(borders().doubleNames()), "MsgGroup.h: src/ModMsg/If/MsgGroup.h, src/ModPrj/MsgGroup.h");
}

TEST_F(BordersFixture, aModuleThatIsNotInTheList)
{
    m_tree.write("cmake/NalvoModule.cmake", "set(NALVO_MODULES ModMsg)\n");
    EXPECT_EQ(joined(borders().moduleList()),
              "src/Nalvo.cpp: NALVO_MODULES does not name ModPrj, which the window creates\n"
              "src: NALVO_MODULES does not name ModPrj, which has a folder");
}
