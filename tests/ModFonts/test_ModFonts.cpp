// Fonts that ship with the program: where they are looked for, and what is said about them.

#include "FakeHooks.h"
#include "ModFonts.h"
#include "QtPrinters.h"
#include "ShippedFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using nsModFonts::ModFonts;

namespace {

const char* const shipped = NALVO_SOURCE_DIR "/Common/fonts";

class ModFontsTest : public ::testing::Test
{
protected:
    ModFontsTest()
    {
        msg.registerPlugin(static_cast<ModMsgPluginIf*>(&fonts));
        root = QFileInfo(m_dir.path()).canonicalFilePath();
        QDir().mkpath(programDir());
    }
    QString programDir() const { return root + "/tree/build/release"; }
    /// Makes a folder of fonts with one font in it.
    QString addFont(const QString& dir, const QString& name)
    {
        EXPECT_TRUE(QDir().mkpath(dir));
        EXPECT_TRUE(QFile::copy(QString(shipped) + "/DejaVuSansMono.ttf", dir + '/' + name));
        return dir + '/' + name;
    }
    void writeFile(const QString& path, const QByteArray& content)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QTemporaryDir m_dir;
    QString root;
    FakeMsgHook msg;
    ModFonts fonts;
};

TEST_F(ModFontsTest, withoutAFolderThereIsAnErrorAndTheStartGoesOn)
{
    fonts.initFonts(programDir());
    EXPECT_EQ(msg.groups(), QStringList("Loading fonts..."));
    EXPECT_EQ(msg.texts(), QStringList("No font folder found."));
    EXPECT_EQ(msg.errors(), QStringList("No font folder found."));
    EXPECT_TRUE(msg.openGroups.isEmpty());
    EXPECT_EQ(msg.surplusCloses, 0);
    EXPECT_EQ(msg.log.last().kind, FakeMsgHook::kindGroupClose);
    EXPECT_FALSE(msg.log.last().success);
}

TEST_F(ModFontsTest, theFirstFolderThatExistsIsUsed)
{
    const QStringList places = {root + "/tree/Common/fonts", root + "/tree/fonts", root + "/tree/build/fonts"};
    for (const QString& place : places) {
        const QString font = addFont(place, "A.ttf");
        msg.reset();
        fonts.initFonts(programDir());
        EXPECT_EQ(msg.infos(), QStringList("Loading font: " + font));
        EXPECT_EQ(msg.log.last().kind, FakeMsgHook::kindGroupClose);
        EXPECT_TRUE(msg.log.last().success);
    }
}

TEST_F(ModFontsTest, aBrokenFileIsReportedAndTheOthersAreLoaded)
{
    const QString dir = root + "/tree/fonts";
    const QString first = addFont(dir, "A.ttf");
    writeFile(dir + "/B.ttf", "no font");
    writeFile(dir + "/C.ttf", QByteArray());
    QFile font(first);
    ASSERT_TRUE(font.open(QIODevice::ReadOnly));
    writeFile(dir + "/D.ttf", font.read(500));
    const QString last = addFont(dir, "E.ttf");
    QDir().mkpath(dir + "/folder.ttf");
    fonts.initFonts(programDir());
    EXPECT_EQ(msg.texts(), (QStringList{"Loading font: " + first, "Cannot load font: " + dir + "/B.ttf",
                                        "Cannot load font: " + dir + "/C.ttf", "Cannot load font: " + dir + "/D.ttf",
                                        "Loading font: " + last}));
    EXPECT_EQ(msg.infos().size(), 2);
    EXPECT_TRUE(msg.openGroups.isEmpty());
    EXPECT_FALSE(msg.log.last().success);
}

TEST_F(ModFontsTest, anEmptyFolderIsEnough)
{
    QDir().mkpath(root + "/tree/fonts");
    addFont(root + "/tree/Common/fonts", "A.ttf");
    fonts.initFonts(programDir());
    EXPECT_EQ(msg.texts(), QStringList());
    EXPECT_TRUE(msg.log.last().success);
}

TEST_F(ModFontsTest, aNameWithAPlaceholderIsShownAsItIs)
{
    const QString font = addFont(root + "/tree/fonts", "A%1%2.ttf");
    fonts.initFonts(programDir());
    EXPECT_EQ(msg.infos(), QStringList("Loading font: " + font));
}

TEST_F(ModFontsTest, thePhaseLoadsTheFontsOfTheBuild)
{
    fonts.modInitIntermod();
    QStringList expected;
    for (const char* style : {"-Bold", "-BoldOblique", "-Oblique", ""}) {
        const QString path = QString(shipped) + "/DejaVuSansMono" + style + ".ttf";
        EXPECT_TRUE(QFileInfo(path).isFile()) << qPrintable(path);
        expected.append("Loading font: " + path);
    }
    EXPECT_EQ(msg.texts(), expected);
    EXPECT_EQ(ShippedFolder::programDir(), NALVO_BINARY_DIR);
}

TEST_F(ModFontsTest, noMessageServiceIsNeeded)
{
    ModFonts alone;
    alone.initFonts(programDir());
    alone.modInitIntermod();
}

} // namespace
