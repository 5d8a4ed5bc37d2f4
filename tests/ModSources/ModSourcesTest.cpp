#include "ModSources.h"
#include "FakeHooks.h"
#include "ModalHelper.h"
#include "PrjMemberFile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

using nsModSources::ModSources;

namespace {

const char key[] = "sources/srcFiles";

QString str(const char* text)
{
    return QString::fromUtf8(text);
}

/// The module with its inner operations.
class Sources : public ModSources
{
public:
    using ModSources::addFile;
    using ModSources::removeFile;
};

class Client : public ModSourcesPluginIf
{
public:
    void srcFileListChanged() override { ++lists; }
    void srcFileContentChanged() override { ++contents; }

    int lists = 0;
    int contents = 0;
};

class ModSourcesTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        msg.registerPlugin(static_cast<ModMsgPluginIf*>(&sources));
        prj.registerPlugin(static_cast<ModPrjPluginIf*>(&sources));
        script.registerPlugin(static_cast<ModScriptPluginIf*>(&sources));
        sources.modRegisterPlugins({&sources});
        sources.modInit();
        sources.modInitIntermod();
        sources.modRun();
        sources.registerPlugin(&client);
    }

    QString path(const char* name) { return m_dir.filePath(str(name)); }
    QString makeFile(const char* name)
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return path(name);
    }
    void open(const QStringList& list)
    {
        prj.tree.set(str(key), list);
        prj.open(path("p.nalvo"));
    }

    QTemporaryDir m_dir;
    FakeMsgHook msg;
    FakePrjHook prj;
    FakeScriptHook script;
    Sources sources;
    Client client;
};

TEST_F(ModSourcesTest, IsEmptyAtFirstAndKnownToScripts)
{
    EXPECT_TRUE(sources.files().isEmpty());
    EXPECT_EQ(script.objects.value(str("sources")), &sources);
}

TEST_F(ModSourcesTest, ReadsTheListInOrder)
{
    const QString b = makeFile("b.psm");
    const QString a = makeFile("a.psm");
    open({str("b.psm"), str("a.psm")});
    EXPECT_EQ(sources.files(), QStringList({b, a}));
    EXPECT_EQ(client.lists, 1);
    EXPECT_TRUE(msg.texts().isEmpty());
}

TEST_F(ModSourcesTest, WritesTheListRelativeToTheProject)
{
    makeFile("a.psm");
    open({str("a.psm")});
    sources.addFile(path("sub/b.psm"));
    prj.close();
    EXPECT_EQ(prj.saved.get(str(key), QStringList()), QStringList({str("a.psm"), str("sub/b.psm")}));
    EXPECT_TRUE(sources.files().isEmpty());
}

TEST_F(ModSourcesTest, VanishedFilesAreReportedAndForgotten)
{
    const QString a = makeFile("a.psm");
    open({str("gone.psm"), str("a.psm")});
    EXPECT_EQ(msg.texts(), QStringList(str("File does not exist: ") + path("gone.psm")));
    EXPECT_EQ(msg.errors().size(), 1);
    EXPECT_EQ(sources.files(), QStringList(a));
    prj.close();
    EXPECT_EQ(prj.saved.get(str(key), QStringList()), QStringList(str("a.psm")));
}

TEST_F(ModSourcesTest, FilesWithoutRightsAreReportedAndStay)
{
    const QString readOnly = makeFile("readonly.psm");
    const QString closed = makeFile("closed.psm");
    ASSERT_EQ(chmod(readOnly.toLocal8Bit().constData(), 0444), 0);
    ASSERT_EQ(chmod(closed.toLocal8Bit().constData(), 0), 0);
    ASSERT_EQ(chmod(m_dir.path().toLocal8Bit().constData(), 0755), 0);
    EXPECT_EXIT(
        {
            // The rights of files mean nothing to the superuser, so be somebody else.
            if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0))
                _exit(99);
            open({str("readonly.psm"), str("closed.psm")});
            const bool ok = msg.texts() == msg.warnings() &&
                            msg.texts() == QStringList({str("File is not writable: ") + readOnly,
                                                        str("No read access for file: ") + closed,
                                                        str("File is not writable: ") + closed}) &&
                            sources.files() == QStringList({readOnly, closed});
            _exit(ok ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "");
}

TEST_F(ModSourcesTest, ASecondProjectStartsWithItsOwnList)
{
    makeFile("a.psm");
    open({str("a.psm")});
    prj.close();
    open({});
    EXPECT_TRUE(sources.files().isEmpty());
    EXPECT_EQ(client.lists, 2);
}

TEST_F(ModSourcesTest, AddsAFileOnce)
{
    open({});
    client.lists = 0;
    sources.addFile(path("a.psm"));
    sources.addFile(path("a.psm"));
    EXPECT_EQ(sources.files(), QStringList(path("a.psm")));
    EXPECT_EQ(msg.texts(), QStringList(str("Added file to the project: ") + path("a.psm")));
    EXPECT_EQ(msg.infos().size(), 1);
    EXPECT_EQ(client.lists, 1);
}

TEST_F(ModSourcesTest, AFileOutsideOfTheProjectFolderIsKnownUnderItsCleanPath)
{
    const QString outside = makeFile("x.psm");
    QDir(m_dir.path()).mkdir(str("project"));
    prj.tree.set(str(key), QStringList(str("../x.psm")));
    prj.open(path("project/p.nalvo"));
    EXPECT_EQ(sources.files(), QStringList(outside));
    // Nobody is asked: a question would wait here for an answer.
    EXPECT_TRUE(sources.chkProjectMembership(outside));
    EXPECT_TRUE(sources.chkProjectMembership(path("project/../x.psm")));
    sources.addFile(path("project/./../x.psm"));
    EXPECT_EQ(sources.files(), QStringList(outside));
    sources.addFile(path("project/sub/../y.psm"));
    EXPECT_EQ(sources.files(), QStringList({outside, path("project/y.psm")}));
    prj.close();
    EXPECT_EQ(prj.saved.get(str(key), QStringList()), QStringList({str("../x.psm"), str("y.psm")}));
}

TEST_F(ModSourcesTest, RemovesAFileUnderAnySpellingOfItsPath)
{
    open({});
    sources.addFile(path("a.psm"));
    sources.removeFile(path("./sub/../a.psm"));
    EXPECT_TRUE(sources.files().isEmpty());
}

TEST_F(ModSourcesTest, RemovesTheFirstMatch)
{
    makeFile("a.psm");
    makeFile("b.psm");
    open({str("a.psm"), str("b.psm"), str("a.psm")});
    client.lists = 0;
    sources.removeFile(path("a.psm"));
    EXPECT_EQ(sources.files(), QStringList({path("b.psm"), path("a.psm")}));
    EXPECT_EQ(client.lists, 1);
    sources.removeFile(path("c.psm"));
    EXPECT_EQ(client.lists, 1);
}

TEST_F(ModSourcesTest, ContentChangesReachTheClients)
{
    sources.setFileContentChanged();
    EXPECT_EQ(client.contents, 1);
    EXPECT_EQ(client.lists, 0);
}

TEST_F(ModSourcesTest, Clients)
{
    sources.registerPlugin(&client);
    sources.registerPlugin(nullptr);
    sources.unregisterPlugin(nullptr);
    EXPECT_EQ(client.modSourcesHook, &sources);
    sources.setFileContentChanged();
    EXPECT_EQ(client.contents, 1);
    sources.unregisterPlugin(&client);
    EXPECT_EQ(client.modSourcesHook, nullptr);
    sources.unregisterPlugin(&client);
    sources.setFileContentChanged();
    EXPECT_EQ(client.contents, 1);
}

TEST_F(ModSourcesTest, AppliedSettingsTellTheClients)
{
    sources.configPagesClosed(true);
    EXPECT_EQ(client.lists, 0);
    open({});
    client.lists = 0;
    sources.configPagesClosed(false);
    EXPECT_EQ(client.lists, 0);
    sources.configPagesClosed(true);
    EXPECT_EQ(client.lists, 1);
}

// --- the question ---

TEST_F(ModSourcesTest, KnownAndEmptyPathsAreNotAskedFor)
{
    makeFile("a.psm");
    open({str("a.psm")});
    ModalHelper helper([](QDialog*) {});
    EXPECT_TRUE(sources.chkProjectMembership(path("a.psm")));
    EXPECT_FALSE(sources.chkProjectMembership(QString()));
    QCoreApplication::processEvents();
    EXPECT_EQ(helper.seen(), 0);
}

TEST_F(ModSourcesTest, YesAddsTheFile)
{
    open({});
    ModalHelper helper([](QDialog* dialog) {
        auto* box = qobject_cast<QMessageBox*>(dialog);
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->windowTitle(), str("Add file to project"));
        EXPECT_EQ(box->icon(), QMessageBox::Warning);
        EXPECT_EQ(box->text(), str("<p>The file is not added to the project:</p><p><b>sub/a&lt;b&gt;.psm</b><p>"
                                   "<p>Do you want to add the file to the project?</p>"));
        EXPECT_EQ(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
        EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No));
        box->button(QMessageBox::Yes)->click();
    });
    EXPECT_TRUE(sources.chkProjectMembership(path("sub/a<b>.psm")));
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(sources.files(), QStringList(path("sub/a<b>.psm")));
    EXPECT_EQ(client.lists, 2);
    EXPECT_TRUE(sources.chkProjectMembership(path("sub/a<b>.psm")));
    EXPECT_EQ(helper.seen(), 1);
}

TEST_F(ModSourcesTest, NoAndEscapeAddNothing)
{
    open({});
    for (const bool escape : {false, true}) {
        ModalHelper helper([escape](QDialog* dialog) {
            if (escape)
                dialog->reject();
            else
                qobject_cast<QMessageBox*>(dialog)->button(QMessageBox::No)->click();
        });
        EXPECT_FALSE(sources.chkProjectMembership(path("a.psm")));
        EXPECT_EQ(helper.seen(), 1);
    }
    EXPECT_TRUE(sources.files().isEmpty());
    EXPECT_TRUE(msg.texts().isEmpty());
}

TEST(ModSourcesAlone, NeedsNoOtherModule)
{
    Sources sources;
    sources.modRegisterPlugins({nullptr});
    sources.modInit();
    sources.modInitIntermod();
    sources.modRun();
    sources.prjOpen();
    sources.prjOpened();
    sources.addFile(str("/a.psm"));
    EXPECT_EQ(sources.files(), QStringList(str("/a.psm")));
    sources.prjSave();
    sources.configPagesClosed(true);
    sources.prjClose();
    EXPECT_TRUE(sources.files().isEmpty());
    EXPECT_TRUE(sources.modExitRequest());
    sources.modExitIntermod();
    sources.modExit();
}

TEST(PrjMemberFileTest, IsAShell)
{
    nsModSources::PrjMemberFile file;
    file.setPrjDir(QDir(str("/tmp")));
    file.setRelFilePath(str("a"));
    file.setAbsFilePath(str("/tmp/a"));
    EXPECT_TRUE(file.relFilePath().isNull());
    EXPECT_TRUE(file.absFilePath().isNull());
}

} // namespace
