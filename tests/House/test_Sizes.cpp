#include "FixtureTree.h"
#include "Sizes.h"

#include <gtest/gtest.h>

#include <iostream>

using namespace nsHouse;

namespace {

const Sizes& nalvoSizes()
{
    static const Sizes sizes(SourceTree(NALVO_SOURCE_DIR), sLimits_t());
    return sizes;
}

std::string joined(const QStringList& findings)
{
    return findings.join('\n').toStdString();
}

/// What may be larger, with its own limits: none of them may grow.
const QVector<sAllowed_t> allowedClasses{
    // Half of the members are the controls of its tool bar.
    {"ProcSimWaveViewer", 31, 29},
};

/// What each opcode does, a case an opcode.
const QStringList tableFunctions{"src/Sim/ProcSimInstr.h: execute"};

} // namespace

TEST(Sizes, everyFileCanBeHeldInTheHead)
{
    EXPECT_EQ(joined(nalvoSizes().longFiles()), "");
}

TEST(Sizes, everyFunctionFitsOnAScreen)
{
    EXPECT_EQ(joined(nalvoSizes().longFunctions(tableFunctions)), "");
}

TEST(Sizes, noClassDoesEverything)
{
    const QVector<sClass_t>& classes = nalvoSizes().classes();
    ASSERT_GE(classes.size(), 5);
    for (const sClass_t& one : classes.mid(0, 5)) {
        std::cout << qPrintable(
            QString("%1: %2 operations, %3 members\n").arg(one.name).arg(one.operations).arg(one.members));
    }
    EXPECT_EQ(joined(nalvoSizes().largeClasses(allowedClasses)), "");
}

TEST(Sizes, aFileAndAFunctionThatAreTooLong)
{
    FixtureTree tree;
    tree.write("src/Long.cpp", "void f()\n{\n" + QString("    g();\n").repeated(7) + "}\n");
    tree.write("tests/Short.cpp", "void f()\n{\n    g();\n}\n");
    tree.write("build/Long.cpp", QString("\n").repeated(20));
    sLimits_t limits;
    limits.fileLines = 9;
    limits.functionLines = 9;
    const Sizes tooLong(SourceTree(tree.root()), limits);
    EXPECT_EQ(joined(tooLong.longFiles()), "src/Long.cpp: 10 lines");
    EXPECT_EQ(joined(tooLong.longFunctions()), "src/Long.cpp:1: f has 10 lines");
    EXPECT_EQ(joined(tooLong.longFunctions({"src/Long.cpp: f"})), "");
    EXPECT_EQ(joined(tooLong.longFunctions({"src/Long.cpp: f", "src/Long.cpp: g"})),
              "src/Long.cpp: g needs no exception");
    limits.fileLines = 10;
    limits.functionLines = 10;
    const Sizes justRight(SourceTree(tree.root()), limits);
    EXPECT_EQ(joined(justRight.longFiles() + justRight.longFunctions()), "");
}

TEST(Sizes, aClassThatIsTooLarge)
{
    FixtureTree tree;
    tree.write("src/Large.h", "class Large\n{\n    void f();\n    void g();\n    int m_a;\n};\n"
                              "class Full\n{\n    int m_a;\n    int m_b;\n};\nclass Small\n{\n    void f();\n};\n");
    sLimits_t limits;
    limits.operations = 1;
    limits.members = 1;
    const Sizes sizes(SourceTree(tree.root()), limits);
    EXPECT_EQ(joined(sizes.largeClasses({})),
              "Large has 2 operations and 1 members\nFull has 0 operations and 2 members");
    EXPECT_EQ(joined(sizes.largeClasses({{"Large", 2, 1}, {"Full", 0, 1}, {"Small", 9, 9}})),
              "Full has 0 operations and 2 members\nSmall needs no exception");
    EXPECT_EQ(sizes.classes().first().name.toStdString(), "Large");
}
