#include "SiteWriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace nsHelpBuild {

namespace {

const char* const siteTitle = "Nalvo help";
const QString startFile = QStringLiteral("index.html");
const QString searchFile = QStringLiteral("search.html");
const QString styleFile = QStringLiteral("style.css");
const QString scriptFile = QStringLiteral("search.js");
const QString indexFile = QStringLiteral("search-index.js");

QByteArray escaped(const QString& text)
{
    return text.toHtmlEscaped().toUtf8();
}

QByteArray link(const QString& url, const QString& text, const char* attributes = "")
{
    return "<a href=\"" + escaped(url) + "\"" + attributes + ">" + escaped(text) + "</a>";
}

QString urlOf(const HelpPage& page, const HelpAnchor& anchor)
{
    return page.file() + '#' + QString::fromLatin1(anchor.name.toUtf8().toPercentEncoding());
}

QJsonObject place(const QString& url, const QString& title, const QString& page, const QString& words,
                  const QString& text)
{
    return {{"u", url}, {"t", title}, {"p", page}, {"k", words}, {"x", text.simplified()}};
}

void takeOrder(const QVector<ContentsEntry>& contents, const QHash<QString, const HelpPage*>& pages,
               QVector<const HelpPage*>* order)
{
    for (const ContentsEntry& entry : contents) {
        if (const HelpPage* page = pages.value(entry.pageId.toLower()))
            order->append(page);
        takeOrder(entry.entries, pages, order);
    }
}

/// Is the page one of these entries, or below one?
bool holds(const QVector<ContentsEntry>& contents, const QHash<QString, const HelpPage*>& pages, const QString& file)
{
    return std::any_of(contents.cbegin(), contents.cend(), [&](const ContentsEntry& entry) {
        const HelpPage* page = pages.value(entry.pageId.toLower());
        return (page != nullptr && page->file() == file) || holds(entry.entries, pages, file);
    });
}

} // namespace

QByteArray SiteWriter::siteStyle(const QByteArray& style)
{
    QByteArray light;
    QByteArray dark;
    for (QByteArray line : style.split('\n')) {
        const bool isDark = line.startsWith(".dark");
        (isDark ? dark : light) += line.replace(".dark ", "html ") + '\n';
    }
    return light + "@media (prefers-color-scheme: dark) {\n" + dark + "}\n";
}

QByteArray SiteWriter::searchIndex(const QVector<HelpPage>& pages)
{
    QJsonArray places;
    for (const HelpPage& page : pages) {
        const QString words = (page.keywords + QStringList(page.id)).join(QStringLiteral(", "));
        places.append(place(page.file(), page.title, QString(), words, page.intro));
        for (const HelpAnchor& anchor : page.anchors) {
            const QString where =
                anchor.above.isEmpty() ? page.title : page.title + QStringLiteral(", ") + anchor.above;
            places.append(place(urlOf(page, anchor), anchor.title, where, anchor.name, anchor.text));
        }
    }
    return "var nalvoIndex = " + QJsonDocument(places).toJson(QJsonDocument::Compact) + ";\n";
}

QByteArray SiteWriter::navigation(const QVector<ContentsEntry>& contents, const QString& file) const
{
    QByteArray text = "<ul>\n";
    for (const ContentsEntry& entry : contents) {
        const HelpPage* page = m_pages.value(entry.pageId.toLower());
        if (page == nullptr && !entry.pageId.isEmpty())
            continue;
        const QByteArray below = entry.entries.isEmpty() ? QByteArray() : navigation(entry.entries, file);
        if (page != nullptr) {
            const bool isCurrent = page->file() == file;
            text += "<li>" + link(page->file(), page->title, isCurrent ? " aria-current=\"page\"" : "") + below;
        } else {
            const bool isOpen = file == startFile || holds(entry.entries, m_pages, file);
            text += QByteArray("<li><details") + (isOpen ? " open" : "") + "><summary>" + escaped(entry.title) +
                    "</summary>\n" + below + "</details>";
        }
        text += "</li>\n";
    }
    return text + "</ul>\n";
}

QByteArray SiteWriter::neighbours(const QString& file) const
{
    const auto is = [&](const HelpPage* page) { return page->file() == file; };
    const int at = int(std::find_if(m_order.cbegin(), m_order.cend(), is) - m_order.cbegin());
    if (at == m_order.size())
        return QByteArray();
    QByteArray text = "<p class=\"neighbours\">";
    if (at > 0)
        text += link(m_order.at(at - 1)->file(), m_order.at(at - 1)->title, " rel=\"prev\"");
    if (at + 1 < m_order.size())
        text += link(m_order.at(at + 1)->file(), m_order.at(at + 1)->title, " rel=\"next\"");
    return text + "</p>\n";
}

QByteArray SiteWriter::frame(const QByteArray& title, const QString& file, const QByteArray& main) const
{
    // The page of the start consists of the contents.
    const QByteArray contents = file == startFile
                                    ? QByteArray()
                                    : "<nav aria-label=\"Contents\">\n" + navigation(m_contents, file) + "</nav>\n";
    const QByteArray full = title == siteTitle ? title : title + " - " + siteTitle;
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
           "<meta name=\"color-scheme\" content=\"light dark\">\n<title>" +
           full +
           "</title>\n<link rel=\"icon\" href=\"data:,\">\n<link rel=\"stylesheet\" href=\"style.css\">\n"
           "<link rel=\"stylesheet\" href=\"site.css\">\n</head>\n<body class=\"site\">\n"
           "<a class=\"skip\" href=\"#main\">To the text</a>\n"
           "<header>\n<a class=\"home\" href=\"index.html\">" +
           QByteArray(siteTitle) +
           "</a>\n<form action=\"search.html\" role=\"search\">\n"
           "<input type=\"search\" name=\"q\" id=\"query\" placeholder=\"Word, message or key\" "
           "aria-label=\"Search the help\" autocomplete=\"off\">\n"
           "<button>Search</button>\n<ol id=\"found\" hidden></ol>\n</form>\n</header>\n"
           "<div class=\"columns\">\n" +
           contents + "<main id=\"main\">\n<h1>" + title + "</h1>\n" + main + neighbours(file) +
           "</main>\n</div>\n<script src=\"search.js\"></script>\n</body>\n</html>\n";
}

QByteArray SiteWriter::wordList(const QVector<HelpPage>& pages)
{
    QVector<QPair<QString, QByteArray>> words;
    const auto add = [&words](const QString& word, const QString& url, const QString& page) {
        words.append({word.toLower(), "<li>" + link(url, word) + " <small>" + escaped(page) + "</small></li>\n"});
    };
    for (const HelpPage& page : pages) {
        add(page.title, page.file(), QString());
        for (const QString& keyword : page.keywords)
            add(keyword, page.file(), page.title);
        for (const HelpAnchor& anchor : page.anchors) {
            if (anchor.isWord)
                add(anchor.title, urlOf(page, anchor), page.title);
        }
    }
    std::sort(words.begin(), words.end());
    QByteArray text;
    for (const auto& word : qAsConst(words))
        text += word.second;
    return "<ul class=\"words\">\n" + text + "</ul>\n";
}

bool SiteWriter::writeStyle(const HelpSources& help)
{
    for (const QString& name : {styleFile, QStringLiteral("site/site.css")}) {
        QByteArray style;
        if (!m_out.read(help.folder() + '/' + name, &style) || !m_out.write(name.section('/', -1), siteStyle(style)))
            return false;
    }
    return true;
}

bool SiteWriter::writePages(const HelpSources& help)
{
    for (const HelpPage& page : help.pages()) {
        if (!m_out.write(page.file(), frame(escaped(page.title), page.file(), page.html)))
            return false;
    }
    const QByteArray start =
        "<p>The manual of the IDE for PicoBlaze 3, PicoBlaze 6 and Mico8, by subject. All its words are "
        "in the <a href=\"search.html\">index</a>.</p>\n<div class=\"contents\">\n" +
        navigation(m_contents, startFile) + "</div>\n";
    const QByteArray search = "<div id=\"results\"></div>\n<h2>Index</h2>\n" + wordList(help.pages()) +
                              "<script src=\"search-index.js\"></script>\n";
    return m_out.write(startFile, frame(siteTitle, startFile, start)) &&
           m_out.write(searchFile, frame("Search", searchFile, search));
}

bool SiteWriter::write(const HelpSources& help, const QStringList&)
{
    m_contents = help.contents();
    for (const HelpPage& page : help.pages())
        m_pages.insert(page.id.toLower(), &page);
    m_order.clear();
    takeOrder(m_contents, m_pages, &m_order);
    return writePages(help) && writeStyle(help) &&
           m_out.copy(help.folder() + QStringLiteral("/site/") + scriptFile, scriptFile) &&
           m_out.write(indexFile, searchIndex(help.pages()));
}

} // namespace nsHelpBuild
