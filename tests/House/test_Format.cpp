#include "FixtureTree.h"
#include "SourceTree.h"

#include <gtest/gtest.h>

#include <QProcess>

using namespace nsHouse;

namespace {

/// What the formatter would change; empty where it would leave all as it is.
std::string formatterOutput(const QStringList& files)
{
    QProcess formatter;
    formatter.setWorkingDirectory(NALVO_SOURCE_DIR);
    formatter.setProcessChannelMode(QProcess::MergedChannels);
    const QStringList options{"--dry-run", "-Werror", "--style=file:" NALVO_SOURCE_DIR "/.clang-format"};
    formatter.start("clang-format", options + files);
    if (!formatter.waitForStarted())
        return "clang-format is not installed; the tree is formatted by version 14";
    formatter.waitForFinished(-1);
    const QString output = QString::fromUtf8(formatter.readAll());
    EXPECT_EQ(formatter.exitCode() == 0, output.isEmpty()) << qPrintable(output);
    return output.toStdString();
}

} // namespace

TEST(Format, everyFileIsAsTheFormatterWritesIt)
{
    const QStringList files = SourceTree(NALVO_SOURCE_DIR).code();
    ASSERT_GT(files.size(), 500);
    EXPECT_EQ(formatterOutput(files), "");
}

TEST(Format, aFileThatIsNotFormatted)
{
    FixtureTree tree;
    tree.write("Right.cpp", "int f()\n{\n    return 1;\n}\n");
    tree.write("Wrong.cpp", "int f() {\n  return 1;\n}\n");
    EXPECT_EQ(formatterOutput({tree.root() + "/Right.cpp"}), "");
    const std::string output = formatterOutput({tree.root() + "/Wrong.cpp"});
    EXPECT_NE(output.find("Wrong.cpp:1:8: error: code should be clang-formatted"), std::string::npos) << output;
}
