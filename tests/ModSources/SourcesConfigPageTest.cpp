// The settings page "Sources" and what the module does around it.

#include "SourcesConfigPage.h"
#include "FakeHooks.h"
#include "ModSources.h"
#include "ModalHelper.h"
#include "QtPrinters.h"
#include "SourcesListWidget.h"

#include <gtest/gtest.h>

#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using nsModSources::ModSources;
using nsModSources::SourcesConfigPage;
using nsModSources::SourcesListWidget;

namespace {

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
    void srcFileContentChanged() override {}

    int lists = 0;
};

class SourcesPageTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        msg.registerPlugin(static_cast<ModMsgPluginIf*>(&sources));
        prj.registerPlugin(static_cast<ModPrjPluginIf*>(&sources));
        sources.modRegisterPlugins({&sources});
        sources.modInit();
        sources.modInitIntermod();
        sources.registerPlugin(&client);
        QDir(m_dir.path()).mkpath("prj/lib");
        for (const char* name : {"main.psm", "uart.psm", "lib/tick.psm", "lib/math.psm"})
            makeFile(path(name));
    }

    QString path(const QString& name) const { return m_dir.path() + "/prj/" + name; }
    QStringList paths(const QStringList& names) const
    {
        QStringList result;
        for (const QString& name : names)
            result.append(path(name));
        return result;
    }
    static QString makeFile(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return path;
    }
    void openPrj(const QStringList& files)
    {
        prj.tree.set(QString("sources/srcFiles"), files);
        prj.open(path("p.nalvo"));
    }
    void openPage()
    {
        page = dynamic_cast<SourcesConfigPage*>(sources.configPage(0));
        ASSERT_NE(page, nullptr);
        sources.configPageSetConfig(page);
        page->setPrjConfigEnabled(prj.isValid());
        page->resize(500, 300);
        page->show();
        page->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(page.data(), 60000));
        list()->setFocus();
    }
    void closePage(bool accepted)
    {
        sources.configPageClose(accepted);
        sources.configPagesClosed(accepted);
    }
    SourcesListWidget* list() const { return page->findChild<SourcesListWidget*>(); }
    QStringList shown() const
    {
        QStringList result;
        for (int row = 0; row < list()->count(); ++row)
            result.append(list()->item(row)->text());
        return result;
    }
    QPushButton* button(const QString& text) const
    {
        for (QPushButton* candidate : page->findChildren<QPushButton*>()) {
            if (candidate->text() == text)
                return candidate;
        }
        return nullptr;
    }
    void click(const QString& text) const { QTest::mouseClick(button(text), Qt::LeftButton); }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, modifiers,
                          list()->visualItemRect(list()->item(row)).center());
    }
    static void drop(QWidget* target, const QStringList& files)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& file : files)
            urls.append(QUrl::fromLocalFile(file));
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(4, 4), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &enter);
        ASSERT_TRUE(enter.isAccepted());
        QDragMoveEvent move(QPoint(4, 4), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &move);
        ASSERT_TRUE(move.isAccepted());
        QDropEvent event(QPoint(4, 4), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &event);
        ASSERT_TRUE(event.isAccepted());
    }

    QTemporaryDir m_dir;
    FakeMsgHook msg;
    FakePrjHook prj;
    Sources sources;
    Client client;
    QPointer<SourcesConfigPage> page;
};

/// Answers all message boxes and keeps their texts.
class BoxReader : public QObject
{
public:
    BoxReader()
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr)
                return;
            titles.append(box->windowTitle());
            texts.append(box->text());
            box->accept();
        });
        m_timer.start(1);
    }

    QStringList titles;
    QStringList texts;

private:
    QTimer m_timer;
};

} // namespace

TEST_F(SourcesPageTest, saysWhatItIs)
{
    openPage();
    EXPECT_EQ(page->pageTitle(), "Sources");
    EXPECT_EQ(page->pageHelpRef(), "pageId://configPageSources");
    QStringList labels;
    for (QLabel* label : page->findChildren<QLabel*>())
        labels.append(label->text());
    EXPECT_TRUE(labels.contains("Sources configuration"));
    EXPECT_TRUE(labels.contains("Source files"));
    for (const char* text : {"Add...", "Remove", "Up", "Down"}) {
        ASSERT_NE(button(text), nullptr) << text;
        EXPECT_FALSE(button(text)->toolTip().isEmpty()) << text;
    }
}

TEST_F(SourcesPageTest, showsRelativePathsAndGivesAbsoluteOnes)
{
    openPrj({"main.psm", "lib/tick.psm"});
    openPage();
    EXPECT_EQ(shown(), QStringList({"main.psm", "lib/tick.psm"}));
    EXPECT_EQ(page->files(), paths({"main.psm", "lib/tick.psm"}));
    EXPECT_EQ(list()->item(1)->toolTip(), path("lib/tick.psm"));
}

TEST_F(SourcesPageTest, aNewOrderReachesTheModuleOnApply)
{
    openPrj({"main.psm", "uart.psm", "lib/tick.psm"});
    openPage();
    clickRow(2);
    click("Up");
    click("Up");
    EXPECT_EQ(shown(), QStringList({"lib/tick.psm", "main.psm", "uart.psm"}));
    EXPECT_EQ(sources.files(), paths({"main.psm", "uart.psm", "lib/tick.psm"})) << "not before apply";
    const int lists = client.lists;
    closePage(true);
    EXPECT_TRUE(page.isNull());
    EXPECT_EQ(sources.files(), paths({"lib/tick.psm", "main.psm", "uart.psm"}));
    EXPECT_EQ(client.lists, lists + 1);
    prj.savePrjCfg();
    EXPECT_EQ(prj.tree.get(QString("sources/srcFiles"), QStringList()),
              QStringList({"lib/tick.psm", "main.psm", "uart.psm"}));
}

TEST_F(SourcesPageTest, cancelKeepsTheList)
{
    openPrj({"main.psm", "uart.psm"});
    openPage();
    clickRow(0);
    click("Remove");
    const int lists = client.lists;
    closePage(false);
    EXPECT_EQ(sources.files(), paths({"main.psm", "uart.psm"}));
    EXPECT_EQ(client.lists, lists);
}

TEST_F(SourcesPageTest, severalFilesMoveAsTheyStand)
{
    openPrj({"main.psm", "uart.psm", "lib/tick.psm", "lib/math.psm"});
    openPage();
    clickRow(0);
    clickRow(2, Qt::ControlModifier);
    click("Down");
    EXPECT_EQ(shown(), QStringList({"uart.psm", "main.psm", "lib/math.psm", "lib/tick.psm"}));
    click("Down");
    EXPECT_EQ(shown(), QStringList({"uart.psm", "lib/math.psm", "main.psm", "lib/tick.psm"}));
    EXPECT_FALSE(button("Down")->isEnabled()) << "the block stands at the end";
    EXPECT_TRUE(button("Up")->isEnabled());
    click("Up");
    click("Up");
    EXPECT_EQ(shown(), QStringList({"main.psm", "lib/tick.psm", "uart.psm", "lib/math.psm"}));
    EXPECT_FALSE(button("Up")->isEnabled());
    EXPECT_EQ(list()->selectedRows(), QList<int>({0, 1}));
}

TEST_F(SourcesPageTest, severalFilesAreRemoved)
{
    openPrj({"main.psm", "uart.psm", "lib/tick.psm", "lib/math.psm"});
    openPage();
    clickRow(1);
    clickRow(2, Qt::ShiftModifier);
    click("Remove");
    EXPECT_EQ(shown(), QStringList({"main.psm", "lib/math.psm"}));
    EXPECT_EQ(list()->selectedRows(), QList<int>({1})) << "the next file is selected";
    closePage(true);
    EXPECT_EQ(sources.files(), paths({"main.psm", "lib/math.psm"}));
    EXPECT_TRUE(QFile::exists(path("uart.psm"))) << "the file itself stays";
}

TEST_F(SourcesPageTest, theKeyboardDoesTheSame)
{
    openPrj({"main.psm", "uart.psm", "lib/tick.psm"});
    openPage();
    button("Add...")->setFocus();
    QTest::keyClick(button("Add..."), Qt::Key_Tab, Qt::ShiftModifier);
    ASSERT_TRUE(list()->hasFocus());
    EXPECT_EQ(list()->selectedRows(), QList<int>({0}));
    QTest::keyClick(list(), Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(shown(), QStringList({"uart.psm", "main.psm", "lib/tick.psm"}));
    EXPECT_EQ(list()->currentRow(), 1);
    QTest::keyClick(list(), Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(shown(), QStringList({"main.psm", "uart.psm", "lib/tick.psm"}));
    QTest::keyClick(list(), Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(shown(), QStringList({"main.psm", "uart.psm", "lib/tick.psm"}));
    QTest::keyClick(list(), Qt::Key_Delete);
    EXPECT_EQ(shown(), QStringList({"uart.psm", "lib/tick.psm"}));
    QTest::keyClick(list(), Qt::Key_Delete);
    QTest::keyClick(list(), Qt::Key_Delete);
    QTest::keyClick(list(), Qt::Key_Delete);
    EXPECT_EQ(shown(), QStringList());
}

TEST_F(SourcesPageTest, aButtonKeepsTheFocusAsLongAsItCanBePressed)
{
    openPrj({"main.psm", "uart.psm", "lib/tick.psm"});
    openPage();
    clickRow(2);
    button("Up")->setFocus();
    QTest::keyClick(button("Up"), Qt::Key_Space);
    EXPECT_TRUE(button("Up")->hasFocus());
    QTest::keyClick(button("Up"), Qt::Key_Space);
    EXPECT_EQ(shown(), QStringList({"lib/tick.psm", "main.psm", "uart.psm"}));
    EXPECT_TRUE(list()->hasFocus()) << "and then leaves it to the list, not to its neighbour";
}

TEST_F(SourcesPageTest, theButtonsFollowTheSelection)
{
    openPrj({"main.psm", "uart.psm"});
    openPage();
    for (const char* text : {"Remove", "Up", "Down"})
        EXPECT_FALSE(button(text)->isEnabled()) << text;
    EXPECT_TRUE(button("Add...")->isEnabled());
    clickRow(0);
    EXPECT_TRUE(button("Remove")->isEnabled());
    EXPECT_FALSE(button("Up")->isEnabled());
    EXPECT_TRUE(button("Down")->isEnabled());
    clickRow(1);
    EXPECT_TRUE(button("Up")->isEnabled());
    EXPECT_FALSE(button("Down")->isEnabled());
}

TEST_F(SourcesPageTest, addOpensADialogInTheProjectFolder)
{
    openPrj({"main.psm"});
    openPage();
    QString title, directory;
    QStringList filters;
    QFileDialog::ViewMode view = QFileDialog::List;
    QFileDialog::FileMode mode = QFileDialog::AnyFile;
    QFileDialog::AcceptMode accept = QFileDialog::AcceptSave;
    ModalHelper helper([&](QDialog* shownDialog) {
        auto* dialog = qobject_cast<QFileDialog*>(shownDialog);
        title = dialog->windowTitle();
        directory = dialog->directory().absolutePath();
        filters = dialog->nameFilters();
        view = dialog->viewMode();
        mode = dialog->fileMode();
        accept = dialog->acceptMode();
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText("\"uart.psm\" \"lib/tick.psm\"");
        static_cast<QDialog*>(dialog)->accept();
    });
    click("Add...");
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(title, "Select psm template file");
    EXPECT_EQ(directory, path("").chopped(1));
    EXPECT_EQ(filters, QStringList("PSM files(*.psm)"));
    EXPECT_EQ(view, QFileDialog::Detail);
    EXPECT_EQ(mode, QFileDialog::ExistingFiles);
    EXPECT_EQ(accept, QFileDialog::AcceptOpen);
    EXPECT_EQ(shown(), QStringList({"main.psm", "uart.psm", "lib/tick.psm"}));
}

TEST_F(SourcesPageTest, aFileFromOutsideIsRefused)
{
    openPrj({"main.psm"});
    openPage();
    const QString outside = makeFile(m_dir.path() + "/outside.psm");
    QDir(m_dir.path()).mkpath("prj2");
    const QString neighbour = makeFile(m_dir.path() + "/prj2/x.psm");
    BoxReader boxes;
    drop(list()->viewport(), {outside, path("uart.psm"), neighbour});
    EXPECT_EQ(boxes.titles, QStringList({"Adding file", "Adding file"}));
    EXPECT_EQ(boxes.texts,
              QStringList(
                  {outside + ": \n\nOnly files located beneath the project folder could be added to the project.",
                   neighbour + ": \n\nOnly files located beneath the project folder could be added to the project."}));
    EXPECT_EQ(shown(), QStringList({"main.psm", "uart.psm"})) << "the good one is taken";
}

TEST_F(SourcesPageTest, aFileThatIsThereIsRefused)
{
    openPrj({"main.psm"});
    openPage();
    BoxReader boxes;
    drop(list()->viewport(), {path("lib/../main.psm")});
    EXPECT_EQ(boxes.titles, QStringList("Adding file"));
    EXPECT_EQ(boxes.texts, QStringList(path("lib/../main.psm") + ": \n\nFile is already added to the project."));
    EXPECT_EQ(shown(), QStringList("main.psm"));
    drop(list()->viewport(), {path("uart.psm"), path("uart.psm")});
    EXPECT_EQ(shown(), QStringList({"main.psm", "uart.psm"}));
    EXPECT_EQ(boxes.texts.size(), 2);
}

TEST_F(SourcesPageTest, aNameThatBeginsWithDotsLiesInside)
{
    makeFile(path("..odd.psm"));
    openPrj({});
    openPage();
    BoxReader boxes;
    drop(list()->viewport(), {path("..odd.psm")});
    EXPECT_EQ(boxes.texts, QStringList());
    EXPECT_EQ(shown(), QStringList("..odd.psm"));
}

TEST_F(SourcesPageTest, theProjectFolderMayBeReachedOverALink)
{
    const QString link = m_dir.path() + "/link";
    ASSERT_TRUE(QFile::link(m_dir.path() + "/prj", link));
    prj.open(link + "/p.nalvo");
    openPage();
    BoxReader boxes;
    drop(list()->viewport(), {path("lib/tick.psm")});
    EXPECT_EQ(boxes.texts, QStringList());
    EXPECT_EQ(shown(), QStringList("lib/tick.psm"));
    EXPECT_EQ(page->files(), QStringList(link + "/lib/tick.psm"));
}

TEST_F(SourcesPageTest, rowsAreDraggedToAnotherPlace)
{
    openPrj({"main.psm", "uart.psm", "lib/tick.psm", "lib/math.psm"});
    openPage();
    EXPECT_EQ(list()->dragDropMode(), QAbstractItemView::DragDrop);
    clickRow(0);
    clickRow(1, Qt::ControlModifier);
    list()->moveRowsTo(3);
    EXPECT_EQ(shown(), QStringList({"lib/tick.psm", "main.psm", "uart.psm", "lib/math.psm"}));
    EXPECT_EQ(list()->selectedRows(), QList<int>({1, 2}));
    list()->moveRowsTo(4);
    EXPECT_EQ(shown(), QStringList({"lib/tick.psm", "lib/math.psm", "main.psm", "uart.psm"}));
    EXPECT_FALSE(button("Down")->isEnabled()) << "the buttons follow";
    list()->moveRowsTo(0);
    EXPECT_EQ(shown(), QStringList({"main.psm", "uart.psm", "lib/tick.psm", "lib/math.psm"}));
    list()->moveRowsTo(1);
    EXPECT_EQ(shown(), QStringList({"main.psm", "uart.psm", "lib/tick.psm", "lib/math.psm"})) << "within itself";
}

TEST_F(SourcesPageTest, aDropGoesToTheNearerSideOfARow)
{
    openPrj({"main.psm", "uart.psm", "lib/tick.psm"});
    openPage();
    const QRect second = list()->visualItemRect(list()->item(1));
    EXPECT_EQ(list()->rowForDrop(second.topLeft() + QPoint(20, 1)), 1);
    EXPECT_EQ(list()->rowForDrop(second.bottomLeft() + QPoint(20, -1)), 2);
    const QRect last = list()->visualItemRect(list()->item(2));
    EXPECT_EQ(list()->rowForDrop(last.bottomLeft() + QPoint(20, 30)), 3) << "below the last row";
}

TEST_F(SourcesPageTest, anEmptyListSaysWhatToDo)
{
    openPrj({});
    openPage();
    const QImage empty = list()->grab().toImage();
    int inked = 0;
    const QRgb ground = empty.pixel(empty.width() / 2, 10);
    for (int y = 10; y < empty.height() - 10; ++y) {
        for (int x = 20; x < empty.width() - 20; ++x)
            inked += empty.pixel(x, y) != ground;
    }
    EXPECT_GT(inked, 200) << "a text of some length";
    page->setPrjConfigEnabled(false);
    const QImage disabled = list()->viewport()->grab().toImage();
    QImage plain(disabled.size(), disabled.format());
    plain.fill(disabled.pixel(disabled.rect().center()));
    plain.setDevicePixelRatio(disabled.devicePixelRatio());
    EXPECT_EQ(disabled, plain) << "and nothing where there is no project";
}

TEST_F(SourcesPageTest, withoutAProjectItIsDisabledAndSaysWhy)
{
    openPage();
    EXPECT_FALSE(page->pageIsEnabled());
    EXPECT_FALSE(button("Add...")->isEnabled());
    EXPECT_TRUE(page->findChild<QLabel*>("pageNote")->isVisible());
    const int lists = client.lists;
    closePage(true);
    EXPECT_EQ(client.lists, lists) << "there is no list that could have changed";
}

TEST_F(SourcesPageTest, aFileThatIsAddedMeanwhileIsNotLost)
{
    openPrj({"main.psm", "uart.psm"});
    openPage();
    clickRow(0);
    click("Remove");
    sources.addFile(path("lib/tick.psm"));
    sources.addFile(path("lib/tick.psm"));
    EXPECT_EQ(shown(), QStringList({"uart.psm", "lib/tick.psm"}));
    sources.removeFile(path("uart.psm"));
    EXPECT_EQ(shown(), QStringList("lib/tick.psm"));
    closePage(true);
    EXPECT_EQ(sources.files(), paths({"lib/tick.psm"}));
}

TEST_F(SourcesPageTest, aProjectThatClosesTakesItsFilesAlong)
{
    openPrj({"main.psm"});
    openPage();
    prj.close();
    EXPECT_EQ(shown(), QStringList());
    closePage(true);
    EXPECT_EQ(sources.files(), QStringList());
}

TEST_F(SourcesPageTest, defaultsLeaveTheListAlone)
{
    openPrj({"main.psm", "uart.psm"});
    openPage();
    page->setDefaultConfig();
    EXPECT_EQ(shown(), QStringList({"main.psm", "uart.psm"}));
    EXPECT_TRUE(page->checkConfig());
    closePage(true);
    EXPECT_EQ(sources.files(), paths({"main.psm", "uart.psm"}));
}

TEST_F(SourcesPageTest, aFileIsKnownUnderAnySpellingOfItsPath)
{
    openPrj({"main.psm"});
    openPage();
    sources.addFile(path("lib/../lib/tick.psm"));
    EXPECT_EQ(sources.files(), paths({"main.psm", "lib/tick.psm"}));
    EXPECT_EQ(shown(), QStringList({"main.psm", "lib/tick.psm"}));
    page->dropFile(path("./main.psm"));
    EXPECT_EQ(shown(), QStringList("lib/tick.psm"));
    page->insertFile(path("./lib/tick.psm"));
    EXPECT_EQ(shown(), QStringList("lib/tick.psm"));
}

TEST_F(SourcesPageTest, thePageMayGoWhileItsFileDialogIsOpen)
{
    openPrj({"main.psm"});
    openPage();
    int seen = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (QApplication::activeModalWidget() == nullptr || seen > 0)
            return;
        ++seen;
        closePage(false);
    });
    timer.start(1);
    QTest::keyClick(button("Add..."), Qt::Key_Space);
    EXPECT_EQ(seen, 1);
    EXPECT_TRUE(page.isNull());
}

TEST_F(SourcesPageTest, thePageMayGoWhileARefusalIsShown)
{
    openPrj({"main.psm"});
    openPage();
    const QString outside = makeFile(m_dir.path() + "/outside.psm");
    int seen = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (QApplication::activeModalWidget() == nullptr || seen > 0)
            return;
        ++seen;
        closePage(false);
    });
    timer.start(1);
    emit list()->filesDropped({outside, outside, path("uart.psm")});
    EXPECT_EQ(seen, 1);
    EXPECT_TRUE(page.isNull());
}
