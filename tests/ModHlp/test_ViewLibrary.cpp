// The library that draws the pages is not there, or is none.

#include "HlpFixture.h"

#include "HlpViewLibrary.h"

#include <QFile>
#include <QLabel>

using nsModHlp::HlpViewLibrary;

namespace {

class ViewLibrary : public HlpFixture
{
protected:
    ViewLibrary() { HlpViewLibrary::setFile(file()); }
    ~ViewLibrary() override { HlpViewLibrary::setFile(QString()); }

    QString file() const { return dir.filePath(QStringLiteral("nalvo-help-view.so")); }
    /// What a page says in place of its text.
    static QString failureOf(const QWidget* page)
    {
        const auto* label = page->findChild<QLabel*>(QStringLiteral("hlpFailure"));
        return label != nullptr && label->isVisible() ? label->text() : QString();
    }
    /// Each way into the page's text.
    void useEverythingOf(nsModHlp::HlpWidget* page)
    {
        find(QStringLiteral("anything"));
        hlp->clipboardAction(ModClipboardHookIf::eClipboardFeatureCopy);
        page->goBack();
        page->goForward();
        EXPECT_FALSE(page->canGoBack() || page->canGoForward() || page->hasSelection());
        EXPECT_EQ(page->selectedText(), QString());
        QTest::keyClick(page, Qt::Key_Plus, Qt::ControlModifier);
        QWheelEvent turn(QPointF(5, 5), page->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, 120), Qt::NoButton,
                         Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(page, &turn);
    }

    QTemporaryDir dir;
};

TEST_F(ViewLibrary, thePageSaysWhatIsMissing)
{
    start();
    hlp->openFile(QUrl("pageId://about"));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !failureOf(page()).isEmpty(); }));
    EXPECT_TRUE(failureOf(page()).startsWith("The pages of the help can not be shown:\n"))
        << qPrintable(failureOf(page()));
    EXPECT_TRUE(failureOf(page()).contains(file())) << qPrintable(failureOf(page()));
    EXPECT_EQ(page()->view(), nullptr);
    useEverythingOf(page());
    // Where it is, and what the project keeps, is known without the text.
    EXPECT_EQ(page()->title(), "About page");
    EXPECT_EQ(gui.widgets.value(page()).name, "About page");
    hlp->prjSave();
    EXPECT_EQ(prj.value("ModHlp/openFiles", QStringList()), QStringList{"qthelp://nv/Nalvo/about.html"});
    hlp->closeFile(page());
    EXPECT_TRUE(pages().isEmpty());
}

TEST_F(ViewLibrary, aFileThatIsNoLibraryIsRefused)
{
    QFile wrong(file());
    ASSERT_TRUE(wrong.open(QIODevice::WriteOnly));
    wrong.write("no library");
    wrong.close();
    start();
    hlp->openFile(QUrl("pageId://about"));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !failureOf(page()).isEmpty(); }));
    EXPECT_TRUE(failureOf(page()).contains(file())) << qPrintable(failureOf(page()));
}

TEST_F(ViewLibrary, onePageThatFailedShowsItsTextOnceItCan)
{
    start();
    hlp->openFile(QUrl("pageId://about"));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !failureOf(page()).isEmpty(); }));
    HlpViewLibrary::setFile(QString());
    EXPECT_TRUE(shows("About page"));
    EXPECT_EQ(failureOf(page()), QString());
}

} // namespace
