#include "PrjFile.h"
#include "CfgTree.h"
#include "PrjTestSupport.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>

using nsModPrj::PrjFile;

namespace {

const char head[] = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";

std::string formatted(CfgTree& tree)
{
    return PrjFile::format(&tree, nullptr).toStdString();
}

bool parsed(CfgTree& tree, const std::string& text)
{
    return PrjFile::parse(&tree, QByteArray::fromStdString(text));
}

CfgNode* root(CfgTree& tree)
{
    return tree.getNode(QStringList());
}

// --- the text ---

TEST(PrjFile, TextOfATreeToTheByte)
{
    CfgTree tree;
    tree.setVersion(QString(), 1);
    root(tree)->setAttribute(str("lost"), str("1"));
    tree.setValue(str("PrjInfo/title"), str("A & B <\"!\">"));
    tree.setValue(str("PrjInfo/version"), str("0.1"));
    tree.setValue(str("PrjInfo/comment"), QString());
    tree.setValue(str("sources/srcFiles"), QStringList({str("src/a.psm"), str("b:c.psm")}));
    tree.setVersion(str("sources"), 2);
    tree.getNode({str("sources")})->setAttribute(str("a"), str("<\"&'>"));
    tree.setVersion(str("sources/srcFiles"), 7);
    tree.setValue(str("sources"), str("value of an inner node"));
    tree.setValue(str("deep/er/est"), str("ä"));
    tree.setValue(str("leaf"), 12);
    const std::string expected = std::string(head) + R"x(<project version="3">
    <PrjInfo>
        <title>A &amp;amp; B &amp;#60;&amp;#34;&amp;#33;&amp;#34;&amp;#62;</title>
        <version>0.1</version>
        <comment></comment>
    </PrjInfo>
    <sources a="&lt;&quot;&amp;'&gt;" version="2">
        <srcFiles>src&amp;#47;a.psm:b&amp;amp;#58;c.psm</srcFiles>
    </sources>
    <deep>
        <er>
            <est>ä</est>
        </er>
    </deep>
    <leaf>12</leaf>
</project>
)x";
    EXPECT_EQ(formatted(tree), expected);
}

TEST(PrjFile, TextOfAnEmptyTree)
{
    CfgTree tree;
    EXPECT_EQ(formatted(tree), std::string(head) + "<project version=\"3\"/>\n");
}

TEST(PrjFile, EscapesValuesAmpersandFirst)
{
    EXPECT_EQ(PrjFile::escape(str("&/<>\"!'&#47;")), str("&amp;&#47;&#60;&#62;&#34;&#33;'&amp;#47;"));
    EXPECT_EQ(PrjFile::unescape(str("&amp;&#47;&#60;&#62;&#34;&#33;'&amp;#47;")), str("&/<>\"!'&#47;"));
    EXPECT_EQ(PrjFile::unescape(str("&#48;&lt;&amp;amp;")), str("&#48;&lt;&amp;"));
}

TEST(PrjFile, ReadsATextByHand)
{
    CfgTree tree;
    ASSERT_TRUE(parsed(tree, "<project version=\"1\"><s q=\"2\"><k>a&amp;#47;b &amp;#33;</k><e/><blank>  \n </blank>"
                             "<k>second</k></s><t>only <b/> the last</t></project>"));
    EXPECT_EQ(tree.version(QString()), 1);
    EXPECT_EQ(tree.value(str("s/k"), QString()), str("a/b !"));
    EXPECT_EQ(tree.getNode({str("s")})->attribute(str("q")), str("2"));
    EXPECT_TRUE(tree.hasNode(str("s/e")));
    EXPECT_EQ(tree.value(str("s/blank"), str("x")), QString());
    EXPECT_EQ(tree.getNode({str("s")})->childs().size(), 4);
    EXPECT_EQ(tree.value(str("t"), QString()), str(" the last"));
}

TEST(PrjFile, ReadsTheProjectElementWhereverItStands)
{
    CfgTree tree;
    ASSERT_TRUE(parsed(tree, "<?xml version=\"1.0\"?><!-- c --><other><x>1</x><project><k>v</k></project></other>"));
    EXPECT_EQ(tree.value(str("k"), QString()), str("v"));
    EXPECT_FALSE(tree.hasNode(str("x")));
    EXPECT_EQ(tree.version(QString()), -1);
}

TEST(PrjFile, OnlyAttributesCountAsAttributes)
{
    const std::string signs(5000, '=');
    const std::string texts[] = {
        "<project><!-- " + signs + " --><k>v</k></project>",
        "<!-- it's " + signs + " > ' --><project><k>v</k></project>",
        "<project><x><![CDATA[<a " + signs + "]]></x><k>v</k></project>",
        "<?about " + signs + "?><project><k>v</k></project>",
        "<project><x>" + signs + "</x><k>v</k></project>",
        "<project><x y=\"" + signs + "\"><z/></x><k>v</k></project>",
    };
    for (const std::string& text : texts) {
        CfgTree tree;
        EXPECT_TRUE(parsed(tree, text)) << text.substr(0, 40);
        EXPECT_EQ(tree.value(str("k"), QString()), str("v")) << text.substr(0, 40);
    }
}

TEST(PrjFile, SpaceInFrontIsSkipped)
{
    for (const char* space : {"\n", "\r\n\r\n", " \t\n", "\xEF\xBB\xBF", "\xEF\xBB\xBF\n"}) {
        CfgTree tree;
        EXPECT_TRUE(parsed(tree, std::string(space) + head + "<project><k>v</k></project>"));
        EXPECT_EQ(tree.value(str("k"), QString()), str("v"));
    }
}

TEST(PrjFile, OtherRootElementsAreAnEmptyTree)
{
    for (const char* text : {"<other/>", "<Project><k>v</k></Project>", "<a><b><c>1</c></b></a>"}) {
        CfgTree tree;
        EXPECT_TRUE(parsed(tree, text)) << text;
        EXPECT_FALSE(root(tree)->hasChild()) << text;
    }
}

TEST(PrjFile, EntitiesDoNotSplitAValue)
{
    CfgTree tree;
    const std::string part = "x&amp;&lt;&#65;&gt;&quot;&apos;";
    std::string text = "<project><k>";
    for (int i = 0; i < 20000; ++i)
        text += part;
    ASSERT_TRUE(parsed(tree, text + "</k></project>"));
    EXPECT_EQ(tree.value(str("k"), QString()), str("x&<A>\"'").repeated(20000));
}

TEST(PrjFile, NamesWithPrefixesSurvive)
{
    CfgTree tree;
    const std::string text = std::string(head) + "<project version=\"3\">\n    <a:s a:q=\"1\" xmlns:a=\"urn:x\">\n"
                                                 "        <a:k>v</a:k>\n    </a:s>\n</project>\n";
    ASSERT_TRUE(parsed(tree, text));
    EXPECT_EQ(formatted(tree), text);
}

TEST(PrjFile, InnerNodesLoseTheirValueAndLeavesTheirAttributes)
{
    CfgTree tree;
    tree.setValue(str("a"), str("lost"));
    tree.setValue(str("a/b"), str("kept"));
    tree.setVersion(str("a"), 1);
    tree.setVersion(str("a/b"), 2);
    CfgTree back;
    ASSERT_TRUE(parsed(back, formatted(tree)));
    EXPECT_EQ(back.value(str("a"), str("x")), QString());
    EXPECT_EQ(back.value(str("a/b"), str("x")), str("kept"));
    EXPECT_EQ(back.version(str("a")), 1);
    EXPECT_EQ(back.version(str("a/b")), -1);
}

// --- round trips ---

/// A part of a random value, and what the file can carry of it.
struct Part
{
    QString written;
    QString readBack;
};

QList<Part> randomParts()
{
    QList<Part> parts;
    for (const char* text : {"&amp;",
                             "&#47;",
                             "&amp;#47;",
                             "&#33;",
                             "&lt;",
                             "<![CDATA[",
                             "]]>",
                             "<!--",
                             "-->",
                             "<?x?>",
                             "&#0;",
                             "</project>",
                             "&",
                             "/",
                             "<",
                             ">",
                             "\"",
                             "!",
                             "'",
                             ":",
                             ";",
                             "#",
                             " ",
                             "\t",
                             "\n",
                             "%",
                             "\\",
                             "a",
                             "47",
                             "ä€",
                             "\xF0\x9F\x98\x80",
                             "\xF0\x9F\xBF\xBE",
                             "\xEF\xBB\xBF",
                             "\xC2\x85",
                             "\xE2\x80\xA8",
                             "\x7f",
                             "\xEF\xBF\xBD",
                             "\xEE\x80\x80"})
        parts.append({str(text), str(text)});
    for (int c = 0; c < 0x20; ++c) {
        if (c != '\t' && c != '\n' && c != '\r')
            parts.append({QChar(c), QString()});
    }
    // Halves of a pair without the other half; the letter keeps two of them apart.
    for (int c : {0xd800, 0xdbff, 0xdc00, 0xdfff, 0xfffe, 0xffff})
        parts.append({QChar(c) + str("x"), str("x")});
    return parts;
}

TEST(PrjFile, RandomValuesComeBackWhole)
{
    QRandomGenerator random(20160901);
    const QList<Part> parts = randomParts();
    for (int round = 0; round < 5000; ++round) {
        QString value;
        QString expected;
        for (int i = random.bounded(12); i >= 0; --i) {
            const Part& part = parts.at(random.bounded(parts.size()));
            value += part.written;
            expected += part.readBack;
        }
        CfgTree tree;
        tree.setValue(str("s/k"), value);
        tree.getNode({str("s")})->setAttribute(str("q"), value);
        CfgTree back;
        ASSERT_TRUE(PrjFile::parse(&back, PrjFile::format(&tree, nullptr))) << value.toStdString();
        const bool blank = QRegExp(str("[ \\t\\n]*")).exactMatch(expected);
        EXPECT_EQ(back.value(str("s/k"), str("x")).toStdString(), blank ? std::string() : expected.toStdString());
        EXPECT_EQ(back.getNode({str("s")})->attribute(str("q")).toStdString(), expected.toStdString());
    }
}

TEST(PrjFile, LineEndsBecomeLineFeeds)
{
    CfgTree tree;
    tree.setValue(str("k"), str("a\r\nb\rc\nd"));
    CfgTree back;
    ASSERT_TRUE(parsed(back, formatted(tree)));
    EXPECT_EQ(back.value(str("k"), QString()), str("a\nb\nc\nd"));
}

TEST(PrjFile, RandomTreesComeBackWhole)
{
    QRandomGenerator random(7);
    for (int round = 0; round < 200; ++round) {
        CfgTree tree;
        for (int i = 0; i < 30; ++i) {
            QStringList path;
            for (int depth = random.bounded(5); depth >= 0; --depth)
                path.append(str("n%1").arg(random.bounded(4)));
            tree.setValue(path.join(QLatin1Char('/')), QString::number(random.generate()));
        }
        const std::string text = formatted(tree);
        CfgTree back;
        ASSERT_TRUE(parsed(back, text));
        EXPECT_EQ(formatted(back), text);
    }
}

TEST(PrjFile, NamesThatXmlCanNotCarryAreLeftOut)
{
    CfgTree tree;
    QStringList path{str("s"), str("1st")};
    tree.addNode(path)->setValue(str("v"));
    for (const char* name : {"a b", "<", "a>", "", "a=\"1\"", "a/", "\x01", "-a", "&amp;", "a><b"})
        root(tree)->addChild(str(name))->setValue(str("v"));
    root(tree)->addChild(str("größe"))->setValue(str("v"));
    root(tree)->addChild(str("_a-b.c:d"))->setValue(str("v"));
    tree.getNode({str("s")})->setAttribute(str("b d"), str("1"));
    QStringList dropped;
    const QByteArray text = PrjFile::format(&tree, &dropped);
    CfgTree back;
    ASSERT_TRUE(PrjFile::parse(&back, text)) << text.toStdString();
    EXPECT_EQ(dropped.size(), 12) << dropped.join(str(" | ")).toStdString();
    EXPECT_TRUE(dropped.contains(str("s/1st")));
    EXPECT_TRUE(dropped.contains(str("s@b d")));
    QStringList names;
    for (CfgNode* node : root(back)->childs())
        names.append(node->name());
    EXPECT_EQ(names, QStringList({str("s"), str("größe"), str("_a-b.c:d")}));
}

// --- bad input ---

TEST(PrjFile, TruncatedAtEveryByteIsNotWellFormed)
{
    CfgTree tree;
    tree.setValue(str("PrjInfo/title"), str("Tä/&\xF0\x9F\x98\x80"));
    tree.setValue(str("sources/srcFiles"), QStringList({str("a.psm"), str("b.psm")}));
    tree.setVersion(str("sources"), 2);
    const QByteArray text = PrjFile::format(&tree, nullptr);
    // The last line end may be missing.
    for (int length = 0; length < text.size() - 1; ++length) {
        CfgTree back;
        EXPECT_FALSE(PrjFile::parse(&back, text.left(length))) << length;
    }
    CfgTree back;
    EXPECT_TRUE(PrjFile::parse(&back, text.left(text.size() - 1)));
}

TEST(PrjFile, AnyByteChangedDoesNotCrash)
{
    CfgTree tree;
    tree.setValue(str("PrjInfo/title"), str("Tä/&"));
    tree.setVersion(str("PrjInfo"), 2);
    const QByteArray text = PrjFile::format(&tree, nullptr);
    QRandomGenerator random(3);
    int bad = 0;
    for (int round = 0; round < 5000; ++round) {
        QByteArray broken = text;
        for (int i = random.bounded(3); i >= 0; --i)
            broken[random.bounded(broken.size())] = static_cast<char>(random.bounded(256));
        CfgTree back;
        bad += PrjFile::parse(&back, broken) ? 0 : 1;
    }
    EXPECT_GT(bad, 1000);
    EXPECT_LT(bad, 5000);
}

struct BadText
{
    const char* name;
    std::string text;
};

TEST(PrjFile, TextsThatAreNotWellFormed)
{
    const BadText cases[] = {
        {"empty", ""},
        {"blanks", " \n"},
        {"plain text", "project"},
        {"binary", std::string("\x7f"
                               "ELF\x02\x01\x01\0\0\xff\xfe",
                               11)},
        {"bad UTF-8", "<project><k>\xff</k></project>"},
        {"rest behind the end", "<project/>rest"},
        {"two roots", "<project/><project/>"},
        {"crossed tags", "<project><a><b></a></b></project>"},
        {"attribute twice", "<project><a b=\"1\" b=\"2\"/></project>"},
        {"unknown entity", "<project><a>&nbsp;</a></project>"},
        {"control character", "<project><a>\x01</a></project>"},
    };
    for (const BadText& c : cases) {
        CfgTree tree;
        EXPECT_FALSE(parsed(tree, c.text)) << c.name;
    }
}

TEST(PrjFile, KeepsWhatCameBeforeTheError)
{
    CfgTree tree;
    EXPECT_FALSE(parsed(tree, "<project><a><b>1</b></a><c>"));
    EXPECT_EQ(tree.value(str("a/b"), 0), 1);
}

/// Texts that could keep a reader busy for hours: that it comes to an end is what counts. One that does not is ended by
/// the limit of the test program.
void expectEnd(const std::string& text)
{
    CfgTree tree;
    EXPECT_FALSE(parsed(tree, text));
}

std::string repeated(const std::string& part, int count)
{
    std::string result;
    result.reserve(part.size() * count);
    for (int i = 0; i < count; ++i)
        result += part;
    return result;
}

TEST(PrjFile, EntitiesThatExplode)
{
    std::string text = "<!DOCTYPE project [<!ENTITY e0 \"0123456789\">";
    for (int i = 1; i < 12; ++i) {
        const std::string before = "&e" + std::to_string(i - 1) + ";";
        text += "<!ENTITY e" + std::to_string(i) + " \"" + repeated(before, 10) + "\">";
    }
    expectEnd(text + "]><project><a>&e11;</a></project>");
    expectEnd("<!DOCTYPE project [<!ENTITY e \"&e;\">]><project><a>&e;</a></project>");
    expectEnd("<!DOCTYPE project [<!ENTITY e \"" + repeated("0123456789", 1000) + "\">]><project><a>" +
              repeated("&e;", 100000) + "</a></project>");
}

TEST(PrjFile, AttributesThatExplode)
{
    std::string many;
    for (int i = 0; i < 500000; ++i)
        many += " a" + std::to_string(i) + "=\"\"";
    expectEnd("<project><a" + many + "/></project>");
    expectEnd("<project><!-- ' --><a" + many + "/></project>");
    expectEnd("<project" + many + "/>");
    // What looks like a comment hides no tag: in the value of an entity, in an encoding with shifts or wide characters.
    expectEnd("<!DOCTYPE project [<!ENTITY e \"<!-- ><!--\">]><project><a" + many + "/></project>");
    expectEnd("<?xml version=\"1.0\" encoding=\"ISO-2022-JP\"?><project><v>\x1b$B<!--\x1b(B</v><a" + many +
              "/></project>");
    expectEnd(std::string("<project>\0</project>", 20));
    expectEnd("<project><!-- <a --><![CDATA[ ' ]]><a" + many + "/></project>");

    std::string list;
    for (int i = 0; i < 1000; ++i)
        list += "a" + std::to_string(i) + " CDATA \"\"";
    expectEnd("<!DOCTYPE project [<!ATTLIST k " + list + ">]><project>" + repeated("<k/>", 1000000) + "</project>");
    std::string entity;
    for (int i = 0; i < 5000; ++i)
        entity += "<!ENTITY e" + std::to_string(i) + " \"x\">";
    expectEnd("<!DOCTYPE project [" + entity + "]><project/>");
}

TEST(PrjFile, ManyElementsAndDeepNesting)
{
    expectEnd("<project>" + repeated("<a>", 1000000) + repeated("</a>", 1000000) + "</project>");
    expectEnd(repeated("<a>", 1000000));
    expectEnd("<project>" + repeated("<a/>", PrjFile::maxNodes + 1) + "</project>");
}

TEST(PrjFile, ManyElementsOutsideOfTheProjectElementAreSkipped)
{
    CfgTree tree;
    EXPECT_TRUE(parsed(tree, repeated("<a>", 1000000) + repeated("</a>", 1000000)));
    EXPECT_FALSE(root(tree)->hasChild());
}

TEST(PrjFile, DepthLimitIsTheSameForReadingAndWriting)
{
    CfgTree tree;
    QStringList path;
    for (int i = 0; i < PrjFile::maxDepth; ++i)
        path.append(str("a"));
    tree.addNode(path)->setValue(str("v"));
    QStringList dropped;
    CfgTree back;
    ASSERT_TRUE(PrjFile::parse(&back, PrjFile::format(&tree, &dropped)));
    EXPECT_TRUE(dropped.isEmpty());
    ASSERT_NE(back.getNode(path), nullptr);
    EXPECT_EQ(back.getNode(path)->value(), str("v"));

    path.append(str("b"));
    tree.addNode(path);
    CfgTree shorter;
    EXPECT_TRUE(PrjFile::parse(&shorter, PrjFile::format(&tree, &dropped)));
    EXPECT_EQ(dropped.size(), 1);
}

} // namespace
