// The module: where it finds templates, which entries they make, and what it does without others.

#include "FakeEditorHook.h"
#include "FakeMsgHook.h"
#include "ModTemplates.h"

#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QTemporaryDir>

#include <memory>

using nsModEditor::EditorSupportMenu;
using nsModTemplates::ModTemplates;

namespace {

class Templates : public ::testing::Test
{
protected:
    Templates()
    {
        editor.menu = &menu;
        editor.registerPlugin(static_cast<ModEditorPluginIf*>(&module));
        msg.attach(static_cast<ModMsgPluginIf*>(&module));
        QObject::connect(&menu, &EditorSupportMenu::insertText, [this](const QString& text) { inserted.append(text); });
    }

    QString write(const QString& name, const QByteArray& content)
    {
        const QString path = folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }
    static QStringList entries(const QMenu* shown)
    {
        QStringList texts;
        for (const QAction* action : shown->actions())
            texts.append(action->text());
        return texts;
    }
    /// What choosing the entry inserts.
    QStringList choose(const QStringList& path)
    {
        inserted.clear();
        menu.node(path)->action->trigger();
        return inserted;
    }

    QTemporaryDir folder;
    EditorSupportMenu menu;
    FakeEditorHook editor;
    FakeMsgHook msg;
    ModTemplates module;
    QStringList inserted;
};

TEST_F(Templates, fileMakesOneEntryALineAndInsertsWhatFollowsItsMark)
{
    write("a.txt",
          "About.\nmenuItem = Group/First\nmenuItem=Group/Second\nmore text\ntemplate = dropped\n\tLOAD\n\nend");
    module.initTemplates(folder.path());
    EXPECT_EQ(entries(menu.menu), QStringList({"Group"}));
    EXPECT_EQ(entries(menu.node({"Group"})->menu), QStringList({"First", "Second"}));
    EXPECT_EQ(choose({"Group", "First"}), QStringList({"\tLOAD\n\nend"}));
    EXPECT_EQ(choose({"Group", "Second"}), QStringList({"\tLOAD\n\nend"}));
}

TEST_F(Templates, lineMustBeginWithTheWord)
{
    write("a.txt", " menuItem = Indented\nMENUITEM = Upper\nthe menuItem = Inside\nmenuItem =\nmenuItem =   \n"
                   "menuItem\t=\t Spaces in it  \ntemplate =\nx\n");
    module.initTemplates(folder.path());
    EXPECT_EQ(entries(menu.menu), QStringList({"Spaces in it  "}));
}

TEST_F(Templates, lineEndsOfOtherSystemsDoNotGetIntoTheMenu)
{
    write("a.txt", "menuItem = Dos/Entry\r\ntemplate =\r\nline 1\r\nline 2\r\n");
    module.initTemplates(folder.path());
    EXPECT_EQ(entries(menu.node({"Dos"})->menu), QStringList({"Entry"}));
    EXPECT_EQ(choose({"Dos", "Entry"}), QStringList({"line 1\nline 2\n"}));
}

TEST_F(Templates, lastLineWithoutAnEnd)
{
    write("a.txt", "template =\ntext\nmenuItem = Last");
    module.initTemplates(folder.path());
    EXPECT_EQ(entries(menu.menu), QStringList({"Last"}));
    EXPECT_EQ(choose({"Last"}), QStringList({"text\nmenuItem = Last"}));
}

TEST_F(Templates, withoutAMarkNothingIsInserted)
{
    write("a.txt", "menuItem = Empty\ntext\n");
    module.initTemplates(folder.path());
    EXPECT_EQ(choose({"Empty"}).join(QString()), QString());
}

TEST_F(Templates, laterFileInSortedOrderWins)
{
    write("b.txt", "menuItem = Same/Path\ntemplate =\nfrom b\n");
    write("a.txt", "menuItem = Same/Path\ntemplate =\nfrom a\n");
    write("a/z.txt", "menuItem = Same/Path\ntemplate =\nfrom a/z\n");
    module.initTemplates(folder.path());
    EXPECT_EQ(entries(menu.node({"Same"})->menu), QStringList({"Path"}));
    EXPECT_EQ(choose({"Same", "Path"}), QStringList({"from b\n"}));
}

TEST_F(Templates, pathBelowALeafKeepsTheLeaf)
{
    write("a.txt", "menuItem = Leaf\ntemplate =\nleaf\n");
    write("b.txt", "menuItem = Leaf/Below\ntemplate =\nbelow\n");
    module.initTemplates(folder.path());
    EXPECT_EQ(entries(menu.menu), QStringList({"Leaf"}));
    EXPECT_EQ(menu.node({"Leaf"})->menu, nullptr);
    EXPECT_EQ(choose({"Leaf"}), QStringList({"leaf\n"}));
}

TEST_F(Templates, menuStaysEmptyAndUnseenWithoutTemplates)
{
    module.initTemplates(folder.path());
    QMenu shown;
    menu.addSupportMenu(&shown);
    EXPECT_TRUE(shown.actions().isEmpty());
    write("a.txt", "menuItem = Entry\n");
    module.initTemplates(folder.path());
    menu.addSupportMenu(&shown);
    EXPECT_EQ(entries(&shown), QStringList({"Insert..."}));
}

TEST_F(Templates, scanGoesThroughAllFoldersAndSorts)
{
    const QStringList files = {write("a/deep/er/x.psm", ""), write("a/y.psm", ""), write("b.psm", ""), write("c", "")};
    QDir().mkpath(folder.filePath("empty"));
    QFile::link(folder.filePath("nowhere"), folder.filePath("broken"));
    QFile::link(folder.path(), folder.filePath("a/loop"));
    EXPECT_EQ(ModTemplates::scanDirectory(folder.path()), files);
    EXPECT_EQ(ModTemplates::scanDirectory(folder.filePath("missing")), QStringList());
}

TEST_F(Templates, folderIsTheFirstThatExists)
{
    const QString program = folder.filePath("build/release");
    QDir().mkpath(program);
    EXPECT_EQ(ModTemplates::templateDir(program), QString());
    QDir().mkpath(folder.filePath("Common/asmTemplates"));
    EXPECT_EQ(ModTemplates::templateDir(program), folder.filePath("Common/asmTemplates"));
    QDir().mkpath(folder.filePath("asmTemplates"));
    EXPECT_EQ(ModTemplates::templateDir(program), folder.filePath("asmTemplates"));
    write("build/asmTemplates", "a file is no folder");
    EXPECT_EQ(ModTemplates::templateDir(program), folder.filePath("asmTemplates"));
    QFile::remove(folder.filePath("build/asmTemplates"));
    QDir().mkpath(folder.filePath("build/asmTemplates"));
    EXPECT_EQ(ModTemplates::templateDir(program), folder.filePath("build/asmTemplates"));
}

TEST_F(Templates, fileThatCanNotBeReadIsReported)
{
    const QString path = write("a.txt", "menuItem = Secret\n");
    QFile::setPermissions(path, QFileDevice::Permissions());
    if (QFile(path).open(QIODevice::ReadOnly)) {
        // Whoever may read everything sees the entry.
        module.initTemplates(folder.path());
        EXPECT_EQ(entries(menu.menu), QStringList({"Secret"}));
        return;
    }
    module.initTemplates(folder.path());
    EXPECT_TRUE(menu.children.isEmpty());
    ASSERT_EQ(msg.messages().size(), 1);
    EXPECT_TRUE(msg.messages().first().text.contains(path));
}

TEST_F(Templates, bytesAreTakenAsTheyAre)
{
    write("a.txt", QByteArray("menuItem = Any\ntemplate =\n\xE4\x80\xFF\n", 30));
    module.initTemplates(folder.path());
    EXPECT_EQ(choose({"Any"}), QStringList({QString::fromLatin1("\xE4\x80\xFF\n", 4)}));
}

TEST_F(Templates, doesWithoutAnEditor)
{
    write("a.txt", "menuItem = Entry\n");
    editor.menu = nullptr;
    module.initTemplates(folder.path());
    module.modEditorHook = nullptr;
    module.initTemplates(folder.path());
    module.initTemplates(QString());
    module.modInit();
    module.modInitIntermod();
    module.modRun();
    EXPECT_TRUE(module.modExitRequest());
    module.modExitIntermod();
    module.modExit();
    EXPECT_TRUE(menu.children.isEmpty());
}

TEST_F(Templates, programOfABuildFindsTheShippedOnes)
{
    // Where the program of a build lies.
    const QString dir = ModTemplates::templateDir(NALVO_SOURCE_DIR "/build/any");
    ASSERT_EQ(dir, QString(NALVO_SOURCE_DIR "/Common/asmTemplates"));
    module.initTemplates(dir);
    EXPECT_EQ(entries(menu.menu), QStringList({"Templates"}));
    EXPECT_EQ(entries(menu.node({"Templates"})->menu), QStringList({"Mico8", "PicoBlaze 3", "PicoBlaze 6"}));
}

} // namespace
