// Programs that the original refuses: the converter never ends as if all were well.

#include "ImportRun.h"
#include "RandomForeign.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using foreign::Dialect;

namespace {

void expectRefused(Dialect dialect, const QList<QByteArray>& programs)
{
    for (const QByteArray& text : programs) {
        QTemporaryDir folder;
        const QDir dir(folder.path());
        const QString main = foreign::writeProgram({{{"main.psm", text}}, 1024}, dir.filePath("foreign"));
        const ToolRun run =
            runTool(NALVO_IMPORT, {"-d", dialectOption(dialect), "-o", dir.filePath("result"), main}, folder.path());
        EXPECT_EQ(run.status, 1) << text.toStdString() << run.out.toStdString() << run.err.toStdString();
        EXPECT_TRUE(run.err.contains("error:")) << text.toStdString() << run.err.toStdString();
        // Where it writes what it could, the assembler stops at the line.
        QString problem;
        assembledProject(dir.filePath("result"), &problem);
        EXPECT_NE(problem.toStdString(), "") << text.toStdString();
    }
}

/// The converter marks a line, and writes the rest.
void expectMarked(Dialect dialect, const QList<QByteArray>& programs)
{
    for (const QByteArray& text : programs) {
        QTemporaryDir folder;
        const QDir dir(folder.path());
        const QString main = foreign::writeProgram({{{"main.psm", text}}, 1024}, dir.filePath("foreign"));
        const ToolRun run =
            runTool(NALVO_IMPORT, {"-d", dialectOption(dialect), "-o", dir.filePath("result"), main}, folder.path());
        EXPECT_EQ(run.status, 1) << text.toStdString() << run.err.toStdString();
        EXPECT_TRUE(run.err.contains("main.psm:")) << text.toStdString() << run.err.toStdString();
        QFile source(dir.filePath("result/src/main.psm"));
        EXPECT_TRUE(source.open(QIODevice::ReadOnly)) << text.toStdString() << run.err.toStdString();
        EXPECT_TRUE(source.readAll().contains("NO_COUNTERPART")) << text.toStdString();
        QString problem;
        assembledProject(dir.filePath("result"), &problem);
        EXPECT_TRUE(problem.contains("src/main.psm:")) << text.toStdString() << problem.toStdString();
    }
}

} // namespace

TEST(Refused, numbersOutOfRange)
{
    expectRefused(Dialect::Kcpsm3, {"LOAD s0, 100\n", "FETCH s0, 40\n", "JUMP 400\n", "LOAD s0, 256'd\n",
                                    "ADDRESS 3FF\nLOAD s0, 0\nLOAD s0, 1\n"});
    expectRefused(Dialect::Kcpsm6,
                  {"OUTPUTK 2A, 10\n", "INST 40000\n", "JUMP 1000\n", "TABLE t#, [1, 100]\nLOAD&RETURN s0, t#\n"});
    expectRefused(Dialect::PBlazIde, {"LOAD s0, 256\n", "STORE s0, 64\n", "JUMP 1024\n", "LOAD s0, %2\n"});
    expectRefused(Dialect::Mico8Gnu, {"movi r1, 256\n", "export r1, 32\n", "mov r32, r1\n", "movi r1, 09\n"});
}

TEST(Refused, namesWithoutMeaning)
{
    expectRefused(Dialect::Kcpsm3, {"LOAD s0, nothing\n", "JUMP nowhere\n", "NAMEREG s3, count\nLOAD s3, 01\n",
                                    "LOAD count, 01\nNAMEREG s3, count\n"});
    expectRefused(Dialect::Kcpsm6, {"OUTPUTK missing$, 1\n", "LOAD&RETURN s0, missing#\n", "LOAD s0, nothing'upper\n",
                                    "STRING a$, a$\nOUTPUTK a$, 1\n", "INCLUDE \"missing.psm\"\n",
                                    "INCLUDE \"main.psm\"\n", "CONSTANT a1x, a1x\nLOAD s0, a1x\n"});
    expectRefused(Dialect::PBlazIde, {"LOAD s0, FF\n", "JUMP nowhere\n", "x EQU x\nLOAD s0, x\n"});
    expectRefused(Dialect::Mico8Gnu, {"b nowhere\n", "b 1f\n", "movi r1, r2\n"});
}

TEST(Refused, twoOfAKind)
{
    expectRefused(Dialect::Kcpsm3, {"CONSTANT x, 1\nCONSTANT x, 2\n"});
    expectMarked(Dialect::Kcpsm3,
                 {"LOAD s0, x\nCONSTANT x, 1\nCONSTANT x, 2\n", "LOAD s0, 0\nADDRESS 000\nLOAD s0, 1\n",
                  "x: LOAD s0, 0\nx: LOAD s0, 1\nJUMP x\n", "LOAD s0, 0\nx:\nLOAD s0, 1\nx:\nJUMP x\n",
                  "CONSTANT x, 1\nNAMEREG s1, x\nLOAD s0, x\n", "NAMEREG s1, x\nLOAD s0, x\nCONSTANT x, 1\n"});
    expectMarked(Dialect::Kcpsm6, {"STRING a$, \"x\"\nSTRING a$, \"y\"\nLOAD&RETURN s0, a$\n",
                                   "TABLE a#, [1]\nTABLE a#, [2]\nLOAD&RETURN s0, a#\n",
                                   "DEFAULT_JUMP 000\nLOAD s0, 1\nDEFAULT_JUMP 001\n"});
    expectMarked(Dialect::PBlazIde, {"x EQU 1\nx EQU 2\nLOAD s0, x\n", "x EQU s1\nx EQU s2\nLOAD x, 1\n",
                                     "x EQU s1\nx DSIN 3\nIN s0, x\n", "x: JUMP x\nx: RET\n", "x EQU 5\nx: JUMP x\n"});
    for (const Dialect dialect : {Dialect::Mico8Vendor, Dialect::Mico8Gnu})
        expectMarked(dialect, {"x: nop\nx: b x\n", "x equ 1\nx equ 2\nmovi r0, x\n", ".set x, 1\nx: b x\n",
                               "x reg r1\n.set x, 5\nmovi r2, x\n", "x equ r1\nx equ r2\nmovi x, 1\n"});
}

TEST(Refused, whatHasSeveralMeanings)
{
    expectMarked(Dialect::Mico8Gnu, {"movi r0, x\n.set x, 1\n.set x, 2\n", "mov r0, x\nx reg r1\nx reg r2\n",
                                     "movi r0, y\n.set y, x\n.set x, 1\n.set x, 2\n", "movi r0, 1 + 1 << 2\n",
                                     "movi r0, 6 & 2 + 1\n", ".set x, x + 1\n.set x, 2\nmovi r0, x\n"});
    expectMarked(Dialect::Mico8Gnu, {"movi r0, Abc\n.set ABC, 1\n.set abc, 2\n", "nop\n/* no end\n",
                                     "nop\n.data\nx: .byte 1\n.text\nb x\n"});
}

TEST(Refused, dataAndWhatNoOneKnows)
{
    expectRefused(Dialect::Kcpsm3, {"LOADRET s0, 1\n", "STAR s0, s1\n", "LOAD s0\n", "JUMP M, 000\n", "RETURNI\n"});
    expectRefused(Dialect::Kcpsm6, {"REGBANK C\n", "JUMP@ (s0)\n", "INST 00011\n"});
    expectRefused(Dialect::Mico8Gnu, {".byte 1\n", "add r1, 5\n", "nop r1\n", "/* no end\n"});
}
