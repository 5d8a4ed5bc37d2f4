#include "CfgTree.h"

#include <gtest/gtest.h>

namespace {

QString str(const char* text)
{
    return QString::fromUtf8(text);
}

/// The text that stands in the tree, before any conversion.
QString raw(CfgTree& tree, const char* key)
{
    return tree.value(str(key), str("<no node>"));
}

TEST(CfgNode, IsEmptyAtFirst)
{
    CfgNode node;
    EXPECT_TRUE(node.name().isEmpty());
    EXPECT_TRUE(node.value().isEmpty());
    EXPECT_TRUE(node.attributes().isEmpty());
    EXPECT_FALSE(node.hasChild());
    EXPECT_TRUE(node.childs().isEmpty());
    EXPECT_EQ(node.child(str("a")), nullptr);
}

TEST(CfgNode, KeepsAttributesSortedByName)
{
    CfgNode node;
    node.setAttribute(str("b"), str("1"));
    node.setAttribute(str("a"), str("2"));
    node.setAttribute(str("b"), str("3"));
    EXPECT_EQ(node.attributes().keys(), QStringList({str("a"), str("b")}));
    EXPECT_EQ(node.attribute(str("b")), str("3"));
    EXPECT_TRUE(node.attribute(str("B")).isNull());
    node.removeAttribute(str("b"));
    EXPECT_TRUE(node.attribute(str("b")).isNull());
    EXPECT_EQ(node.attribute(str("a")), str("2"));
    node.removeAttributes();
    EXPECT_TRUE(node.attributes().isEmpty());
}

TEST(CfgNode, KeepsChildrenInOrderOfCreation)
{
    CfgNode node;
    CfgNode* z = node.addChild(str("z"));
    CfgNode* a = node.addChild(str("a"));
    EXPECT_EQ(node.childs(), QList<CfgNode*>({z, a}));
    EXPECT_TRUE(node.hasChild());
}

TEST(CfgNode, FindsTheFirstOfEqualNamesByExactCase)
{
    CfgNode node;
    CfgNode* first = node.addChild(str("a"));
    CfgNode* second = node.addChild(str("a"));
    EXPECT_NE(first, second);
    EXPECT_EQ(node.child(str("a")), first);
    EXPECT_EQ(node.child(str("A")), nullptr);
    node.removeChild(str("a"));
    EXPECT_EQ(node.child(str("a")), second);
}

TEST(CfgNode, RemovingWhatIsNoChildDoesNothing)
{
    CfgNode node;
    CfgNode other;
    node.addChild(str("a"));
    node.removeChild(&other);
    node.removeChild(static_cast<CfgNode*>(nullptr));
    node.removeChild(str("b"));
    EXPECT_EQ(node.childs().size(), 1);
    node.removeChild(node.child(str("a")));
    EXPECT_FALSE(node.hasChild());
}

TEST(CfgNode, ClearEmptiesEverything)
{
    CfgNode node;
    node.setName(str("n"));
    node.setValue(str("v"));
    node.setAttribute(str("a"), str("1"));
    node.addChild(str("c"))->addChild(str("d"));
    node.clear();
    EXPECT_TRUE(node.name().isEmpty());
    EXPECT_TRUE(node.value().isEmpty());
    EXPECT_TRUE(node.attributes().isEmpty());
    EXPECT_FALSE(node.hasChild());
}

QStringList* printed = nullptr;

void capture(QtMsgType, const QMessageLogContext&, const QString& text)
{
    printed->append(text);
}

TEST(CfgNode, PrintIndentsByFourBlanksALevel)
{
    CfgTree tree;
    tree.setValue(str("a/b"), str("1"));
    tree.setValue(str("c"), str("2"));
    QStringList lines;
    printed = &lines;
    const QtMessageHandler before = qInstallMessageHandler(capture);
    tree.print();
    qInstallMessageHandler(before);
    ASSERT_EQ(lines.size(), 4);
    EXPECT_TRUE(lines[1].startsWith(str("    a")));
    EXPECT_TRUE(lines[2].startsWith(str("        b")));
    EXPECT_TRUE(lines[2].contains(QLatin1Char('1')));
    EXPECT_TRUE(lines[3].startsWith(str("    c")));
}

TEST(CfgTree, GetterAnswersTheDefaultAndCreatesNothing)
{
    CfgTree tree;
    EXPECT_EQ(tree.value(str("a/b"), 7), 7);
    EXPECT_EQ(tree.value(str("a/b"), str("x")), str("x"));
    EXPECT_EQ(tree.value(str("a/b"), QColor(Qt::red)), QColor(Qt::red));
    EXPECT_EQ(tree.value(str("a/b"), QDate(2016, 9, 1)), QDate(2016, 9, 1));
    EXPECT_EQ(tree.value(str("a/b"), QStringList(str("x"))), QStringList(str("x")));
    EXPECT_EQ(tree.font(str("a/b"), QFont(str("Serif"), 33)).pointSize(), 33);
    EXPECT_EQ(tree.version(str("a/b")), -1);
    tree.removeNode(str("a/b"));
    EXPECT_FALSE(tree.hasNode(str("a")));
    EXPECT_FALSE(tree.getNode(QStringList())->hasChild());
}

TEST(CfgTree, SetterCreatesThePath)
{
    CfgTree tree;
    tree.setValue(str("a/b/c"), str("v"));
    EXPECT_TRUE(tree.hasNode(str("a/b")));
    EXPECT_EQ(tree.value(str("a/b"), str("default")), QString());
    EXPECT_EQ(tree.value(str("a/b/c"), str("default")), str("v"));
    EXPECT_FALSE(tree.hasNode(str("a/B")));
}

TEST(CfgTree, SetterReusesNodes)
{
    CfgTree tree;
    tree.setValue(str("a/b"), 1);
    tree.setValue(str("a/b"), 2);
    tree.setValue(str("a/c"), 3);
    EXPECT_EQ(tree.getNode(QStringList())->childs().size(), 1);
    EXPECT_EQ(tree.getNode(QStringList(str("a")))->childs().size(), 2);
    EXPECT_EQ(tree.value(str("a/b"), 0), 2);
}

TEST(CfgTree, DropsEmptyPartsOfKeys)
{
    CfgTree tree;
    tree.setValue(str("a//b/"), str("v"));
    EXPECT_EQ(tree.value(str("a/b"), QString()), str("v"));
    EXPECT_EQ(tree.getNodeList(str("//a///B/")), QStringList({str("a"), str("B")}));
    tree.setValue(str("/"), str("root"));
    EXPECT_EQ(tree.value(QString(), QString()), str("root"));
    EXPECT_EQ(tree.getNode(QStringList())->value(), str("root"));
    EXPECT_EQ(tree.addNode(QStringList()), tree.getNode(QStringList()));
    EXPECT_TRUE(tree.hasNode(QString()));
}

TEST(CfgTree, RemoveNodeTakesTheSubtree)
{
    CfgTree tree;
    tree.setValue(str("a/b/c"), 1);
    tree.setValue(str("a/d"), 2);
    tree.removeNode(str("a/x"));
    tree.removeNode(str("x/b"));
    tree.removeNode(str("/"));
    EXPECT_TRUE(tree.hasNode(str("a/b/c")));
    tree.removeNode(str("a/b"));
    EXPECT_FALSE(tree.hasNode(str("a/b/c")));
    EXPECT_FALSE(tree.hasNode(str("a/b")));
    EXPECT_TRUE(tree.hasNode(str("a/d")));
}

TEST(CfgTree, ClearEmptiesTheTree)
{
    CfgTree tree;
    tree.setValue(str("a/b"), 1);
    tree.setVersion(QString(), 3);
    tree.clear();
    EXPECT_FALSE(tree.hasNode(str("a")));
    EXPECT_EQ(tree.version(QString()), -1);
}

TEST(CfgTree, IntIsDecimalTextAndBadTextIsZero)
{
    CfgTree tree;
    tree.setValue(str("i"), -2147483647 - 1);
    EXPECT_EQ(raw(tree, "i"), str("-2147483648"));
    EXPECT_EQ(tree.value(str("i"), 5), -2147483647 - 1);
    for (const char* bad : {"no number", "", "0x10", "12 34", "99999999999"}) {
        tree.setValue(str("i"), str(bad));
        EXPECT_EQ(tree.value(str("i"), 5), 0) << bad;
    }
}

TEST(CfgTree, ColourIsRgbTextAndBadTextIsInvalid)
{
    CfgTree tree;
    tree.setValue(str("c"), QColor(0x17, 0x30, 0x49, 0x80));
    EXPECT_EQ(raw(tree, "c"), str("#173049"));
    EXPECT_EQ(tree.value(str("c"), QColor(Qt::red)), QColor(0x17, 0x30, 0x49));
    tree.setValue(str("c"), str("blue"));
    EXPECT_EQ(tree.value(str("c"), QColor(Qt::red)), QColor(Qt::blue));
    for (const char* bad : {"#12", "no colour", ""}) {
        tree.setValue(str("c"), str(bad));
        EXPECT_FALSE(tree.value(str("c"), QColor(Qt::red)).isValid()) << bad;
    }
}

TEST(CfgTree, DateIsIsoText)
{
    CfgTree tree;
    tree.setValue(str("d"), QDate(2016, 9, 1));
    EXPECT_EQ(raw(tree, "d"), str("2016-09-01"));
    EXPECT_EQ(tree.value(str("d"), QDate()), QDate(2016, 9, 1));
    tree.setValue(str("d"), str("2016-13-41"));
    EXPECT_FALSE(tree.value(str("d"), QDate(2000, 1, 1)).isValid());
}

TEST(CfgTree, FontIsItsTextAndBadTextIsTheDefault)
{
    CfgTree tree;
    QFont font(str("DejaVu Sans Mono"), 13, QFont::Bold, true);
    tree.setFont(str("f"), font);
    EXPECT_EQ(raw(tree, "f"), font.toString());
    EXPECT_EQ(tree.font(str("f"), QFont()), font);
    const QFont dflt(str("Serif"), 21);
    for (const char* bad : {"", " ", "Serif,12,13"}) {
        tree.setValue(str("f"), str(bad));
        EXPECT_EQ(tree.font(str("f"), dflt), dflt) << bad;
    }
}

struct ListCase
{
    QStringList list;
    const char* stored;
    QStringList readBack;
};

TEST(CfgTree, ListsAreEscapedAndJoined)
{
    const QList<ListCase> cases{
        {{str("a:b"), str("c&d")}, "a&#58;b:c&amp;d", {str("a:b"), str("c&d")}},
        {{str("&#58;")}, "&amp;#58;", {str("&#58;")}},
        {{str("&amp;")}, "&amp;amp;", {str("&amp;")}},
        {{str("a"), QString(), str("b")}, "a::b", {str("a"), str("b")}},
        {{QString()}, "", {}},
        {{}, "", {}},
        {{str("::"), str("/")}, "&#58;&#58;:/", {str("::"), str("/")}},
        {{str("ä\xF0\x9F\x98\x80")}, "ä\xF0\x9F\x98\x80", {str("ä\xF0\x9F\x98\x80")}},
    };
    for (const ListCase& c : cases) {
        CfgTree tree;
        tree.setValue(str("l"), c.list);
        EXPECT_EQ(raw(tree, "l"), str(c.stored));
        EXPECT_EQ(tree.value(str("l"), QStringList(str("default"))), c.readBack) << c.stored;
    }
}

TEST(CfgTree, AnEmptyListIsANullText)
{
    CfgTree tree;
    tree.setValue(str("l"), str("old"));
    tree.setValue(str("l"), QStringList());
    EXPECT_TRUE(raw(tree, "l").isNull());
    EXPECT_TRUE(tree.hasNode(str("l")));
}

TEST(CfgTree, VersionIsAnAttribute)
{
    CfgTree tree;
    tree.setValue(str("a"), 1);
    EXPECT_EQ(tree.version(str("a")), -1);
    EXPECT_EQ(tree.version(str("b")), -1);
    tree.setVersion(str("a"), 3);
    EXPECT_EQ(tree.version(str("a")), 3);
    EXPECT_EQ(tree.getNode(QStringList(str("a")))->attribute(str("version")), str("3"));
    tree.setVersion(str("new/node"), 4);
    EXPECT_EQ(tree.version(str("new/node")), 4);
    tree.getNode(QStringList(str("a")))->setAttribute(str("version"), str("three"));
    EXPECT_EQ(tree.version(str("a")), 0);
    tree.getNode(QStringList(str("a")))->setAttribute(str("version"), str(""));
    EXPECT_EQ(tree.version(str("a")), -1);
}

TEST(CfgTree, EncodingOfValuesIsNone)
{
    CfgTree tree;
    const QString text = str("a/b&c:d<\n");
    EXPECT_EQ(tree.encString(text), text);
    EXPECT_EQ(tree.decString(text), text);
    tree.setValue(str("s"), text);
    EXPECT_EQ(tree.getNode(QStringList(str("s")))->value(), text);
}

TEST(CfgTree, LongListsAndDeepPathsAreFine)
{
    CfgTree tree;
    QStringList list;
    for (int i = 0; i < 100000; ++i)
        list.append(str("file:%1").arg(i));
    tree.setValue(str("l"), list);
    EXPECT_EQ(tree.value(str("l"), QStringList()), list);

    QStringList path;
    for (int i = 0; i < 1000000; ++i)
        path.append(str("a"));
    tree.addNode(path)->setValue(str("deep"));
    EXPECT_EQ(tree.getNode(path)->value(), str("deep"));
    tree.removeNode(str("a"));
    tree.addNode(path);
}

} // namespace
