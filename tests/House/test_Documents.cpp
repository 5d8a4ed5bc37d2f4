#include "Documents.h"
#include "FixtureTree.h"

#include <gtest/gtest.h>

using namespace nsHouse;

namespace {

class DocumentNames : public ::testing::TestWithParam<const char*>
{
};

std::string unknownIn(const QString& text)
{
    FixtureTree tree;
    tree.write("src/ModPrj/ModPrj.cpp", "// OldClass\nvoid ModPrj::openPrj() { }\nconst char* text = \"PicoBlaze\";\n");
    tree.write("src/ModPrj/If/PrjHook.h", "");
    tree.write("doc/README.md", "`PrjHook.h`");
    tree.write("ROOT.md", text);
    return Documents(SourceTree(tree.root())).unknownNames("ROOT.md").join('\n').toStdString();
}

} // namespace

TEST_P(DocumentNames, areThoseOfTheTree)
{
    static const SourceTree tree(NALVO_SOURCE_DIR);
    static const Documents documents(tree);
    ASSERT_FALSE(tree.text(GetParam()).isEmpty());
    EXPECT_EQ(documents.unknownNames(GetParam()).join('\n').toStdString(), "");
}

INSTANTIATE_TEST_SUITE_P(All, DocumentNames,
                         ::testing::Values("ARCHITECTURE.md", "CONTRIBUTING.md", "README.md", "bench/README.md"),
                         [](const ::testing::TestParamInfo<const char*>& one) {
                             return QString(one.param).remove(QRegExp("\\W")).toStdString();
                         });

TEST(Documents, whatTheTreeHas)
{
    EXPECT_EQ(
        unknownIn(
            "`ModPrj` and `ModPrj::openPrj()` in `src/ModPrj/ModPrj.cpp`, `ModPrj.cpp`, `src/ModPrj/*.cpp`, `If/`,\n"
            "for a PicoBlaze. `nalvo_module(NAME ModXxx)`, `AsmFe/target/hex`, `src/ModXxx/If/`, `setup...`\n\n"
            "    src/ModPrj/If/   the face\n"),
        "");
}

TEST(Documents, aFileThatIsGone)
{
    EXPECT_EQ(
        unknownIn("`src/ModPrj/Gone.cpp`, `Gone.h`, `src/ModGone/`, `Gone/`\n\n    src/Gone   nothing\n"),
        "ROOT.md: there is no src/ModPrj/Gone.cpp\nROOT.md: there is no Gone.h\nROOT.md: there is no src/ModGone/\n"
        "ROOT.md: there is no Gone/\nROOT.md: there is no src/Gone");
}

TEST(Documents, aClassOrAnOperationThatIsGone)
{
    EXPECT_EQ(unknownIn("`ModPrj::closePrj()`, `closeAll()` and the class OldClass\n"),
              "ROOT.md: the code has no ModPrj::closePrj\nROOT.md: the code has no closeAll\n"
              "ROOT.md: the code has no OldClass");
}
