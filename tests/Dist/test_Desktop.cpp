// What desktops read, by the tools that they read it with: desktop file, metadata, the type of the project file, icons.

#include "CfgStore.h"
#include "DistSupport.h"
#include "PrjFile.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QMimeDatabase>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace DistSupport;

namespace {

const QString appId = "example.brelmont.nalvo";
const QString typeName = "application/x-nalvo-project";
const QString desktopFile = installed("applications/" + appId + ".desktop");
const QString metadataFile = installed("metainfo/" + appId + ".metainfo.xml");

/// The value of a key of the desktop file.
QString desktopValue(const QString& key)
{
    const QRegularExpression line('^' + key + "=(.*)$", QRegularExpression::MultilineOption);
    const QRegularExpressionMatch match = line.match(content(desktopFile));
    EXPECT_TRUE(match.hasMatch()) << qPrintable(key);
    return match.captured(1);
}

/// All matches of the first group in the metadata.
QStringList metadataValues(const QString& pattern)
{
    QStringList values;
    auto matches = QRegularExpression(pattern).globalMatch(content(metadataFile));
    while (matches.hasNext())
        values.append(matches.next().captured(1));
    return values;
}

QStringList projectFiles()
{
    QStringList files;
    QDirIterator it(sourceFile("examples"), {"*.nalvo"}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        files.append(it.next());
    return files;
}

/// The types of a desktop that has those of the system and that of the program, in one folder as after an installation.
class MimeType : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        s_folder = new QTemporaryDir;
        const QString mime = s_folder->filePath("mime");
        QDir().mkpath(mime + "/packages");
        EXPECT_TRUE(QFile::copy(installed("mime/packages/nalvo.xml"), mime + "/packages/nalvo.xml"));
        EXPECT_TRUE(
            QFile::copy("/usr/share/mime/packages/freedesktop.org.xml", mime + "/packages/freedesktop.org.xml"));
        // Read by the database of types when it is used for the first time.
        qputenv("XDG_DATA_HOME", s_folder->path().toLocal8Bit());
        qputenv("XDG_DATA_DIRS", s_folder->path().toLocal8Bit());
        const sResult_t result = run("update-mime-database", {mime});
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.out + result.err, QString());
    }
    static void TearDownTestSuite() { delete s_folder; }

    static QString typeOfName(const QString& name)
    {
        return QMimeDatabase().mimeTypeForFile(name, QMimeDatabase::MatchExtension).name();
    }
    static QString typeOfContent(const QByteArray& bytes) { return QMimeDatabase().mimeTypeForData(bytes).name(); }

private:
    static QTemporaryDir* s_folder;
};

QTemporaryDir* MimeType::s_folder = nullptr;

} // namespace

// --- desktop file ---

TEST(DesktopFile, isValid)
{
    const sResult_t result = run("desktop-file-validate", {desktopFile});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out + result.err, QString());
}

TEST(DesktopFile, opensAFileByTheProgram)
{
    EXPECT_EQ(desktopValue("Exec"), "nalvo %f");
    EXPECT_EQ(desktopValue("TryExec"), "nalvo");
    EXPECT_EQ(desktopValue("MimeType"), typeName + ';');
    EXPECT_TRUE(QFile::exists(programFile("nalvo")));
}

TEST(DesktopFile, isTheOneThatTheWindowsName)
{
    EXPECT_TRUE(content(sourceFile("src/main.cpp")).contains("setDesktopFileName(QStringLiteral(\"" + appId + "\"))"));
}

// --- metadata ---

TEST(Metadata, isValid)
{
    const sResult_t result = run("appstreamcli", {"validate", "--no-net", "--no-color", metadataFile});
    EXPECT_EQ(result.status, 0) << qPrintable(result.out + result.err);
    static const QRegularExpression problem("^[EW]:", QRegularExpression::MultilineOption);
    EXPECT_FALSE(result.out.contains(problem)) << qPrintable(result.out);
}

TEST(Metadata, belongsToTheDesktopFile)
{
    EXPECT_EQ(metadataValues("<id>(.*)</id>"), QStringList(appId));
    EXPECT_EQ(metadataValues("<launchable type=\"desktop-id\">(.*)</launchable>"), QStringList(appId + ".desktop"));
    EXPECT_EQ(metadataValues("<mediatype>(.*)</mediatype>"), QStringList(typeName));
    EXPECT_EQ(metadataValues("<icon type=\"stock\">(.*)</icon>"), QStringList(desktopValue("Icon")));
}

TEST(Metadata, namesScreenshotsThatAreInTheTree)
{
    const QStringList paths = metadataValues("<image [^>]*>https://[^<]*/(doc/[^<]*)</image>");
    const QStringList widths = metadataValues("<image [^>]*width=\"(\\d+)\"");
    const QStringList heights = metadataValues("<image [^>]*height=\"(\\d+)\"");
    EXPECT_GE(paths.size(), 2);
    EXPECT_EQ(paths.size(), metadataValues("(<screenshot[ >])").size());
    for (int i = 0; i < paths.size(); ++i) {
        const QImage image(sourceFile(paths.at(i)));
        EXPECT_FALSE(image.isNull()) << qPrintable(paths.at(i));
        EXPECT_EQ(QString::number(image.width()), widths.value(i)) << qPrintable(paths.at(i));
        EXPECT_EQ(QString::number(image.height()), heights.value(i)) << qPrintable(paths.at(i));
    }
}

TEST(Metadata, hasTheNotesOfAllReleases)
{
    const QString changes = content(sourceFile("CHANGELOG.md"));
    EXPECT_EQ(metadataValues("<release version=\"([^\"]*)\"").value(0), version());
    EXPECT_EQ(metadataValues("(<release )").size(), changes.count("\n## "));
    EXPECT_EQ(metadataValues("(<li>)").size(),
              changes.count("\n- ") + content(sourceFile("dist/metainfo/" + appId + ".metainfo.xml.in")).count("<li>"));
}

// --- the type of the project file ---

TEST_F(MimeType, isFoundByTheNameOfAProject)
{
    EXPECT_EQ(typeOfName("a.nalvo"), typeName);
    EXPECT_NE(typeOfName("a.nalvo.user"), typeName);
    EXPECT_NE(typeOfName("a.psm"), typeName);
    EXPECT_TRUE(QMimeDatabase().mimeTypeForName(typeName).inherits("application/xml"));
    EXPECT_EQ(QMimeDatabase().mimeTypeForName(typeName).preferredSuffix(), "nalvo");
    EXPECT_FALSE(QMimeDatabase().mimeTypeForName(typeName).comment().isEmpty());
}

TEST_F(MimeType, isFoundByTheContentOfEachExample)
{
    const QStringList files = projectFiles();
    EXPECT_GE(files.size(), 7);
    for (const QString& file : files) {
        EXPECT_EQ(typeOfContent(content(file).toUtf8()), typeName) << qPrintable(file);
        EXPECT_EQ(QMimeDatabase().mimeTypeForFile(file).name(), typeName) << qPrintable(file);
    }
}

TEST_F(MimeType, isFoundByTheContentOfWhatTheProgramWrites)
{
    CfgStore tree;
    tree.setValue("PrjInfo/title", "A project");
    EXPECT_EQ(typeOfContent(nsModPrj::PrjFile::format(&tree, nullptr)), typeName);
}

TEST_F(MimeType, isNotThatOfOtherProjectsInXml)
{
    for (const char* text : {"<?xml version=\"1.0\"?>\n<project name=\"build\" default=\"all\">\n</project>\n",
                             "<?xml version=\"1.0\"?>\n<project version=\"4\">\n</project>\n",
                             "<?xml version=\"1.0\"?>\n<project xmlns=\"http://maven.apache.org/POM/4.0.0\"/>\n"})
        EXPECT_NE(typeOfContent(text), typeName) << text;
}

// --- icons ---

TEST(Icons, areThereInAllSizesAndAsDrawings)
{
    const QStringList names{"apps/" + desktopValue("Icon"), "mimetypes/" + QString(typeName).replace('/', '-')};
    for (const QString& name : names) {
        for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
            const QString file = installed(QString("icons/hicolor/%1x%1/%2.png").arg(size).arg(name));
            EXPECT_EQ(QImage(file).size(), QSize(size, size)) << qPrintable(file);
        }
        EXPECT_FALSE(QImage(installed("icons/hicolor/scalable/" + name + ".svg")).isNull()) << qPrintable(name);
    }
}

// --- installation ---

/// Below /usr, zsh looks where the distribution says, which is not where it looks below /usr/local.
TEST(Installed, thePackagesPutCompletionsWhereZshLooks)
{
    static const QRegularExpression option("-DNALVO_ZSH_DIR=(\\S+)");
    const QRegularExpressionMatch match = option.match(content(sourceFile("debian/rules")));
    ASSERT_TRUE(match.hasMatch());
    const QStringList folders = run("zsh", {"-f", "-c", "print -l $fpath"}).out.split('\n');
    EXPECT_TRUE(folders.contains("/usr/" + match.captured(1))) << qPrintable(folders.join('\n'));
    EXPECT_TRUE(folders.contains("/usr/local/share/zsh/site-functions")) << "what cmake --install takes by default";
}

TEST(Installed, liesWhereDesktopsAndShellsLook)
{
    QTemporaryDir prefix;
    QStringList expected{"share/applications/" + appId + ".desktop",
                         "share/metainfo/" + appId + ".metainfo.xml",
                         "share/mime/packages/nalvo.xml",
                         "share/zsh/site-functions/_nalvo",
                         "share/zsh/site-functions/_nalvo-tools",
                         "share/cmake/Nalvo/NalvoConfig.cmake",
                         "share/cmake/Nalvo/NalvoConfigVersion.cmake",
                         "share/cmake/Nalvo/NalvoPaths.cmake",
                         "share/cmake/Nalvo/NalvoRom.cmake"};
    for (const QString& name :
         {QStringLiteral("apps/nalvo"), QStringLiteral("mimetypes/application-x-nalvo-project")}) {
        for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512})
            expected.append(QString("share/icons/hicolor/%1x%1/%2.png").arg(size).arg(name));
        expected.append("share/icons/hicolor/scalable/" + name + ".svg");
    }
    for (const QString& program : programs()) {
        expected.append("share/man/man1/" + program + ".1");
        expected.append("share/bash-completion/completions/" + program);
    }
    expected.sort();

    const sResult_t result = run(NALVO_CMAKE, {"-DCMAKE_INSTALL_PREFIX=" + prefix.path(), "-P",
                                               QStringLiteral(NALVO_BINARY_DIR "/dist/cmake_install.cmake")});
    EXPECT_EQ(result.status, 0) << qPrintable(result.err);
    QStringList found;
    QDirIterator it(prefix.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext())
        found.append(QDir(prefix.path()).relativeFilePath(it.next()));
    found.sort();
    EXPECT_EQ(found, expected);
    for (const QString& file : qAsConst(found))
        EXPECT_GT(QFileInfo(prefix.filePath(file)).size(), 0) << qPrintable(file) << " is empty or leads nowhere";
}
