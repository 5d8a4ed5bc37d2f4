#include "NaviTag.h"
#include "NaviTagList.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QSet>

using namespace nsModSrcNavi;

namespace {

NaviTag* makeTag(const QString& title)
{
    auto* tag = new NaviTag;
    tag->title = title;
    return tag;
}

QStringList titles(const QList<NaviTag*>& tags)
{
    QStringList result;
    for (const NaviTag* tag : tags)
        result.append(tag->title);
    return result;
}

} // namespace

TEST(NaviTagList, keepsTheOrderOfTheDocument)
{
    NaviTagList list;
    EXPECT_TRUE(list.tagListDocument().isEmpty());
    for (const char* title : {"b", "a", "c", "a"})
        list.addTag(makeTag(title));
    EXPECT_EQ(titles(list.tagListDocument()), QStringList({"b", "a", "c", "a"}));
}

TEST(NaviTagList, sortsByTitlesInLowerCase)
{
    NaviTagList list;
    // In lower case "_" comes before all letters, in upper case after them.
    for (const char* title : {"beta", "Alpha", "_x", "Zeta", "gamma", "ALPHa2"})
        list.addTag(makeTag(title));
    EXPECT_EQ(titles(list.tagListAsc()), QStringList({"_x", "Alpha", "ALPHa2", "beta", "gamma", "Zeta"}));
    EXPECT_EQ(titles(list.tagListDesc()), QStringList({"Zeta", "gamma", "beta", "ALPHa2", "Alpha", "_x"}));
    EXPECT_EQ(titles(list.tagListDocument()), QStringList({"beta", "Alpha", "_x", "Zeta", "gamma", "ALPHa2"}));
}

TEST(NaviTagList, answersCopies)
{
    NaviTagList list;
    list.addTag(makeTag("a"));
    list.tagListDocument().clear();
    list.tagListAsc().clear();
    QList<NaviTag*> copy = list.tagListDesc();
    copy.clear();
    EXPECT_EQ(list.tagListDocument().size(), 1);
}

TEST(NaviTagList, equalTitlesAllStay)
{
    NaviTagList list;
    for (int i = 0; i < 100; ++i)
        list.addTag(makeTag(i % 2 == 0 ? "same" : "SAME"));
    const QList<NaviTag*> sorted = list.tagListAsc();
    EXPECT_EQ(sorted.size(), 100);
    EXPECT_EQ(QSet<NaviTag*>(sorted.begin(), sorted.end()).size(), 100);
}

TEST(NaviTagList, clearsAndIgnoresNull)
{
    NaviTagList list;
    list.addTag(nullptr);
    EXPECT_TRUE(list.tagListDocument().isEmpty());
    list.addTag(makeTag("a"));
    list.clear();
    EXPECT_TRUE(list.tagListDocument().isEmpty());
    EXPECT_TRUE(list.tagListAsc().isEmpty());
    list.clear();
    list.addTag(makeTag("b"));
    EXPECT_EQ(titles(list.tagListDocument()), QStringList({"b"}));
}
