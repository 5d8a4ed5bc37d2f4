#include "EditorMemPageAddrMap.h"

#include <gtest/gtest.h>

using nsModEditor::EditorMemPageAddrMap;

namespace {

TEST(EditorMemPageAddrMap, entriesOfAFileStandInTheOrderOfAdding)
{
    QStringList files = {"/a.psm", "/b.psm"};
    EditorMemPageAddrMap map(&files);
    EXPECT_TRUE(map.valid);
    EXPECT_TRUE(map.addItem(0, 3, 0x10));
    EXPECT_TRUE(map.addItem(1, 0, 0x20));
    EXPECT_TRUE(map.addItem(0, 5, 0x11));
    const EditorMemPageAddrMap::sItem_t* item = map.map("/a.psm");
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->lineNo, 3);
    EXPECT_EQ(item->memPageAddr, 0x10);
    ASSERT_NE(item->next, nullptr);
    EXPECT_EQ(item->next->lineNo, 5);
    EXPECT_EQ(item->next->next, nullptr);
}

TEST(EditorMemPageAddrMap, unknownAndEmptyFilesHaveNoList)
{
    QStringList files = {"/a.psm"};
    EditorMemPageAddrMap map(&files);
    EXPECT_EQ(map.map("/a.psm"), nullptr);
    EXPECT_EQ(map.map("/other.psm"), nullptr);
}

TEST(EditorMemPageAddrMap, fileNumberOutOfRangeAddsNothing)
{
    QStringList files = {"/a.psm"};
    EditorMemPageAddrMap map(&files);
    EXPECT_FALSE(map.addItem(1, 0, 0));
    EXPECT_FALSE(map.addItem(-1, 0, 0));
    EXPECT_EQ(map.map("/a.psm"), nullptr);
    QStringList none;
    EditorMemPageAddrMap empty(&none);
    EXPECT_FALSE(empty.addItem(0, 0, 0));
}

} // namespace
