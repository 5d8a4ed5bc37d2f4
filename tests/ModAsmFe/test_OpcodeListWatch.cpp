// Who holds an instruction hears of its end.

#include "Opcode.h"
#include "OpcodeList.h"
#include "OpcodeListWatch.h"

#include <gtest/gtest.h>

#include <memory>

using nsModAsmFe::Opcode;
using nsModAsmFe::OpcodeList;
using nsModAsmFe::OpcodeListWatch;

TEST(OpcodeListWatch, HearsOfADeletionBeforeIt)
{
    OpcodeList list;
    list.append(new Opcode);
    list.first()->memAddr = 7;
    int seen = -1;
    OpcodeListWatch watch([&] { seen = list.first()->memAddr; });
    watch.watch(&list);
    list.clear();
    EXPECT_EQ(seen, 7);
}

TEST(OpcodeListWatch, HearsNothingAfterItsEnd)
{
    OpcodeList list;
    int calls = 0;
    {
        OpcodeListWatch watch([&] { ++calls; });
        watch.watch(&list);
        list.clear();
    }
    list.clear();
    EXPECT_EQ(calls, 1);
    OpcodeListWatch other([&] { ++calls; });
    other.watch(&list);
    other.watch(nullptr);
    list.clear();
    EXPECT_EQ(calls, 1);
}

TEST(OpcodeListWatch, OutlivesItsList)
{
    int calls = 0;
    OpcodeListWatch watch([&] { ++calls; });
    {
        OpcodeList list;
        watch.watch(&list);
    }
    EXPECT_EQ(calls, 1);
    OpcodeList other;
    watch.watch(&other);
    other.clear();
    EXPECT_EQ(calls, 2);
}
