#include "HlpFixture.h"

#include "QtPrinters.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QWebElement>
#include <QWebFrame>

using nsModHlp::HlpWidget;
using nsModHlp::ModHlp;

namespace {

QByteArray html(const QByteArray& title, const QByteArray& body)
{
    return "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>" + title + "</title>\n</head><body>" + body +
           "</body></html>\n";
}

QByteArray link(const QByteArray& id, const QByteArray& url)
{
    return "<p><a id=\"" + id + "\" href=\"" + url + "\">link " + id + "</a></p>\n";
}

const QByteArray table = "gettingstarted;start.html;\n"
                         "About;about.html;\n"
                         "asmFeMessages;asmfemessages.html;\n"
                         "errMsgInternalError;error.html;\n"
                         "placed;asmfemessages.html;errLast\n"
                         "langnames;langnames.html;\n"
                         "folder;sub;\n"
                         "\n"
                         "hidden;about.html;\n";

QByteArray longPage()
{
    QByteArray body;
    for (int i = 0; i < 200; ++i)
        body += "<p>line " + QByteArray::number(i) + "</p>\n";
    return "<h2 id=\"errSyntax\">errSyntax</h2>\n" + body + "<h2 id=\"errLast\">errLast</h2>\n" + body;
}

const QByteArray project =
    R"(<?xml version="1.0" encoding="UTF-8"?>
<QtHelpProject version="1.0"><namespace>nv</namespace><virtualFolder>Nalvo</virtualFolder><filterSection>
<toc><section title="Start page" ref="start.html"/><section title="About page" ref="about.html"/></toc>
<keywords>
<keyword name="errSyntax" id="errSyntax" ref="asmfemessages.html#errSyntax"/>
<keyword name="LOAD" id="LOAD3" ref="instrxpblze3.html#LOAD"/>
<keyword name="LOAD" id="LOAD6" ref="instrxpblze6.html#LOAD"/>
<keyword name="#EQU" id="#EQU" ref="langdirectives.html#EQU"/>
<keyword name="memory" id="memory" ref="about.html"/>
<keyword name="Several" id="Several1" ref="start.html"/>
<keyword name="Several" id="Several2" ref="about.html"/>
</keywords><files>)";

QMap<QString, QByteArray> files()
{
    QByteArray start = "<p>Alpha beta gamma. ALPHA again.</p>";
    start += link("next", "about.html") + link("anchor", "pageId://asmFeMessages#errLast") +
             link("script", "script://foo?str=a&amp;int=3") + link("web", "https://web.example/page?x=1") +
             link("file", "file:///etc/hostname") + link("unknown", "whatever://there") +
             "<p><a id=\"window\" href=\"about.html\" target=\"_blank\">link window</a></p>";
    QMap<QString, QByteArray> result;
    result["start.html"] = html("Start page", start);
    result["about.html"] = html("About page", "<p>About. " + QByteArray("beta") + "</p>");
    result["asmfemessages.html"] = html("Messages page", longPage());
    result["error.html"] = html("Internal error page", "<p>Error.</p>");
    result["langnames.html"] = html("Names page", "<p>Names.</p>");
    result["langdirectives.html"] = html("Directives page", "<h2 id=\"EQU\">#EQU</h2>");
    result["instrxpblze3.html"] = html("Instructions 3 page", "<h2 id=\"LOAD\">LOAD</h2>");
    result["instrxpblze6.html"] = html("Instructions 6 page", "<h2 id=\"LOAD\">LOAD</h2>");
    result["sub/inner.html"] = html("Inner page", "<p>Inner.</p>");
    result["pageIdRefList/pageIdRefList.csv"] = table;
    return result;
}

void write(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
    ASSERT_EQ(file.write(content), content.size()) << qPrintable(path);
}

/// Folder of the collection, made at the first call and kept for all tests.
QString madeFolder()
{
    static QTemporaryDir dir;
    static const bool isMade = [] {
        const QDir sources(dir.filePath("pages"));
        QByteArray names;
        const QMap<QString, QByteArray> all = files();
        for (auto it = all.cbegin(); it != all.cend(); ++it) {
            write(sources.filePath(it.key()), it.value());
            names += "<file>" + it.key().toUtf8() + "</file>";
        }
        write(sources.filePath("test.qhp"), project + names + "</files></filterSection></QtHelpProject>");
        write(sources.filePath("test.qhcp"),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?><QHelpCollectionProject version=\"1.0\"><docFiles><generate>"
              "<file><input>test.qhp</input><output>test.qch</output></file></generate><register>"
              "<file>test.qch</file></register></docFiles></QHelpCollectionProject>");
        QDir(dir.path()).mkpath("hlp");
        QDir(dir.path()).mkpath("bin");
        QProcess process;
        process.start(NALVO_QHELPGENERATOR,
                      {"-s", sources.filePath("test.qhcp"), "-o", sources.filePath("hlpCollection.qhc")});
        EXPECT_TRUE(process.waitForFinished(120000));
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
        return QFile::copy(sources.filePath("test.qch"), dir.filePath("hlp/test.qch")) &&
               QFile::copy(sources.filePath("hlpCollection.qhc"), dir.filePath("hlp/hlpCollection.qhc"));
    }();
    EXPECT_TRUE(isMade);
    return dir.path();
}

} // namespace

QString TestCollection::program()
{
    return madeFolder() + "/bin/nalvo";
}

QString TestCollection::file()
{
    return madeFolder() + "/hlp/hlpCollection.qhc";
}

HlpFixture::HlpFixture()
    : hlp(std::make_unique<ModHlp>())
{
    ModHlp* module = hlp.get();
    msg.attach(static_cast<ModMsgPluginIf*>(module));
    gui.registerPlugin(static_cast<ModGuiPluginIf*>(module));
    prj.registerPlugin(static_cast<ModPrjPluginIf*>(module));
    cfg.registerPlugin(static_cast<ModCfgAppPluginIf*>(module));
    script.registerPlugin(static_cast<ModScriptPluginIf*>(module));
    module->modFindReplaceHook = &finder;
    module->modClipboardHook = &clipboard;
    module->modNetworkHook = &network;
    module->hlpIndexSideRight = nsModHlp::HlpConfig::indexDisabled;
    module->showGettingStarted = false;
    module->showOnlyOneHelpPage = false;
}

HlpFixture::~HlpFixture()
{
    hlp.reset();
}

void HlpFixture::start(const QString& program)
{
    hlp->setProgramFile(program);
    hlp->modRegisterPlugins({hlp.get()});
    hlp->modInit();
    hlp->modInitIntermod();
    hlp->modRun();
    // The collection is opened beside the event loop.
    EXPECT_TRUE(QTest::qWaitFor([this] { return hlp->network()->isReady(); }, 20000));
    QApplication::processEvents();
}

void HlpFixture::stop()
{
    hlp->modExitIntermod();
    hlp->modExit();
}

::testing::AssertionResult HlpFixture::isLoaded(HlpWidget* page, const QString& title)
{
    if (page == nullptr)
        return ::testing::AssertionFailure() << "there is no page";
    const QPointer<HlpWidget> guard(page);
    const auto isThere = [&] {
        return guard != nullptr && guard->view()->title() == title &&
               !guard->view()->page()->mainFrame()->contentsSize().isEmpty() &&
               guard->view()->page()->totalBytes() == guard->view()->page()->bytesReceived();
    };
    if (QTest::qWaitFor(isThere, 20000))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "the page is " << qPrintable(guard->view()->title()) << " at "
                                         << qPrintable(guard->source().toString());
}

void HlpFixture::click(QWebView* view, const QString& id)
{
    const QWebElement element = view->page()->mainFrame()->findFirstElement('#' + id);
    ASSERT_FALSE(element.isNull()) << qPrintable(id);
    // Only links that are painted have a place.
    ASSERT_TRUE(QTest::qWaitFor([&] { return !element.geometry().isEmpty(); }, 200000)) << qPrintable(id);
    const QRect place = element.geometry().translated(-view->page()->mainFrame()->scrollPosition());
    QTest::mouseClick(view, Qt::LeftButton, Qt::NoModifier, place.topLeft() + QPoint(3, place.height() / 2));
}

void HlpFixture::find(const QString& text)
{
    finder.text = text;
    hlp->findNext(true);
}

QAction* HlpFixture::action(const QString& text) const
{
    for (auto actionClass : {ModActionHookIf::eActionClassHelp, ModActionHookIf::eActionClassNavigation}) {
        for (QAction* entry : hlp->menuActions(actionClass)) {
            if (entry->text() == text)
                return entry;
        }
    }
    ADD_FAILURE() << "there is no action " << qPrintable(text);
    return nullptr;
}
