// Look-ups of instructions, compared with a walk over the chain from its start.

#include "Opcode.h"
#include "OpcodeList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <random>
#include <vector>

using namespace nsModAsmFe;

namespace {

struct Place
{
    SrcReference srcRef;
    int memRange = -1;
    int pageAddr = -1;
    int memAddr = -1;
};

using Places = std::vector<Place>;
using Random = std::mt19937;

Opcode* walk(const OpcodeList& list, const std::function<bool(const Opcode*)>& hits)
{
    for (Opcode* opcode = list.first(); opcode != nullptr; opcode = opcode->next) {
        if (hits(opcode))
            return opcode;
    }
    return nullptr;
}

void fill(OpcodeList* list, const Places& places)
{
    for (const Place& place : places) {
        auto* opcode = new Opcode;
        opcode->srcRef = place.srcRef;
        opcode->memRange = place.memRange;
        opcode->pageAddr = place.pageAddr;
        opcode->memAddr = place.memAddr;
        list->append(opcode);
    }
}

/// Compares all look-ups for one pair of keys.
void compare(const OpcodeList& list, int a, int b)
{
    EXPECT_EQ(list.nextOfLineIndex(a), walk(list, [=](const Opcode* o) { return o->srcRef.absLineNo >= a; })) << a;
    EXPECT_EQ(
        list.nextOfSrcRef(a, b),
        walk(list,
             [=](const Opcode* o) { return o->srcRef.fileNo > a || (o->srcRef.fileNo == a && o->srcRef.lineNo >= b); }))
        << a << ' ' << b;
    EXPECT_EQ(list.opcodeOfAddr(a, b),
              walk(list, [=](const Opcode* o) { return o->pageAddr == a && o->memRange == b; }))
        << a << ' ' << b;
    EXPECT_EQ(list.opcodeOfAddr(a), walk(list, [=](const Opcode* o) { return o->pageAddr == a; })) << a;
    EXPECT_EQ(list.opcodeOfMemAddr(a), walk(list, [=](const Opcode* o) { return o->memAddr == a; })) << a;
}

/// Compares for the keys that occur, for their neighbours and for the ends of the number range.
void compareAll(const Places& places, Random* random)
{
    OpcodeList list;
    fill(&list, places);
    std::vector<int> keys = {-1,
                             0,
                             1,
                             2,
                             1024,
                             std::numeric_limits<int>::max(),
                             std::numeric_limits<int>::min(),
                             std::numeric_limits<int>::max() - 1};
    for (const Place& place : places) {
        for (const int key : {place.srcRef.absLineNo, place.srcRef.lineNo, place.srcRef.fileNo, place.pageAddr,
                              place.memAddr, place.memRange}) {
            keys.push_back(key);
            if (key < std::numeric_limits<int>::max())
                keys.push_back(key + 1);
        }
    }
    for (const Place& place : places) {
        compare(list, place.pageAddr, place.memRange);
        compare(list, place.srcRef.fileNo, place.srcRef.lineNo);
    }
    for (int i = 0; i < 300; ++i)
        compare(list, keys[(*random)() % keys.size()], keys[(*random)() % keys.size()]);
}

/// Places as a run makes them: positions ascend over the files, addresses ascend within the ranges.
Places programPlaces(Random* random, int count)
{
    Places places;
    SrcReference srcRef;
    int addr = 0;
    for (int i = 0; i < count; ++i) {
        if ((*random)() % 20 == 0) {
            ++srcRef.fileNo;
            srcRef.lineNo = 0;
        }
        if ((*random)() % 30 == 0)
            addr = int((*random)() % 50);
        const int range = int((*random)() % 4);
        places.push_back({srcRef, range, addr, range * 1024 + addr});
        ++addr;
        const int lines = 1 + int((*random)() % 3);
        srcRef.lineNo += lines;
        srcRef.absLineNo += lines;
    }
    return places;
}

/// Places without any order, many of them twice; the bound sets how wide the numbers are spread.
Places wildPlaces(Random* random, int count, int bound)
{
    std::uniform_int_distribution<int> number(-1, bound);
    Places places;
    for (int i = 0; i < count; ++i) {
        Place place;
        place.srcRef = {number(*random) % 4, number(*random), number(*random)};
        place.memRange = number(*random) % 1025;
        place.pageAddr = number(*random);
        place.memAddr = number(*random);
        places.push_back(place);
    }
    return places;
}

TEST(OpcodeLookup, emptyList)
{
    Random random(1);
    compareAll({}, &random);
}

TEST(OpcodeLookup, programs)
{
    for (unsigned int seed = 0; seed < 40; ++seed) {
        SCOPED_TRACE(seed);
        Random random(seed);
        compareAll(programPlaces(&random, int(random() % 200)), &random);
    }
}

TEST(OpcodeLookup, sameLinesTwice)
{
    for (unsigned int seed = 0; seed < 20; ++seed) {
        SCOPED_TRACE(seed);
        Random random(seed);
        Places places = programPlaces(&random, 50);
        for (Place& place : places) {
            place.srcRef.absLineNo /= 5;
            place.srcRef.lineNo /= 5;
        }
        compareAll(places, &random);
    }
}

TEST(OpcodeLookup, withoutOrder)
{
    for (unsigned int seed = 0; seed < 60; ++seed) {
        SCOPED_TRACE(seed);
        Random random(seed);
        const int bounds[] = {3, 60, 5000, 100000, std::numeric_limits<int>::max()};
        compareAll(wildPlaces(&random, int(random() % 120), bounds[seed % 5]), &random);
    }
}

TEST(OpcodeLookup, oneOutOfOrderAtTheEnd)
{
    Random random(7);
    Places places = programPlaces(&random, 100);
    places.push_back({{0, 1, 1}, 1, 0, 0});
    compareAll(places, &random);
    // Lines ascend here, files do not.
    places = {{{1, 5, 0}, 0, 0, 0}, {{0, 6, 1}, 0, 1, 1}, {{2, 7, 2}, 0, 2, 2}};
    compareAll(places, &random);
}

TEST(OpcodeLookup, hugeAddresses)
{
    Random random(3);
    const int max = std::numeric_limits<int>::max();
    compareAll({{{0, 0, 0}, 1, max, max},
                {{0, 1, 1}, max, max, 0},
                {{0, 2, 2}, max, 0, max - 1},
                {{0, 3, 3}, 0, max, max},
                {{max, max, max}, 1024, 5, 1 << 24}},
               &random);
}

TEST(OpcodeLookup, instructionsWithoutPlace)
{
    // An address that a directive pinned stands there before the ranges do.
    Random random(5);
    compareAll({{{0, 0, 0}, -1, -1, -1}, {{0, 1, 1}, -1, 5, -1}, {{0, 2, 2}, 1, 5, 5}, {{0, 3, 3}, 1, -1, 6}}, &random);
}

TEST(OpcodeLookup, firstHitCounts)
{
    OpcodeList list;
    fill(&list, {{{0, 0, 0}, 1, 7, 7}, {{0, 0, 0}, 1, 7, 7}, {{0, 0, 0}, 2, 7, 7}});
    Opcode* first = list.first();
    EXPECT_EQ(list.nextOfLineIndex(0), first);
    EXPECT_EQ(list.nextOfSrcRef(0, 0), first);
    EXPECT_EQ(list.opcodeOfAddr(7, 1), first);
    EXPECT_EQ(list.opcodeOfAddr(7), first);
    EXPECT_EQ(list.opcodeOfMemAddr(7), first);
    EXPECT_EQ(list.opcodeOfAddr(7, 2), first->next->next);
}

TEST(OpcodeLookup, behindTheLastInstructionIsNothing)
{
    OpcodeList list;
    fill(&list, {{{0, 0, 0}, 1, 0, 0}, {{1, 4, 9}, 1, 1, 1}});
    EXPECT_EQ(list.nextOfLineIndex(10), nullptr);
    EXPECT_EQ(list.nextOfSrcRef(1, 5), nullptr);
    EXPECT_EQ(list.nextOfSrcRef(2, 0), nullptr);
    EXPECT_EQ(list.nextOfSrcRef(0, 1), list.first()->next);
}

TEST(OpcodeLookup, seesWhatChangesWhenItIsTold)
{
    OpcodeList list;
    fill(&list, {{{0, 0, 0}, 1, 0, 0}, {{0, 1, 1}, 1, 1, 1}});
    Opcode* second = list.first()->next;
    EXPECT_EQ(list.opcodeOfMemAddr(1), second);
    second->memAddr = 9;
    second->pageAddr = 9;
    list.addressesChanged();
    EXPECT_EQ(list.opcodeOfMemAddr(1), nullptr);
    EXPECT_EQ(list.opcodeOfMemAddr(9), second);
    EXPECT_EQ(list.opcodeOfAddr(9, 1), second);
    auto* third = new Opcode;
    third->memAddr = 1;
    list.append(third);
    EXPECT_EQ(list.opcodeOfMemAddr(1), third);
    list.clear();
    EXPECT_EQ(list.opcodeOfMemAddr(9), nullptr);
    EXPECT_EQ(list.first(), nullptr);
    EXPECT_EQ(list.count(), 0);
}

TEST(OpcodeLookup, chainRunsBothWays)
{
    OpcodeList list;
    fill(&list, Places(1000));
    EXPECT_EQ(list.count(), 1000);
    int count = 0;
    const Opcode* last = nullptr;
    for (const Opcode* opcode = list.first(); opcode != nullptr; opcode = opcode->next) {
        EXPECT_EQ(opcode->prev, last);
        last = opcode;
        ++count;
    }
    EXPECT_EQ(count, 1000);
    EXPECT_TRUE(std::equal(list.begin(), list.end(), list.begin()));
    EXPECT_EQ(*(list.end() - 1), last);
}

} // namespace
