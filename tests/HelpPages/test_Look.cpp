// Every page in the widget that shows it, at 100 and 200 %, light and dark: nothing runs out of the page, every picture
// is there.

#include "HelpTree.h"
#include "MainWindowFixture.h"

#include "HlpWidget.h"
#include "ModHlp.h"

#include <QPainter>
#include <QWebElement>
#include <QWebFrame>
#include <QWebPage>
#include <QWebView>

namespace {

using nsHelpBuild::HelpPage;

const int timeout = 120000; // ms; only a page that never comes takes so long
const QSize pageSize(900, 1000);

class HelpLook : public MainWindowFixture
{
protected:
    HelpLook()
    {
        writeSetting("ModHlp/showGettingStarted", "0");
        makeWindow();
        widget = std::make_unique<nsModHlp::HlpWidget>(module<nsModHlp::ModHlp>());
        widget->resize(pageSize);
        widget->show();
    }
    ~HelpLook() override { widget.reset(); }

    /// @return the page has come
    bool show(const QString& id, qreal zoom, bool isDark = false)
    {
        QSignalSpy loaded(view(), &QWebView::loadFinished);
        widget->setSource(QUrl("pageid://" + id));
        if (!QTest::qWaitFor([&loaded] { return !loaded.isEmpty(); }, timeout))
            return false;
        view()->setZoomFactor(zoom);
        if (isDark)
            root().addClass("dark");
        settleLayout();
        return loaded.first().first().toBool();
    }
    QWebView* view() const { return widget->view(); }
    QWebElement root() const { return view()->page()->mainFrame()->documentElement(); }
    /// How far a page is wider than its place.
    int overflow() const
    {
        return view()->page()->mainFrame()->contentsSize().width() - view()->page()->viewportSize().width();
    }

    /// The points of a picture that are dark, of a thousand.
    static int darkness(const QImage& picture)
    {
        int count = 0;
        for (int x = 0; x < picture.width(); ++x) {
            for (int y = 0; y < picture.height(); ++y)
                count += qGray(picture.pixel(x, y)) < 160 ? 1 : 0;
        }
        return int(qint64(count) * 1000 / (picture.width() * picture.height()));
    }
    /// What an element shows.
    static QImage shownBy(QWebElement element)
    {
        QImage shown(element.geometry().size(), QImage::Format_RGB32);
        shown.fill(Qt::white);
        QPainter painter(&shown);
        element.render(&painter);
        return shown;
    }

    std::unique_ptr<nsModHlp::HlpWidget> widget;
};

} // namespace

TEST_F(HelpLook, NoPageIsWiderThanItsPlace)
{
    for (const HelpPage& page : HelpTree::help().pages()) {
        SCOPED_TRACE(page.id.toStdString());
        for (const qreal zoom : {1.0, 2.0}) {
            ASSERT_TRUE(show(page.id, zoom));
            // A scroll bar of the page has its place beside it.
            EXPECT_LE(overflow(), 0) << "at " << 100 * zoom << " %";
        }
        ASSERT_EQ(view()->title(), page.title);
    }
}

TEST_F(HelpLook, EveryPictureIsShownAtItsSize)
{
    int count = 0;
    for (const HelpPage& page : HelpTree::help().pages()) {
        if (page.pictures.isEmpty())
            continue;
        SCOPED_TRACE(page.id.toStdString());
        ASSERT_TRUE(show(page.id, 1));
        const QWebElementCollection pictures = root().findAll("img");
        ASSERT_EQ(pictures.count(), page.pictures.size());
        for (int i = 0; i < pictures.count(); ++i) {
            const QImage file(HelpTree::pictures() + '/' + page.pictures.at(i));
            ASSERT_FALSE(file.isNull()) << page.pictures.at(i).toStdString();
            const QSize shown = pictures.at(i).geometry().size();
            const int full = file.width() / 2;
            const int room = root().findFirst("main").geometry().width();
            EXPECT_NEAR(shown.width(), qMin(full, room), 3);
            EXPECT_NEAR(shown.height(), shown.width() * file.height() / file.width(), 3);
            // In place of a picture that did not come there is a frame with a text.
            const QImage seen = shownBy(pictures.at(i));
            const QImage expected = file.scaled(seen.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            EXPECT_GT(2 * darkness(seen), darkness(expected)) << page.pictures.at(i).toStdString();
            ++count;
        }
    }
    EXPECT_GE(count, 29);
}

TEST_F(HelpLook, TenPagesForAPersonToLookAt)
{
    for (const char* id : {"gettingStarted", "tutorialFirst", "asmFeMessages", "instrXPBlze3", "langDirectives",
                           "mainWindow", "configPageAsmFe", "simulator", "nalvoAsm", "scripts"}) {
        for (const int percent : {100, 200}) {
            for (const bool isDark : {false, true}) {
                ASSERT_TRUE(show(id, percent / 100.0, isDark)) << id;
                const QImage picture = QImage(
                    screenshot(QString("help-%1-%2%3").arg(id).arg(percent).arg(isDark ? "-dark" : ""), widget.get()));
                EXPECT_EQ(qGray(picture.pixel(2, picture.height() / 2)) < 80, isDark) << id;
            }
        }
    }
}
