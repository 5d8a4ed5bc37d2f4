// What the program prints instead of opening its window.

#include "DistSupport.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

using namespace DistSupport;

namespace {

/// The program without a display and with folders of its own for settings and data.
class ProgramInfo : public ::testing::Test
{
protected:
    sResult_t nalvo(const QStringList& arguments) const
    {
        QProcessEnvironment env = environment();
        for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
            env.insert(name, m_folder.path());
        return run(programFile("nalvo"), arguments, m_folder.path(), env);
    }
    QStringList files() const
    {
        return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ProgramInfo, helpNeedsNoDisplayAndLeavesNothing)
{
    const sResult_t result = nalvo({"--help"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, QString());
    EXPECT_TRUE(result.out.startsWith("Usage: nalvo [options] [PROJECT.nalvo]\n")) << qPrintable(result.out);
    EXPECT_TRUE(result.out.contains("\n  PROJECT.nalvo ")) << qPrintable(result.out);
    EXPECT_EQ(files(), QStringList());
}

TEST_F(ProgramInfo, versionIsThatOfTheBatchPrograms)
{
    const sResult_t result = nalvo({"--version"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, QString());
    EXPECT_EQ(result.out, "nalvo " + version() + '\n');
    EXPECT_EQ(files(), QStringList());
}

TEST_F(ProgramInfo, helpIsFoundAmongOtherArguments)
{
    const QString help = nalvo({"--help"}).out;
    EXPECT_EQ(nalvo({"p.nalvo", "--help"}).out, help);
    EXPECT_EQ(nalvo({"--version", "--help"}).out, help);
    EXPECT_EQ(nalvo({"p.nalvo", "-s", "x.js", "--version"}).out, "nalvo " + version() + '\n');
}

TEST_F(ProgramInfo, lostOutputIsReported)
{
    const sResult_t result = run("sh", {"-c", "exec \"$1\" --version >/dev/full", "sh", programFile("nalvo")});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, QString("nalvo: Can not write standard output.\n"));
}
