// What lies in the tree is built: a test that no list names can not fail.

#include "CompileCommands.h"
#include "SourceTree.h"

#include <gtest/gtest.h>

#include <QSet>

using namespace nsHouse;

namespace {

/// The sources below these folders that the build does not compile.
QStringList notBuilt(const SourceTree& tree, const QStringList& compiled)
{
    const QSet<QString> built(compiled.begin(), compiled.end());
    QStringList missing;
    for (const char* folder : {"src", "tests", "tools"}) {
        for (const QString& path : tree.files(QLatin1String(folder), {QStringLiteral("*.cpp")})) {
            // Left out where the build does not check the headers.
            if (path != QLatin1String("tests/House/test_Headers.cpp") && !built.contains(tree.root() + '/' + path))
                missing.append(path);
        }
    }
    return missing;
}

TEST(Built, isEachSource)
{
    EXPECT_EQ(notBuilt(SourceTree(NALVO_SOURCE_DIR), CompileCommands().allSources()).join('\n').toStdString(), "");
}

TEST(Built, whatNoListNamesIsFound)
{
    QStringList compiled = CompileCommands().allSources();
    ASSERT_TRUE(compiled.removeOne(NALVO_SOURCE_DIR "/tests/House/test_Built.cpp"));
    EXPECT_EQ(notBuilt(SourceTree(NALVO_SOURCE_DIR), compiled).join('\n').toStdString(), "tests/House/test_Built.cpp");
}

} // namespace
