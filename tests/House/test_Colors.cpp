#include "ColorScan.h"
#include "FixtureTree.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace nsHouse;

namespace {

/// Places that read a picture of the program past SchemeIcons: it would be the same in both schemes, and be read at
/// once.
QStringList picturesOfOneScheme(const SourceTree& tree)
{
    static const QRegularExpression direct(
        "\\bQ(Icon|Pixmap|Image)(\\s+\\w+)?\\s*[({]\\s*(QStringLiteral\\(|QLatin1String\\(|QString\\()?\":/");
    QStringList findings;
    for (const QString& file : tree.files("src", {"*.cpp", "*.h"})) {
        const QRegularExpressionMatch match = direct.match(tree.text(file));
        if (match.hasMatch())
            findings.append(file + ": " + match.captured());
    }
    return findings;
}

} // namespace

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

TEST(Colors, ofPicturesFollowTheScheme)
{
    EXPECT_EQ(picturesOfOneScheme(SourceTree(NALVO_SOURCE_DIR)).join('\n').toStdString(), "");
    FixtureTree tree;
    tree.write("src/A.cpp", "auto a = QIcon(\":/a.png\");\n");
    tree.write("src/B.cpp", "QPixmap b(\n    QStringLiteral(\":/b.png\"));\n");
    tree.write("src/C.cpp", "auto c = SchemeIcons::of(QStringLiteral(\":/c.png\")); QIcon d(path);\n");
    EXPECT_EQ(picturesOfOneScheme(SourceTree(tree.root())).size(), 2);
}
