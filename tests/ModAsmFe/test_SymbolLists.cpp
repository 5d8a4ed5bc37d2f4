// Lists of labels, constants, parameters and memory ranges.

#include "QtPrinters.h"

#include "EquList.h"
#include "LabelList.h"
#include "MemRangeList.h"
#include "OrgList.h"
#include "SetList.h"

#include <gtest/gtest.h>

#include <random>

using namespace nsModAsmFe;

namespace {

Set* addSet(SetList* list, const QString& nameSpace, const QString& name)
{
    auto* set = new Set;
    set->nameSpace = nameSpace;
    set->name = name;
    set->nameSpaceUpper = nameSpace.toUpper();
    set->nameUpper = name.toUpper();
    list->append(set);
    return set;
}

Label* addLabel(LabelList* list, const QString& nameSpace, const QString& name)
{
    auto* label = new Label;
    label->nameSpace = nameSpace;
    label->name = name;
    list->append(label);
    return label;
}

Equ* addEqu(EquList* list, const QString& nameSpace, const QString& name)
{
    auto* equ = new Equ;
    equ->nameSpace = nameSpace;
    equ->name = name;
    list->append(equ);
    return equ;
}

TEST(SetListTest, nameSpaceWithCaseNameWithout)
{
    SetList list;
    Set* size = addSet(&list, "IODEV::rom", "Size");
    EXPECT_EQ(list.find("IODEV::rom", "SIZE"), size);
    EXPECT_TRUE(list.contains("IODEV::rom", "SIZE"));
    EXPECT_EQ(list.find("IODEV::ROM", "SIZE"), nullptr);
    EXPECT_FALSE(list.contains("iodev::rom", "SIZE"));
    // The caller hands in the upper-cased name.
    EXPECT_EQ(list.find("IODEV::rom", "Size"), nullptr);
    EXPECT_EQ(list.find("", "SIZE"), nullptr);
    EXPECT_EQ(list.find("IODEV", "rom::SIZE"), nullptr);
}

TEST(SetListTest, firstOfSeveralCounts)
{
    SetList list;
    Set* first = addSet(&list, "a", "VALUE");
    Set* second = addSet(&list, "a", "value");
    Set* other = addSet(&list, "A", "VALUE");
    EXPECT_EQ(list.find("a", "VALUE"), first);
    EXPECT_EQ(list.values("a"), QVector<Set*>({first, second}));
    EXPECT_EQ(list.values("A"), QVector<Set*>({other}));
    EXPECT_TRUE(list.values("b").isEmpty());
    EXPECT_EQ(list.first(), first);
    EXPECT_EQ(first->next, second);
    EXPECT_EQ(second->prev, first);
    EXPECT_EQ(other->next, nullptr);
    list.clear();
    EXPECT_EQ(list.first(), nullptr);
    EXPECT_FALSE(list.contains("a", "VALUE"));
    EXPECT_TRUE(list.values("a").isEmpty());
}

TEST(LabelListTest, namesWithNameSpaces)
{
    LabelList list;
    Label* top = addLabel(&list, "", "start");
    Label* inner = addLabel(&list, "a::b", "start");
    EXPECT_EQ(list.find("", "start"), top);
    EXPECT_EQ(list.find("a::b", "start"), inner);
    EXPECT_FALSE(list.contains("a", "start"));
    EXPECT_FALSE(list.contains("", "Start"));
    EXPECT_FALSE(list.contains("a", "b::start"));
    EXPECT_EQ(list.nameList(), QStringList({"start", "a::b::start"}));
    list.clear();
    EXPECT_TRUE(list.nameList().isEmpty());
    EXPECT_FALSE(list.contains("", "start"));
}

TEST(EquListTest, namesWithNameSpaces)
{
    EquList list;
    Equ* top = addEqu(&list, "", "x");
    Equ* inner = addEqu(&list, "ns", "y");
    EXPECT_EQ(list.find("", "x"), top);
    EXPECT_EQ(list.find("ns", "y"), inner);
    EXPECT_FALSE(list.contains("", "y"));
    EXPECT_TRUE(list.containsName("y"));
    EXPECT_TRUE(list.containsName("x"));
    EXPECT_FALSE(list.containsName("X"));
    EXPECT_FALSE(list.containsName("ns::y"));
    EXPECT_EQ(list.nameList(), QStringList({"x", "ns::y"}));
    EXPECT_EQ(inner->prev, top);
    EXPECT_EQ(top->next, inner);
    list.clear();
    EXPECT_EQ(list.first(), nullptr);
    EXPECT_FALSE(list.containsName("y"));
}

TEST(EquListTest, foundInAnyOrder)
{
    // A look-up must not depend on the one before it.
    EquList list;
    QList<Equ*> equs;
    for (int i = 0; i < 500; ++i)
        equs.append(addEqu(&list, i % 3 == 0 ? "" : QString("n%1").arg(i % 3), QString("e%1").arg(i)));
    std::mt19937 random(11);
    for (int i = 0; i < 5000; ++i) {
        const Equ* equ = equs.at(int(random() % 500));
        EXPECT_TRUE(list.contains(equ->nameSpace, equ->name));
        const Equ* other = equs.at(int(random() % 500));
        EXPECT_EQ(list.find(other->nameSpace, other->name), other);
        EXPECT_EQ(list.find("nowhere", other->name), nullptr);
        EXPECT_EQ(list.find(equ->nameSpace, equ->name), equ);
    }
}

TEST(EquListTest, firstOfOneNameCounts)
{
    EquList list;
    Equ* first = addEqu(&list, "", "x");
    addEqu(&list, "", "x");
    EXPECT_EQ(list.find("", "x"), first);
    EXPECT_EQ(list.nameList(), QStringList({"x", "x"}));
}

TEST(OrgListTest, keepsTheOrder)
{
    OrgList list;
    EXPECT_EQ(list.first(), nullptr);
    auto* first = new Org;
    auto* second = new Org;
    list.append(first);
    list.append(second);
    EXPECT_EQ(list.first(), first);
    EXPECT_EQ(first->next, second);
    EXPECT_EQ(second->next, nullptr);
    list.clear();
    EXPECT_EQ(list.first(), nullptr);
    list.append(new Org);
    EXPECT_NE(list.first(), nullptr);
}

MemRange* addRange(MemRangeList* list, int number, int opcodes)
{
    auto* range = new MemRange;
    range->number = number;
    range->opcodeCount = opcodes;
    list->append(range);
    return range;
}

TEST(MemRangeListTest, rangesInPieces)
{
    MemRangeList list;
    EXPECT_EQ(list.first(), nullptr);
    EXPECT_FALSE(list.contains(0));
    MemRange* shared = addRange(&list, 0, 4);
    MemRange* page = addRange(&list, 1, 10);
    MemRange* again = addRange(&list, 0, 3);
    EXPECT_EQ(list.first(), shared);
    EXPECT_EQ(shared->next, page);
    EXPECT_EQ(page->next, again);
    EXPECT_EQ(again->next, nullptr);
    EXPECT_EQ(list.find(0), shared);
    EXPECT_EQ(list.find(1), page);
    EXPECT_EQ(list.find(2), nullptr);
    EXPECT_TRUE(list.contains(1));
    EXPECT_FALSE(list.contains(-1));
    EXPECT_EQ(list.opcodeCount(0), 7);
    EXPECT_EQ(list.opcodeCount(1), 10);
    EXPECT_EQ(list.opcodeCount(5), 0);
    list.clear();
    EXPECT_FALSE(list.contains(0));
    EXPECT_EQ(list.opcodeCount(0), 0);
}

TEST(MemRangeListTest, walksThePiecesOfARange)
{
    std::vector<Opcode> opcodes(6);
    for (size_t i = 0; i + 1 < opcodes.size(); ++i)
        opcodes[i].next = &opcodes[i + 1];
    MemRangeList list;
    addRange(&list, 1, 2)->firstOpcode = &opcodes[0];
    addRange(&list, 2, 2)->firstOpcode = &opcodes[2];
    addRange(&list, 1, 2)->firstOpcode = &opcodes[4];
    addRange(&list, 1, 0);
    std::vector<const Opcode*> seen;
    EXPECT_TRUE(list.forEachOpcode(1, [&](Opcode* opcode) {
        seen.push_back(opcode);
        return true;
    }));
    EXPECT_EQ(seen, std::vector<const Opcode*>({&opcodes[0], &opcodes[1], &opcodes[4], &opcodes[5]}));
    seen.clear();
    EXPECT_FALSE(list.forEachOpcode(1, [&](Opcode* opcode) {
        seen.push_back(opcode);
        return seen.size() < 3;
    }));
    EXPECT_EQ(seen.size(), 3u);
    EXPECT_TRUE(list.forEachOpcode(9, [](Opcode*) { return false; }));
}

} // namespace
