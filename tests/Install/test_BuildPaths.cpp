// Nothing that is installed knows where it was built.

#include "InstalledTree.h"

TEST(InstalledFiles, nameNoPathOfTheBuild)
{
#ifdef NALVO_PROGRAMS_KNOW_THE_BUILD
    GTEST_SKIP() << "sanitizers and coverage write the paths of the build into the programs";
#endif
    const InstalledTree tree;
    const QStringList files = tree.files();
    EXPECT_GT(files.size(), 50);
    for (const QString& name : files) {
        if (QFileInfo(tree.path(name)).isSymLink())
            continue;
        QFile file(tree.path(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
        const QByteArray content = file.readAll();
        EXPECT_FALSE(content.contains(NALVO_SOURCE_DIR)) << qPrintable(name);
        EXPECT_FALSE(content.contains(NALVO_BINARY_DIR)) << qPrintable(name);
    }
}
