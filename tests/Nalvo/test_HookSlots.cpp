// The operations of the small hooks: the places in their tables of virtual functions are part of their contract.

#include "ModHlpHookIf.h"
#include "ModNetworkHookIf.h"
#include "ModScriptHookIf.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

/// Place of a virtual operation, counted after the two destructors, in the C++ ABI that all compilers here share.
template <class Operation>
int slotOf(Operation operation)
{
    std::ptrdiff_t place = 0;
    std::memcpy(&place, &operation, sizeof place);
    return int((place - 1) / std::ptrdiff_t(sizeof(void*))) - 2;
}

} // namespace

TEST(HookSlots, holdTheOperationsAndNothingInFrontOfThem)
{
    EXPECT_EQ(slotOf(&ModScriptHookIf::registerObject), 0);
    EXPECT_EQ(slotOf(&ModScriptHookIf::executeScript), 1);
    EXPECT_EQ(slotOf(&ModHlpHookIf::showDialogHlpRef), 0);
    EXPECT_EQ(slotOf(&ModHlpHookIf::showHlp), 1);
    EXPECT_EQ(slotOf(&ModHlpHookIf::closeDialogHlp), 2);
    EXPECT_EQ(slotOf(&ModNetworkHookIf::proxy), 0);
}
