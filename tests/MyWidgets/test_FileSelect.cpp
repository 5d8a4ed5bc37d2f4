#include "ModalHelper.h"
#include "MyFileSelectOpen.h"
#include "MyFileSelectSave.h"
#include "MyPathEdit.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

namespace {

class FileSelect : public ::testing::Test
{
protected:
    FileSelect()
        : open(new MyFileSelectOpen(&page))
        , save(new MyFileSelectSave(&page))
    {
        auto* layout = new QVBoxLayout(&page);
        layout->addWidget(open);
        layout->addWidget(save);
        QDir(folder.path()).mkpath("src");
        existing = write("src/main.psm");
        page.resize(300, 100);
        page.show();
        page.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&page, 60000));
        open->setFocus();
    }

    QString write(const QString& name) const
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return folder.filePath(name);
    }
    static void drop(QWidget* target, const QList<QUrl>& urls)
    {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(4, 4), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &enter);
        ASSERT_TRUE(enter.isAccepted());
        QDragMoveEvent move(QPoint(4, 4), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &move);
        ASSERT_TRUE(move.isAccepted());
        QDropEvent drop(QPoint(4, 4), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &drop);
    }
    static QPushButton* button(QWidget* selector) { return selector->findChild<QPushButton*>("buttonOpenFile"); }
    /// Is the cursor, and so the part of the text around it, inside the field?
    static bool cursorShows(QLineEdit* edit)
    {
        edit->grab(); // the text is scrolled when it is painted
        const QRect cursor = edit->inputMethodQuery(Qt::ImCursorRectangle).toRect();
        return edit->rect().adjusted(-4, 0, 4, 0).contains(cursor.center());
    }

    QTemporaryDir folder;
    QString existing;
    QWidget page;
    MyFileSelectOpen* open;
    MyFileSelectSave* save;
};

} // namespace

TEST_F(FileSelect, eachTextIsChecked)
{
    QSignalSpy valid(open, &MyFileSelectOpen::fileValid);
    open->setFile(existing, QString());
    ASSERT_EQ(valid.count(), 1);
    EXPECT_TRUE(valid.takeFirst().first().toBool());
    QTest::keyClick(open->pathEdit(), Qt::Key_End);
    QTest::keyClicks(open->pathEdit(), "x");
    ASSERT_EQ(valid.count(), 1);
    EXPECT_FALSE(valid.takeFirst().first().toBool());
    QTest::keyClick(open->pathEdit(), Qt::Key_Backspace);
    ASSERT_EQ(valid.count(), 1);
    EXPECT_TRUE(valid.takeFirst().first().toBool());
    open->setFile(folder.path(), QString());
    EXPECT_FALSE(valid.takeFirst().first().toBool()) << "a folder is no file";
    open->setFile(QString(), folder.path());
    EXPECT_FALSE(valid.takeFirst().first().toBool()) << "an empty path is not its folder";
}

TEST_F(FileSelect, aPastedSchemeIsRemoved)
{
    QSignalSpy valid(open, &MyFileSelectOpen::fileValid);
    QApplication::clipboard()->setText("file://" + existing);
    QTest::keyClick(open->pathEdit(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(open->pathEdit()->text(), existing);
    EXPECT_EQ(open->file(), existing);
    ASSERT_EQ(valid.count(), 1) << "the text with the scheme is not judged";
    EXPECT_TRUE(valid.first().first().toBool());

    QSignalSpy saveValid(save, &MyFileSelectSave::fileValid);
    save->pathEdit()->setText("file://" + folder.path() + "/out.hex");
    EXPECT_EQ(save->pathEdit()->text(), folder.path() + "/out.hex");
    ASSERT_EQ(saveValid.count(), 1);
    EXPECT_TRUE(saveValid.first().first().toBool());
}

TEST_F(FileSelect, aSchemeIsRemovedUpToItsLastMarkAndOnlyWithoutBlanks)
{
    open->pathEdit()->setText("file://smb:///a/b");
    EXPECT_EQ(open->pathEdit()->text(), "/a/b");
    open->pathEdit()->setText("a b://c");
    EXPECT_EQ(open->pathEdit()->text(), "a b://c");
    open->pathEdit()->setText("://c");
    EXPECT_EQ(open->pathEdit()->text(), "c");
}

TEST_F(FileSelect, withABaseThePathIsShownRelativeAndGivenAbsolute)
{
    open->setFile(existing, folder.path());
    EXPECT_EQ(open->pathEdit()->text(), "src/main.psm");
    EXPECT_EQ(open->file(), existing);
    EXPECT_TRUE(open->isValid());
    open->setFile("src/main.psm", folder.path());
    EXPECT_EQ(open->pathEdit()->text(), "src/main.psm");
    EXPECT_EQ(open->file(), existing);
    open->setFile("/elsewhere/x.psm", "/elsewhere/deep");
    EXPECT_EQ(open->pathEdit()->text(), "../x.psm");
    EXPECT_EQ(open->file(), "/elsewhere/x.psm");
    open->setFile(QString(), folder.path());
    EXPECT_EQ(open->pathEdit()->text(), "");
    EXPECT_EQ(open->file(), "");
    open->setFile("x.psm", QString());
    EXPECT_EQ(open->file(), "x.psm");
}

TEST_F(FileSelect, anotherBaseJudgesTheSameTextAnew)
{
    QSignalSpy valid(open, &MyFileSelectOpen::fileValid);
    open->setFile("src/main.psm", "/elsewhere");
    open->setFile("src/main.psm", folder.path());
    ASSERT_EQ(valid.count(), 2);
    EXPECT_FALSE(valid.at(0).first().toBool());
    EXPECT_TRUE(valid.at(1).first().toBool());
}

TEST_F(FileSelect, theEndOfEditingIsReportedForAUsablePathOnly)
{
    QSignalSpy opened(open, &MyFileSelectOpen::openFile);
    QTest::keyClicks(open->pathEdit(), existing + "x");
    QTest::keyClick(open->pathEdit(), Qt::Key_Return);
    EXPECT_EQ(opened.count(), 0);
    QTest::keyClick(open->pathEdit(), Qt::Key_Backspace);
    QTest::keyClick(open->pathEdit(), Qt::Key_Return);
    EXPECT_EQ(opened.count(), 1);
    QTest::keyClick(open->pathEdit(), Qt::Key_Tab);
    EXPECT_GE(opened.count(), 1);
    EXPECT_FALSE(open->pathEdit()->hasFocus());

    QSignalSpy saved(save, &MyFileSelectSave::saveFile);
    save->setFocus();
    QTest::keyClicks(save->pathEdit(), folder.path() + "/none/x.hex");
    QTest::keyClick(save->pathEdit(), Qt::Key_Return);
    EXPECT_EQ(saved.count(), 0);
    save->pathEdit()->clear();
    QTest::keyClicks(save->pathEdit(), folder.path() + "/x.hex");
    QTest::keyClick(save->pathEdit(), Qt::Key_Return);
    EXPECT_EQ(saved.count(), 1);
}

TEST_F(FileSelect, aSavePathNeedsAFolderAndAName)
{
    EXPECT_FALSE(save->isValid()) << "an empty path is not valid";
    save->setFile(folder.path() + "/new.hex", QString());
    EXPECT_TRUE(save->isValid());
    save->setFile(folder.path() + "/", QString());
    EXPECT_FALSE(save->isValid());
    save->setFile(folder.path() + "/none/new.hex", QString());
    EXPECT_FALSE(save->isValid());
    save->setFile("new.hex", folder.path());
    EXPECT_TRUE(save->isValid());
    save->setFile(QString(), folder.path());
    EXPECT_FALSE(save->isValid()) << "nor is it with a base folder";
    EXPECT_FALSE(save->pathEdit()->property("problem").toBool()) << "but it is no error yet";
    save->pathEdit()->setText("src/");
    EXPECT_FALSE(save->isValid()) << "a relative path without a name";
}

TEST_F(FileSelect, saveReportsTheStateAndThenTheChange)
{
    QStringList order;
    QObject::connect(save, &MyFileSelectSave::fileValid,
                     [&](bool valid) { order.append(valid ? "valid" : "not valid"); });
    QObject::connect(save, &MyFileSelectSave::fileValidChanged, [&] { order.append("changed"); });
    save->setFile(folder.path() + "/a", QString());
    save->setFile(folder.path() + "/b/c", QString());
    EXPECT_EQ(order, QStringList({"valid", "changed", "not valid", "changed"}));
}

TEST_F(FileSelect, aDroppedFileTakesThePlaceOfTheText)
{
    open->setFile("old.psm", folder.path());
    drop(open->pathEdit(), {QUrl::fromLocalFile(existing)});
    EXPECT_EQ(open->pathEdit()->text(), "src/main.psm");
    const QString blank = write("src/with blank %41.psm");
    drop(open->pathEdit(), {QUrl("http://x.example/"), QUrl::fromLocalFile(blank)});
    EXPECT_EQ(open->file(), blank);
    EXPECT_TRUE(open->isValid());
}

TEST_F(FileSelect, aLongPathShowsItsEndAndTheToolTipAllOfIt)
{
    const QString longPath = "/" + QString("folder/").repeated(40) + "last.psm";
    save->setFocus();
    open->setFile(longPath, QString());
    EXPECT_EQ(open->pathEdit()->cursorPosition(), longPath.size());
    EXPECT_TRUE(cursorShows(open->pathEdit()));
    EXPECT_TRUE(open->pathEdit()->toolTip().contains(longPath));
    // Whoever edits it and leaves sees the end again, in a window of any width.
    open->setFocus();
    QTest::keyClick(open->pathEdit(), Qt::Key_Home);
    EXPECT_EQ(open->pathEdit()->cursorPosition(), 0);
    save->setFocus();
    EXPECT_EQ(open->pathEdit()->cursorPosition(), longPath.size());
    page.resize(220, 100);
    QCoreApplication::processEvents();
    EXPECT_TRUE(cursorShows(open->pathEdit()));
}

TEST_F(FileSelect, theToolTipSaysWhatIsWrong)
{
    open->setDescription("Template of the VHDL file");
    open->setFile("src/none.psm", folder.path());
    EXPECT_TRUE(open->pathEdit()->toolTip().contains("Template of the VHDL file"));
    EXPECT_TRUE(open->pathEdit()->toolTip().contains(folder.path() + "/src/none.psm"));
    EXPECT_TRUE(open->pathEdit()->toolTip().contains("does not exist"));
    EXPECT_TRUE(open->pathEdit()->property("problem").toBool());
    open->setFile("src/main.psm", folder.path());
    EXPECT_FALSE(open->pathEdit()->toolTip().contains("does not exist"));
    EXPECT_FALSE(open->pathEdit()->property("problem").toBool());
    open->setFile(QString(), folder.path());
    EXPECT_FALSE(open->pathEdit()->property("problem").toBool()) << "an empty field is not an error yet";
}

TEST_F(FileSelect, theButtonOpensADialogAtThePresentPath)
{
    open->setWindowTitle("Select vhdl template file");
    open->setNameFilters({"vhdl files(*.vhd)", "Any files(*)"});
    open->setDefaultSuffix("vhd");
    const QString other = write("src/other.vhd");
    open->setFile("src/main.psm", folder.path());
    QString title, suffix, directory;
    QStringList filters;
    QFileDialog::AcceptMode mode = QFileDialog::AcceptSave;
    ModalHelper helper([&](QDialog* shown) {
        auto* dialog = qobject_cast<QFileDialog*>(shown);
        title = dialog->windowTitle();
        suffix = dialog->defaultSuffix();
        directory = dialog->directory().absolutePath();
        filters = dialog->nameFilters();
        mode = dialog->acceptMode();
        dialog->selectFile(other);
        static_cast<QDialog*>(dialog)->accept();
    });
    QTest::mouseClick(button(open), Qt::LeftButton);
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(title, "Select vhdl template file");
    EXPECT_EQ(suffix, "vhd");
    EXPECT_EQ(directory, folder.path() + "/src");
    EXPECT_EQ(filters, QStringList({"vhdl files(*.vhd)", "Any files(*)"}));
    EXPECT_EQ(mode, QFileDialog::AcceptOpen);
    EXPECT_EQ(open->pathEdit()->text(), "src/other.vhd");
}

TEST_F(FileSelect, theSaveDialogIsForWriting)
{
    save->setFile("out.hex", folder.path());
    QFileDialog::AcceptMode mode = QFileDialog::AcceptOpen;
    ModalHelper helper([&](QDialog* dialog) {
        mode = qobject_cast<QFileDialog*>(dialog)->acceptMode();
        dialog->reject();
    });
    save->setFocus();
    QTest::keyClick(button(save), Qt::Key_Space);
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(mode, QFileDialog::AcceptSave);
    EXPECT_EQ(save->pathEdit()->text(), "out.hex") << "a cancelled dialog changes nothing";
}

TEST(FileSelectLife, theFieldMayGoWhileItsDialogIsOpen)
{
    auto* page = new QWidget;
    auto* open = new MyFileSelectOpen(page);
    page->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(page, 60000));
    int seen = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (QApplication::activeModalWidget() == nullptr || seen > 0)
            return;
        ++seen;
        delete page;
    });
    timer.start(1);
    QTest::keyClick(open->findChild<QPushButton*>("buttonOpenFile"), Qt::Key_Space);
    EXPECT_EQ(seen, 1);
}
