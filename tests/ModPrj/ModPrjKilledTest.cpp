#include "ModPrj.h"
#include "PrjTestSupport.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using nsModPrj::ModPrj;

namespace {

const int killKeys = 50;

/// A project of one number, many times.
void fill(CfgTree* tree, int number)
{
    for (int k = 0; k < killKeys; ++k)
        tree->setValue(str("s/k%1").arg(k), QString::number(number).rightJustified(2000, QLatin1Char('0')));
}

/// Saves projects with rising numbers.
[[noreturn]] void saveForEver(const QString& file, int start)
{
    for (int i = start;; ++i) {
        ModPrj prj;
        fill(&prj, i);
        if (!prj.savePrjFile(&prj, file))
            _exit(1);
    }
}

TEST(ModPrjKilled, LeavesAWholeFile)
{
    QTemporaryDir dir;
    ModPrj prj;
    const QString file = dir.filePath(str("p.nalvo"));
    int last = 1;
    fill(&prj, last);
    ASSERT_TRUE(prj.savePrjFile(&prj, file));
    QElapsedTimer clock;
    clock.start();
    int progress = 0;
    // On a slow disk a child may be killed before its first save, so some more of them have their chance.
    for (int round = 0; round < 60 || (progress < 10 && clock.elapsed() < 30000); ++round) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0)
            saveForEver(file, last + 1);
        usleep(2000 + 379 * round % 15000);
        ASSERT_EQ(kill(child, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status));
        CfgTree tree;
        ASSERT_TRUE(prj.readPrjFile(&tree, file)) << "round " << round;
        const int number = tree.value(str("s/k0"), 0);
        ASSERT_EQ(tree.getNode({str("s")})->childs().size(), killKeys);
        for (int k = 0; k < killKeys; ++k) {
            ASSERT_EQ(tree.value(str("s/k%1").arg(k), 0), number);
            ASSERT_EQ(tree.value(str("s/k%1").arg(k), QString()).size(), 2000);
        }
        ASSERT_GE(number, last);
        progress += number > last ? 1 : 0;
        last = number;
    }
    EXPECT_GE(progress, 10);
}

} // namespace
