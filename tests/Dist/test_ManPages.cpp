// The manual pages: well formed, and with the options and exit statuses of the programs.

#include "DistSupport.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QDate>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace DistSupport;

namespace {

QString pageFile(const QString& program)
{
    return installed("man/man1/" + program + ".1");
}

/// The page as a terminal shows it.
sResult_t formatted(const QString& file)
{
    QProcessEnvironment env = environment();
    env.insert("MANWIDTH", "80");
    env.insert("MANPAGER", "cat");
    return run("man", {"--warnings", "-E", "UTF-8", "-l", file}, QString(), env);
}

/// The options that a page explains, as helpOptions() has them.
QMap<QString, bool> pageOptions(const QString& text)
{
    static const QRegularExpression item("^\\.It (Fl .*)$", QRegularExpression::MultilineOption);
    static const QRegularExpression name("Fl (\\S+)");
    QMap<QString, bool> options;
    auto items = item.globalMatch(text);
    while (items.hasNext()) {
        const QString line = items.next().captured(1);
        auto names = name.globalMatch(line);
        while (names.hasNext())
            options.insert('-' + names.next().captured(1), line.contains(" Ar "));
    }
    return options;
}

/// The numbers that begin the lines of a section.
QStringList statuses(const QString& text, const QString& pattern)
{
    QStringList found;
    auto matches = QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured(1));
    return found;
}

class ManPage : public ::testing::TestWithParam<QString>
{
};

INSTANTIATE_TEST_SUITE_P(Programs, ManPage, ::testing::ValuesIn(programs().toVector()),
                         [](const auto& program) { return QString(program.param).replace('-', '_').toStdString(); });

} // namespace

TEST_P(ManPage, isWellFormed)
{
    const sResult_t page = formatted(pageFile(GetParam()));
    EXPECT_EQ(page.status, 0);
    EXPECT_EQ(page.err, QString());
    EXPECT_TRUE(page.out.contains("SYNOPSIS")) << qPrintable(page.out);
    EXPECT_TRUE(page.out.contains("Nalvo " + version())) << qPrintable(page.out);
}

TEST_P(ManPage, explainsTheOptionsOfTheProgramAndNoOthers)
{
    EXPECT_EQ(listed(pageOptions(content(pageFile(GetParam())))), listed(helpOptions(GetParam())));
}

TEST_P(ManPage, hasTheExitStatusesOfTheHelp)
{
    const QString help = helpText(GetParam()).section("\nExit status:\n", 1).section("\n\n", 0, 0);
    const QString page = content(pageFile(GetParam())).section(".Sh EXIT STATUS", 1).section(".Sh ", 0, 0);
    EXPECT_FALSE(page.isEmpty());
    EXPECT_EQ(statuses(page, "^\\.It (\\d+)$"), statuses(help, "^    (\\d+) "));
}

TEST_P(ManPage, hasTheDateOfTheNewestRelease)
{
    static const QRegularExpression date("date=\"([0-9-]+)\"");
    const QString metadata = content(installed("metainfo/example.brelmont.nalvo.metainfo.xml"));
    const QDate released = QDate::fromString(date.match(metadata).captured(1), Qt::ISODate);
    ASSERT_TRUE(released.isValid());
    const QString expected = ".Dd " + QLocale::c().toString(released, "MMMM d, yyyy") + '\n';
    EXPECT_EQ(content(pageFile(GetParam())).left(expected.size()), expected);
}

TEST_P(ManPage, refersToPagesThatAreThere)
{
    static const QRegularExpression reference("^\\.Xr (nalvo\\S*) (\\d)", QRegularExpression::MultilineOption);
    auto references = reference.globalMatch(content(pageFile(GetParam())));
    ASSERT_TRUE(references.hasNext());
    while (references.hasNext()) {
        const QString name = references.next().captured(1);
        EXPECT_TRUE(programs().contains(name)) << qPrintable(name);
        EXPECT_NE(name, GetParam()) << "a page that refers to itself";
    }
}

TEST(ManPages, aFaultOfAPageIsNoticed)
{
    QTemporaryDir folder;
    QFile file(folder.filePath("fault.1"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write((content(pageFile("nalvo-asm")) + ".Nosuchmacro\n").toUtf8());
    file.close();
    EXPECT_TRUE(formatted(file.fileName()).err.contains("Nosuchmacro"));
}
