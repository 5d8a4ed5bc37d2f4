// A collection that is missing, damaged, foreign, or changed while the program runs; contents and index.

#include "HlpFixture.h"

#include "HlpIndexWidget.h"
#include "ModalAnswers.h"
#include "QtPrinters.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTabWidget>

using nsModHlp::HlpCollection;
using nsModHlp::HlpConfig;
using nsModHlp::HlpIndexWidget;

namespace {

const char* const setupFailed = "Cannot setup help data!";

class Collection : public HlpFixture
{
protected:
    Collection()
    {
        QDir(dir.path()).mkpath("bin");
        QDir(dir.path()).mkpath("hlp");
    }
    QString program() const { return dir.filePath("bin/nalvo"); }
    QString collectionFile() const { return dir.filePath("hlp/hlpCollection.qhc"); }
    QString pagesFile() const { return dir.filePath("hlp/test.qch"); }
    void copyCollection() const
    {
        ASSERT_TRUE(QFile::copy(TestCollection::file(), collectionFile()));
        ASSERT_TRUE(QFile::copy(QFileInfo(TestCollection::file()).path() + "/test.qch", pagesFile()));
    }
    static void write(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    /// Uses all that the help has, with the panel shown.
    void useEverything()
    {
        hlp->hlpIndexSideRight = HlpConfig::indexLeft;
        hlp->rdAppCfg();
        hlp->handleUrl(QUrl("pageid://asmFeMessages#errSyntax"));
        hlp->openFile(QUrl("pageId://gettingStarted"));
        QPlainTextEdit text("LOAD s0, 1");
        hlp->explain(&text);
        hlp->explain(nullptr);
        QWidget dialog;
        hlp->showDialogHlpRef(&dialog, "pageId://about");
        find("text");
        hlp->findPrev(false);
        hlp->prjSave();
        prj.open("/tmp/p.nalvo");
        for (int turn = 0; turn < 20; ++turn)
            QApplication::processEvents();
        auto* index = qobject_cast<HlpIndexWidget*>(gui.widgetNamed("Help"));
        ASSERT_NE(index, nullptr);
        auto* tabs = index->findChild<QTabWidget*>();
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            for (int turn = 0; turn < 10; ++turn)
                QApplication::processEvents();
        }
        index->findChild<QLineEdit*>("hlpIndexFilter")->setText("errS");
        QTest::keyClick(index->findChild<QLineEdit*>("hlpIndexFilter"), Qt::Key_Return);
        hlp->closeDialogHlp(&dialog);
        hlp->closeAllFiles();
        stop();
    }
    void expectFailure()
    {
        start(program());
        EXPECT_EQ(msg.errors(), QStringList{setupFailed});
        EXPECT_EQ(msg.helpHandlers.size(), 1);
        useEverything();
        EXPECT_EQ(msg.errors().count(setupFailed), 1);
        EXPECT_TRUE(msg.helpHandlers.isEmpty());
    }

    QTemporaryDir dir;
};

TEST_F(Collection, aGoodOneIsNoMessage)
{
    copyCollection();
    start(program());
    EXPECT_TRUE(msg.messages().isEmpty()) << qPrintable(msg.dump());
    useEverything();
}

TEST_F(Collection, aMissingOneIsOneMessage)
{
    expectFailure();
}

TEST_F(Collection, aFolderWithItsNameIsOneMessage)
{
    QDir(dir.path()).mkpath("hlp/hlpCollection.qhc");
    expectFailure();
}

TEST_F(Collection, anEmptyOneIsOneMessage)
{
    write(collectionFile(), "");
    expectFailure();
}

TEST_F(Collection, oneOfOtherBytesIsOneMessage)
{
    write(collectionFile(), QByteArray(5000, 'x'));
    write(pagesFile(), QByteArray(5000, 'x'));
    expectFailure();
}

TEST_F(Collection, oneWithoutItsPagesIsOneMessage)
{
    copyCollection();
    ASSERT_TRUE(QFile::remove(pagesFile()));
    expectFailure();
}

TEST_F(Collection, oneWhosePagesAreDamagedIsOneMessage)
{
    copyCollection();
    write(pagesFile(), QByteArray(100000, '\0'));
    expectFailure();
}

TEST_F(Collection, oneWhosePagesEndEarlyIsOneMessageOrNone)
{
    copyCollection();
    const qint64 size = QFileInfo(pagesFile()).size();
    ASSERT_TRUE(QFile::resize(pagesFile(), size / 2));
    start(program());
    EXPECT_LE(msg.errors().size(), 1);
    useEverything();
}

TEST_F(Collection, oneThatBelongsToAnotherProgramIsOneMessage)
{
    // Its pages are in order, but there is no table of pages below our name.
    const QString pages = dir.filePath("pages");
    QDir().mkpath(pages);
    write(pages + "/index.html", "<html><head><title>Other</title></head><body>Other</body></html>");
    write(pages + "/test.qhp",
          "<?xml version=\"1.0\" encoding=\"UTF-8\"?><QtHelpProject version=\"1.0\"><namespace>org.other</namespace>"
          "<virtualFolder>doc</virtualFolder><filterSection><toc><section title=\"Other\" ref=\"index.html\"/></toc>"
          "<files><file>index.html</file></files></filterSection></QtHelpProject>");
    write(pages + "/test.qhcp",
          "<?xml version=\"1.0\" encoding=\"UTF-8\"?><QHelpCollectionProject version=\"1.0\"><docFiles><generate><file>"
          "<input>test.qhp</input><output>test.qch</output></file></generate><register><file>test.qch</file></register>"
          "</docFiles></QHelpCollectionProject>");
    QProcess process;
    process.start(NALVO_QHELPGENERATOR, {"-s", pages + "/test.qhcp", "-o", pages + "/hlpCollection.qhc"});
    ASSERT_TRUE(process.waitForFinished(120000));
    ASSERT_TRUE(QFile::copy(pages + "/test.qch", pagesFile()));
    ASSERT_TRUE(QFile::copy(pages + "/hlpCollection.qhc", collectionFile()));
    expectFailure();
}

TEST_F(Collection, aNewerOneReplacesTheCopy)
{
    copyCollection();
    start(program());
    hlp->openFile(QUrl("pageId://about"));
    EXPECT_TRUE(shows("About page"));
    stop();
    // The shipped files are never written to.
    const QDir cache(QStandardPaths::writableLocation(QStandardPaths::CacheLocation));
    const int copies = cache.entryList({"help-*"}, QDir::Dirs).size();
    EXPECT_GE(copies, 1);
    ASSERT_TRUE(QFile::remove(pagesFile()));
    HlpCollection again;
    EXPECT_FALSE(again.open(collectionFile()));
}

TEST_F(Collection, aCopyThatWasDamagedIsMadeAnew)
{
    copyCollection();
    start(program());
    stop();
    const QDir cache(QStandardPaths::writableLocation(QStandardPaths::CacheLocation));
    for (const QFileInfo& info : cache.entryInfoList({"help-*"}, QDir::Dirs)) {
        write(info.filePath() + "/test.qch", "damaged");
        write(info.filePath() + "/hlpCollection.qhc", "damaged");
    }
    HlpCollection again;
    EXPECT_TRUE(again.open(collectionFile()));
}

TEST_F(Collection, whereItLies)
{
    const auto found = [&](const char* place) {
        const QString path = dir.filePath(place);
        QDir().mkpath(QFileInfo(path).path());
        write(path, "x");
        return QDir::cleanPath(path);
    };
    const QString programDir = dir.filePath("a/b/bin");
    QDir().mkpath(programDir);
    EXPECT_EQ(HlpCollection::find(programDir), "");
    const QString common = found("a/Common/hlp/hlpCollection.qhc");
    EXPECT_EQ(HlpCollection::find(programDir), common);
    const QString further = found("a/hlp/hlpCollection.qhc");
    EXPECT_EQ(HlpCollection::find(programDir), further);
    const QString beside = found("a/b/hlp/hlpCollection.qhc");
    EXPECT_EQ(HlpCollection::find(programDir), beside);
}

TEST_F(Collection, aLinkToTheProgramLeadsToItsCollection)
{
    copyCollection();
    write(program(), "program");
    QTemporaryDir elsewhere;
    ASSERT_TRUE(QFile::link(program(), elsewhere.filePath("link")));
    start(elsewhere.filePath("link"));
    EXPECT_TRUE(msg.errors().isEmpty());
    hlp->openFile(QUrl("pageId://about"));
    EXPECT_TRUE(shows("About page"));
}

// --- contents and index ---

class Index : public HlpFixture
{
protected:
    void startWithIndex()
    {
        hlp->hlpIndexSideRight = HlpConfig::indexRight;
        start();
        index = qobject_cast<HlpIndexWidget*>(gui.widgetNamed("Help"));
        ASSERT_NE(index, nullptr);
        tabs = index->findChild<QTabWidget*>();
        ASSERT_TRUE(QTest::qWaitFor([&] { return tabs->count() == 3; }, 20000));
        list = index->findChild<QHelpIndexWidget*>();
        filter = index->findChild<QLineEdit*>("hlpIndexFilter");
        ASSERT_TRUE(QTest::qWaitFor([&] { return list->model()->rowCount() > 0; }, 20000));
    }

    HlpIndexWidget* index = nullptr;
    QTabWidget* tabs = nullptr;
    QHelpIndexWidget* list = nullptr;
    QLineEdit* filter = nullptr;
};

TEST_F(Index, itHasItsTabs)
{
    startWithIndex();
    EXPECT_EQ(tabs->tabText(0), "Content");
    EXPECT_EQ(tabs->tabText(1), "Index");
    EXPECT_EQ(tabs->tabText(2), "Search");
    EXPECT_EQ(gui.widgets.value(index).location, ModGuiHookIf::eLocationDockRight);
    bool hasFilter = false;
    for (const QLabel* label : index->findChildren<QLabel*>())
        hasFilter = hasFilter || label->text() == "Filter:";
    EXPECT_TRUE(hasFilter);
}

TEST_F(Index, thePlaceFollowsTheSetting)
{
    startWithIndex();
    hlp->hlpIndexSideRight = HlpConfig::indexLeft;
    hlp->configPagesClosed(true);
    EXPECT_EQ(gui.widgets.value(index).location, ModGuiHookIf::eLocationDockLeft);
    hlp->hlpIndexSideRight = HlpConfig::indexDisabled;
    hlp->configPagesClosed(false);
    EXPECT_EQ(gui.widgetNamed("Help"), index);
    hlp->configPagesClosed(true);
    EXPECT_EQ(gui.widgetNamed("Help"), nullptr);
    hlp->hlpIndexSideRight = HlpConfig::indexRight;
    hlp->configPagesClosed(true);
    EXPECT_NE(gui.widgetNamed("Help"), nullptr);
}

TEST_F(Index, aTitleOfTheContentOpensItsPage)
{
    startWithIndex();
    auto* content = index->findChild<QHelpContentWidget*>();
    ASSERT_TRUE(QTest::qWaitFor([&] { return content->model()->rowCount() == 2; }, 20000));
    content->setCurrentIndex(content->model()->index(1, 0));
    QTest::keyClick(content, Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return pages().size() == 1; }, 20000));
    EXPECT_TRUE(shows("About page"));
}

TEST_F(Index, aKeywordThatIsTypedOpensItsPage)
{
    startWithIndex();
    tabs->setCurrentIndex(1);
    QTest::keyClicks(filter, "errS");
    EXPECT_EQ(list->model()->rowCount(), 1);
    QTest::keyClick(filter, Qt::Key_Return);
    ASSERT_EQ(pages().size(), 1);
    EXPECT_EQ(page()->source(), QUrl("qthelp://nv/Nalvo/asmfemessages.html#errSyntax"));
}

TEST_F(Index, aKeywordWithSeveralTargetsAsks)
{
    startWithIndex();
    tabs->setCurrentIndex(1);
    filter->setText("Several");
    QStringList labels;
    ModalAnswers answers({[&](QDialog* dialog) {
                              for (const QLabel* label : dialog->findChildren<QLabel*>())
                                  labels.append(label->text());
                              auto* choice = dialog->findChild<QListWidget*>();
                              EXPECT_EQ(choice->count(), 2);
                              choice->setCurrentRow(0);
                              dialog->accept();
                          },
                          [](QDialog* dialog) { dialog->reject(); }});
    QTest::keyClick(filter, Qt::Key_Return);
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_TRUE(labels.contains("Choose a topic for <b>Several</b>:")) << qPrintable(labels.join('|'));
    EXPECT_EQ(pages().size(), 1);
    EXPECT_TRUE(shows("About page"));
    QTest::keyClick(filter, Qt::Key_Return);
    EXPECT_EQ(answers.seen(), 2);
    EXPECT_EQ(pages().size(), 1);
}

TEST_F(Index, itIsTakenAwayWhileItAsks)
{
    startWithIndex();
    filter->setText("Several");
    ModalAnswers answers({[&](QDialog*) {
        hlp->hlpIndexSideRight = HlpConfig::indexDisabled;
        hlp->configPagesClosed(true);
    }});
    index->findChild<QHelpIndexWidget*>()->activateCurrentItem();
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_EQ(gui.widgetNamed("Help"), nullptr);
    EXPECT_TRUE(pages().isEmpty());
}

} // namespace
