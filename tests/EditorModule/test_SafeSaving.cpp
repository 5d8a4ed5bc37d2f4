// Saving where the system does not help: full disk, folder that takes no file, file with two names.

#include "EditorModuleTest.h"
#include "FullDisk.h"
#include "OrdinaryUser.h"

#include <unistd.h>

using nsModEditor::EditorWidget;

namespace {

using SafeSaving = EditorModuleTest;

struct stat statusOf(const QString& path)
{
    struct stat status = {};
    EXPECT_EQ(stat(path.toLocal8Bit().constData(), &status), 0);
    return status;
}

TEST_F(SafeSaving, aFullDiskLeavesTheFileAndIsReported)
{
    const QByteArray old(692, 'o');
    for (const int size : {1, 100, 692, 4096, 16383, 16384, 16385, 100000}) {
        EditorWidget* widget = open("a.psm", old);
        widget->selectAll();
        widget->insertText(QString(size, 'n'));
        msg.reset();
        {
            const FullDisk disk(rlim_t(size) / 2);
            EXPECT_FALSE(editor.saveFile()) << size;
        }
        EXPECT_EQ(read("a.psm"), old) << size;
        EXPECT_EQ(msg.errors(), QStringList({"Can not write data to file: " + path("a.psm")})) << size;
        EXPECT_TRUE(widget->isModified()) << size;
        EXPECT_EQ(widget->toPlainText(), QString(size, 'n'));
        EXPECT_TRUE(editor.saveFile()) << size;
        EXPECT_EQ(read("a.psm"), QByteArray(size, 'n')) << size;
        editor.closeFile();
        EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList({"a.psm"}));
    }
}

TEST_F(SafeSaving, theReasonIsReported)
{
    type(open("a.psm", "NOP"), "X");
    const FullDisk disk(0);
    EXPECT_FALSE(editor.saveFile());
    EXPECT_TRUE(msg.infos().contains("Reason: " + qt_error_string(EFBIG))) << msg.dump().toStdString();
}

TEST_F(SafeSaving, bothNamesOfAFileHaveTheNewText)
{
    open("a.psm", "NOP");
    ASSERT_EQ(::link(path("a.psm").toLocal8Bit().constData(), path("b.psm").toLocal8Bit().constData()), 0);
    type(document("a.psm"), "X");
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(read("a.psm"), "XNOP");
    EXPECT_EQ(read("b.psm"), "XNOP");
    EXPECT_EQ(statusOf(path("a.psm")).st_nlink, 2u);
}

TEST_F(SafeSaving, aFullDiskLeavesAFileWithTwoNames)
{
    const QByteArray old(692, 'o');
    for (const int size : {1, 100, 692, 4096, 100000}) {
        EditorWidget* widget = open("a.psm", old);
        ASSERT_EQ(::link(path("a.psm").toLocal8Bit().constData(), path("b.psm").toLocal8Bit().constData()), 0);
        widget->selectAll();
        widget->insertText(QString(size, 'n'));
        {
            const FullDisk disk(rlim_t(size) / 2);
            EXPECT_FALSE(editor.saveFile()) << size;
        }
        EXPECT_EQ(read("a.psm"), old) << size;
        EXPECT_EQ(read("b.psm"), old) << size;
        widget->clearModified();
        editor.closeFile();
        QFile::remove(path("b.psm"));
    }
}

TEST_F(SafeSaving, theOwnerOfAFileStays)
{
    // In a folder for all, a file of root that all may write. Without root the file is simply one's own.
    EditorWidget* widget = open("a.psm", "NOP");
    ASSERT_EQ(chmod(path("a.psm").toLocal8Bit().constData(), 0666), 0);
    ASSERT_EQ(chmod(dir.path().toLocal8Bit().constData(), 0777), 0);
    const struct stat before = statusOf(path("a.psm"));
    type(widget, "X");
    {
        const OrdinaryUser user;
        EXPECT_TRUE(editor.saveFile());
    }
    EXPECT_EQ(read("a.psm"), "XNOP");
    EXPECT_EQ(statusOf(path("a.psm")).st_uid, before.st_uid);
    EXPECT_EQ(statusOf(path("a.psm")).st_gid, before.st_gid);
    EXPECT_EQ(statusOf(path("a.psm")).st_mode, before.st_mode);
}

TEST_F(SafeSaving, aFolderThatTakesNoNewFileStillLetsItsFileBeSaved)
{
    EditorWidget* widget = open("a.psm", "NOP");
    ASSERT_EQ(chmod(path("a.psm").toLocal8Bit().constData(), 0666), 0);
    ASSERT_EQ(chmod(dir.path().toLocal8Bit().constData(), 0555), 0);
    type(widget, "X");
    {
        const OrdinaryUser user;
        EXPECT_TRUE(editor.saveFile()) << msg.dump().toStdString();
    }
    ASSERT_EQ(chmod(dir.path().toLocal8Bit().constData(), 0755), 0);
    EXPECT_EQ(read("a.psm"), "XNOP");
}

} // namespace
