#include "DiesAt.h"
#include "ModPrj.h"
#include "PrjTestSupport.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

using nsModPrj::ModPrj;

namespace {

const int killKeys = 50;

/// A project of one number, many times.
void fill(CfgTree* tree, int number)
{
    for (int k = 0; k < killKeys; ++k)
        tree->setValue(str("s/k%1").arg(k), QString::number(number).rightJustified(2000, QLatin1Char('0')));
}

/// Saves a project of the number in a process of its own, which dies before the given step of the save, counted from 0.
/// @return false: it came to its end, as the save has fewer steps
bool saveAndDie(const QString& file, int number, int step)
{
    return diesAt(step, [&] {
        ModPrj prj;
        fill(&prj, number);
        return prj.savePrjFile(&prj, file);
    });
}

TEST(ModPrjKilled, LeavesAWholeFile)
{
    QTemporaryDir dir;
    ModPrj prj;
    const QString file = dir.filePath(str("p.nalvo"));
    fill(&prj, 1);
    ASSERT_TRUE(prj.savePrjFile(&prj, file));
    int step = 0;
    for (bool killed = true; killed; ++step) {
        ASSERT_LT(step, 1000);
        killed = saveAndDie(file, 2, step);
        CfgTree tree;
        ASSERT_TRUE(prj.readPrjFile(&tree, file)) << "step " << step;
        const int number = tree.value(str("s/k0"), 0);
        // Renaming is the last step: only a save that came to its end has changed the file.
        ASSERT_EQ(number, killed ? 1 : 2) << "step " << step;
        ASSERT_EQ(tree.getNode({str("s")})->childs().size(), killKeys);
        for (int k = 0; k < killKeys; ++k) {
            ASSERT_EQ(tree.value(str("s/k%1").arg(k), 0), number);
            ASSERT_EQ(tree.value(str("s/k%1").arg(k), QString()).size(), 2000);
        }
    }
    // Create, several parts of 100 kB, sync, attributes, rename.
    EXPECT_GT(step, 8);
}

} // namespace
