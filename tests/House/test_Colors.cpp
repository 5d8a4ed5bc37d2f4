#include "ColorScan.h"
#include "FixtureTree.h"

#include <gtest/gtest.h>

using namespace nsHouse;

TEST(Colors, standInTheTableAlone)
{
    EXPECT_EQ(ColorScan(SourceTree(NALVO_SOURCE_DIR)).findings().join('\n').toStdString(), "");
}

TEST(Colors, eachWayToWriteOneIsFound)
{
    FixtureTree tree;
    tree.write("src/Widgets/ColorTable.h", "unsigned light = 0x123456; QColor a(0x123456);\n");
    tree.write("src/Mine.cpp",
               "QColor a(0x204398);\nauto b = QColor(Qt::red);\nQColor c{0x12, 0x34, 0x56};\n"
               "setPen(Qt::darkGray);\nauto d = QColor(\"#123\");\nsetStyleSheet(\"color: red;\");\n"
               "QColor e(12, 34, 56);\nfill(qRgb(1, 2, 3));\nauto f = QColor(QStringLiteral(\"red\"));\n");
    tree.write("src/Mine.css", "QLabel {\n    color: #1f2933;\n}\n");
    tree.write("src/tip.html", "<p style=\"color: #abc\">");
    const QStringList findings = ColorScan(SourceTree(tree.root())).findings();
    EXPECT_EQ(findings.size(), 11) << findings.join('\n').toStdString();
}

TEST(Colors, whatIsNoneIsNotFound)
{
    FixtureTree tree;
    tree.write("src/Mine.cpp",
               "// QColor a(0x204398), Qt::red\nQColor b = Colors::of(Colors::eText);\nQColor c(0, 0, 0, 0);\n"
               "fill(Qt::transparent);\n/* #123456\n   #abcdef */\nauto d = \"#EQU\";\nQColor e(color);\n"
               "auto page = \"pageid://asmFeMessages#errSyntax\";\n");
    EXPECT_EQ(ColorScan(SourceTree(tree.root())).findings().join('\n').toStdString(), "");
}
