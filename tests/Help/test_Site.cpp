// The help as a web site: its links, its search, and how a browser takes it.

#include "HelpTree.h"
#include "QtPrinters.h"

#include "Pictures.h"
#include "SiteWriter.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QScriptEngine>
#include <QSet>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>

namespace {

using namespace nsHelpBuild;

const int timeout = 300000; // ms; only a browser that hangs takes so long

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// All matches of the first group.
QStringList matchesOf(const QString& text, const QString& pattern)
{
    QStringList found;
    QRegularExpressionMatchIterator it = QRegularExpression(pattern).globalMatch(text);
    while (it.hasNext())
        found.append(it.next().captured(1));
    return found;
}

/// The site of the tree's help, written once.
class HelpSiteOfTree : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        s_dir = std::make_unique<QTemporaryDir>();
        QDir(s_dir->path()).mkpath("site");
        SiteWriter writer{QDir(path())};
        const QStringList pictures = copyPictures(HelpTree::pictures(), HelpTree::help().pages(), QDir(path()));
        ASSERT_TRUE(writer.write(HelpTree::help(), pictures)) << writer.errorText().toStdString();
    }
    static void TearDownTestSuite() { s_dir.reset(); }

    static QString path(const QString& name = QString())
    {
        return s_dir->path() + "/site" + (name.isEmpty() ? name : '/' + name);
    }
    static QString folder() { return s_dir->path(); }
    static QStringList htmlFiles() { return QDir(path()).entryList({"*.html"}, QDir::Files); }
    static QString html(const QString& file) { return QString::fromUtf8(contentOf(path(file))); }

    /// The links of a page to files of the site.
    static QStringList linksOf(const QString& file)
    {
        QStringList links = matchesOf(html(file), "(?:href|src|action)=\"([^\"]*)\"");
        links.removeDuplicates();
        return links.filter(QRegularExpression("^(?!https://|data:)"));
    }

private:
    static std::unique_ptr<QTemporaryDir> s_dir;
};

std::unique_ptr<QTemporaryDir> HelpSiteOfTree::s_dir;

TEST_F(HelpSiteOfTree, NoLinkIsDead)
{
    EXPECT_GT(htmlFiles().size(), 20);
    QHash<QString, QSet<QString>> anchors;
    for (const QString& file : htmlFiles()) {
        const QStringList ids = matchesOf(html(file), "\\bid=\"([^\"]*)\"");
        anchors[file] = QSet<QString>(ids.cbegin(), ids.cend());
    }
    for (const QString& file : htmlFiles()) {
        for (const QString& link : linksOf(file)) {
            const QString target = link.section('#', 0, 0).isEmpty() ? file : link.section('#', 0, 0);
            const QString anchor = QUrl::fromPercentEncoding(link.section('#', 1).toUtf8()).toHtmlEscaped();
            EXPECT_TRUE(QFile::exists(path(target))) << file.toStdString() << ": " << link.toStdString();
            EXPECT_TRUE(anchor.isEmpty() || anchors.value(target).contains(anchor))
                << file.toStdString() << ": " << link.toStdString();
        }
    }
}

TEST_F(HelpSiteOfTree, WithoutTheScriptLinksLeadFromTheStartToEveryPage)
{
    QSet<QString> reached{"index.html"};
    QStringList open = reached.values();
    while (!open.isEmpty()) {
        for (const QString& link : linksOf(open.takeFirst())) {
            const QString target = link.section('#', 0, 0);
            if (target.endsWith(".html") && !reached.contains(target) && QFile::exists(path(target))) {
                reached << target;
                open << target;
            }
        }
    }
    const QStringList files = htmlFiles();
    EXPECT_EQ(QSet<QString>(files.cbegin(), files.cend()) - reached, QSet<QString>());
}

TEST_F(HelpSiteOfTree, EveryPageHasItsTextAndTheContents)
{
    for (const HelpPage& page : HelpTree::help().pages()) {
        const QString text = html(page.file());
        EXPECT_TRUE(text.contains("<h1>" + page.title.toHtmlEscaped() + "</h1>")) << page.id.toStdString();
        EXPECT_TRUE(text.contains(QString::fromUtf8(page.html))) << page.id.toStdString();
        EXPECT_TRUE(text.contains("<nav aria-label=\"Contents\">")) << page.id.toStdString();
        EXPECT_EQ(text.count(" aria-current=\"page\""), 1) << page.id.toStdString();
    }
}

TEST_F(HelpSiteOfTree, NothingComesFromOutside)
{
    for (const QString& file : htmlFiles()) {
        EXPECT_EQ(matchesOf(html(file), "(?:src|srcset)=\"(\\w+:[^\"]*)\""), QStringList()) << file.toStdString();
        EXPECT_EQ(matchesOf(html(file), "<link[^>]* href=\"(?!data:,\")(\\w+:[^\"]*)\""), QStringList())
            << file.toStdString();
    }
    for (const char* name : {"search.js", "style.css", "site.css"}) {
        const QByteArray text = contentOf(path(name));
        EXPECT_FALSE(text.contains("http") || text.contains("url(") || text.contains("@import")) << name;
    }
}

/// The search by the script of the site, without a browser.
class HelpSiteSearch : public HelpSiteOfTree
{
protected:
    void SetUp() override
    {
        evaluate(contentOf(path("search.js")));
        evaluate(contentOf(path("search-index.js")));
    }

    void evaluate(const QByteArray& script)
    {
        m_engine.evaluate(QString::fromUtf8(script));
        ASSERT_FALSE(m_engine.hasUncaughtException()) << m_engine.uncaughtException().toString().toStdString();
    }

    /// The addresses that are found, the best first.
    QStringList found(const QString& query, const QString& index = "nalvoIndex")
    {
        m_engine.globalObject().setProperty("query", query);
        const QScriptValue places = m_engine.evaluate("nalvoSearch(" + index + ", query, 20)");
        EXPECT_FALSE(m_engine.hasUncaughtException()) << m_engine.uncaughtException().toString().toStdString();
        QStringList urls;
        for (int i = 0; i < places.property("length").toInt32(); ++i)
            urls.append(places.property(quint32(i)).property("u").toString());
        return urls;
    }

    QScriptEngine m_engine;
};

TEST_F(HelpSiteSearch, FindsMessagesInstructionsAndDirectives)
{
    EXPECT_EQ(found("errSyntax").value(0), "asmfemessages.html#errSyntax");
    EXPECT_EQ(found("  ERRSYNTAX ").value(0), "asmfemessages.html#errSyntax");
    EXPECT_EQ(found("#EQU").value(0), "langdirectives.html#EQU");
    EXPECT_EQ(found("equ").value(0), "langdirectives.html#EQU");
    EXPECT_TRUE(found("wrprt").value(0).contains(QRegularExpression("^instr\\w+\\.html#WRPRT$")))
        << found("wrprt").value(0).toStdString();
    EXPECT_EQ(found("release notes").value(0), "releasenotes.html");
}

TEST_F(HelpSiteSearch, RanksTitlesThenWordsThenText)
{
    evaluate("var small = ["
             "{u: 'text', t: 'Other', p: '', k: '', x: 'about a stack here'},"
             "{u: 'words', t: 'Memory', p: '', k: 'stack, heap', x: ''},"
             "{u: 'inside', t: 'Haystacks', p: '', k: '', x: ''},"
             "{u: 'begins', t: 'Stack overflow', p: '', k: '', x: ''},"
             "{u: 'later', t: 'Call stack', p: '', k: '', x: ''},"
             "{u: 'place', t: 'Stack', p: 'Page', k: '', x: ''},"
             "{u: 'page', t: 'Stack', p: '', k: '', x: ''}];");
    EXPECT_EQ(found("stack", "small"), QStringList({"page", "place", "begins", "later", "inside", "words", "text"}));
    EXPECT_EQ(found("call stack", "small"), QStringList("later"));
    EXPECT_EQ(found("stack here", "small"), QStringList("text"));
    EXPECT_EQ(found("stack page", "small"), QStringList("place"));
    EXPECT_EQ(found("nosuchword", "small"), QStringList());
    EXPECT_EQ(found("", "small"), QStringList());
    EXPECT_EQ(found(" \t ", "small"), QStringList());
    EXPECT_EQ(found(".*", "small"), QStringList());
}

TEST_F(HelpSiteSearch, AnExcerptShowsTheWord)
{
    const QString call = "nalvoExcerpt('%1', '%2')";
    EXPECT_EQ(m_engine.evaluate(call.arg("one two", "TWO")).toString(), "one two");
    const QString text = QString("word ").repeated(100) + "needle" + QString(" word").repeated(100);
    const QString excerpt = m_engine.evaluate(call.arg(text, "needle more")).toString();
    EXPECT_TRUE(excerpt.contains("word needle word")) << excerpt.toStdString();
    EXPECT_TRUE(excerpt.startsWith("... word ") && excerpt.endsWith(" word ...")) << excerpt.toStdString();
    EXPECT_LT(excerpt.size(), 200);
}

/// The site in a browser without a window.
class HelpSiteInBrowser : public HelpSiteOfTree
{
protected:
    struct sShown_t
    {
        QString dom;         ///< the page as it is after all scripts
        QStringList console; ///< what the scripts and the browser have reported
    };

    static sShown_t show(const QString& url)
    {
        const QString browser = QStandardPaths::findExecutable("chromium-headless-shell").isEmpty()
                                    ? QStringLiteral("chromium")
                                    : QStringLiteral("chromium-headless-shell");
        QProcess process;
        process.start(browser,
                      {"--headless", "--no-sandbox", "--disable-gpu", "--disable-breakpad", "--disable-dev-shm-usage",
                       "--disable-background-networking", "--host-resolver-rules=MAP * ~NOTFOUND",
                       "--user-data-dir=" + folder() + "/profile", "--enable-logging=stderr", "--dump-dom", url});
        sShown_t shown;
        EXPECT_TRUE(process.waitForStarted()) << "the Debian package chromium-headless-shell is not installed";
        EXPECT_TRUE(process.waitForFinished(timeout));
        shown.dom = QString::fromUtf8(process.readAllStandardOutput());
        shown.console = QString::fromUtf8(process.readAllStandardError()).split('\n').filter("CONSOLE");
        EXPECT_TRUE(shown.dom.contains("</html>")) << shown.dom.toStdString();
        return shown;
    }

    static QString url(const QString& file, const QString& query = QString())
    {
        return QUrl::fromLocalFile(path(file)).toString() + query;
    }

    static QString write(const QString& name, const QByteArray& text)
    {
        QFile file(folder() + '/' + name);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return QUrl::fromLocalFile(file.fileName()).toString();
    }
};

TEST_F(HelpSiteInBrowser, TheSearchFindsAKey)
{
    const sShown_t shown = show(url("search.html", "?q=errSyntax"));
    EXPECT_EQ(shown.console, QStringList());
    const QStringList results =
        matchesOf(shown.dom.section("id=\"results\"", 1).section("<h2>", 0, 0), "<a href=\"([^\"]*)\"");
    EXPECT_EQ(results.value(0), "asmfemessages.html#errSyntax");
}

TEST_F(HelpSiteInBrowser, AQueryIsTextAndNothingElse)
{
    const sShown_t shown = show(url("search.html", "?q=%3Cimg+src%3Dx+onerror%3Dalert(1)%3E%E0%A4%A"));
    EXPECT_EQ(shown.console, QStringList());
    EXPECT_FALSE(shown.dom.contains("<img"));
    EXPECT_TRUE(shown.dom.contains("Nothing found for"));
}

TEST_F(HelpSiteInBrowser, TypingShowsWhatIsFound)
{
    QString page = html("index.html");
    // A reader who goes to the field and types, once the index is there.
    page.replace("</body>", "<script>var field = document.getElementById('query');"
                            "field.value = 'errsyntax'; field.dispatchEvent(new Event('input'));</script></body>");
    QFile file(path("typed.htm"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(page.toUtf8());
    file.close();
    const sShown_t shown = show(url("typed.htm"));
    EXPECT_EQ(shown.console, QStringList());
    EXPECT_EQ(matchesOf(shown.dom.section("id=\"found\"", 1), "<a href=\"([^\"]*)\"").value(0),
              "asmfemessages.html#errSyntax");
}

TEST_F(HelpSiteInBrowser, NoPageMakesAnError)
{
    QByteArray frames = "<!DOCTYPE html><html><title>All</title><body>\n";
    for (const QString& file : htmlFiles())
        frames += "<iframe src=\"site/" + file.toUtf8() + "\"></iframe>\n";
    const sShown_t shown = show(write("all.html", frames + "</body></html>\n"));
    EXPECT_EQ(shown.console, QStringList());
}

TEST_F(HelpSiteInBrowser, AnErrorOfAScriptIsSeen)
{
    const QString page =
        write("bad.html", "<!DOCTYPE html><html><body><script>noSuchThing();</script></body></html>\n");
    EXPECT_EQ(show(page).console.size(), 1);
}

} // namespace
