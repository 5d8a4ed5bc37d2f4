// What the programs load when they start.

#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>

namespace {

/// The Qt libraries that a program loads when it starts, such as "Core", in the order of the loader.
QStringList qtLibrariesOf(const QString& program)
{
    QProcess ldd;
    ldd.start("ldd", {program});
    EXPECT_TRUE(ldd.waitForFinished(-1));
    EXPECT_EQ(ldd.exitCode(), 0) << qPrintable(program);
    QStringList libraries;
    QRegularExpressionMatchIterator it =
        QRegularExpression("libQt5([A-Za-z]+)\\.so").globalMatch(QString::fromLocal8Bit(ldd.readAllStandardOutput()));
    while (it.hasNext()) {
        const QString library = it.next().captured(1);
        if (!libraries.contains(library))
            libraries.append(library);
    }
    return libraries;
}

} // namespace

TEST(Linked, programsWithoutAWindowLoadTheCoreAlone)
{
    EXPECT_EQ(qtLibrariesOf(NALVO_IMPORT).join(' ').toStdString(), "Core");
    EXPECT_EQ(qtLibrariesOf(NALVO_ASM).join(' ').toStdString(), "Core");
    EXPECT_EQ(qtLibrariesOf(NALVO_PROVE).join(' ').toStdString(), "Core");
    EXPECT_EQ(qtLibrariesOf(NALVO_SIM).join(' ').toStdString(), "Core");
}

TEST(Linked, aWindowIsNoticed)
{
    const QStringList libraries = qtLibrariesOf(NALVO_WINDOW);
    EXPECT_TRUE(libraries.contains("Widgets")) << qPrintable(libraries.join(' '));
    EXPECT_TRUE(libraries.contains("Gui")) << qPrintable(libraries.join(' '));
}

TEST(Linked, theEngineOfTheHelpIsLeftToItsLibrary)
{
    EXPECT_FALSE(qtLibrariesOf(NALVO_WINDOW).contains("WebKit"));
    EXPECT_TRUE(qtLibrariesOf(NALVO_HELP_VIEW).contains("WebKit"));
}
