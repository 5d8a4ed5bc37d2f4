#include "MarkdownConverter.h"

#include <cmark-gfm-core-extensions.h>
#include <cmark-gfm-extension_api.h>
#include <cmark-gfm.h>

#include <QRegularExpression>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace nsHelpBuild {

namespace {

const int options = CMARK_OPT_UNSAFE | CMARK_OPT_VALIDATE_UTF8;

struct ParserDeleter
{
    void operator()(cmark_parser* parser) const { cmark_parser_free(parser); }
};
struct NodeDeleter
{
    void operator()(cmark_node* node) const { cmark_node_free(node); }
};
using NodePtr = std::unique_ptr<cmark_node, NodeDeleter>;

/// Code as it stands in a text: set apart, and indented by four blanks instead of those that all its lines have.
QString indented(const QString& code)
{
    QStringList lines = code.split('\n');
    while (!lines.isEmpty() && lines.last().trimmed().isEmpty())
        lines.removeLast();
    int common = code.size();
    for (const QString& line : qAsConst(lines)) {
        if (!line.trimmed().isEmpty())
            common = std::min(common, int(line.indexOf(line.trimmed().at(0))));
    }
    QString text = QStringLiteral("\n");
    for (const QString& line : qAsConst(lines))
        text += QStringLiteral("    ") + line.mid(common) + '\n';
    return text + '\n';
}

/// The characters that a node and those below it show.
QString plainText(cmark_node* top)
{
    QString text;
    cmark_iter* it = cmark_iter_new(top);
    cmark_event_type event = CMARK_EVENT_NONE;
    while ((event = cmark_iter_next(it)) != CMARK_EVENT_DONE) {
        cmark_node* node = cmark_iter_get_node(it);
        const cmark_node_type type = cmark_node_get_type(node);
        if (event == CMARK_EVENT_ENTER && (type == CMARK_NODE_TEXT || type == CMARK_NODE_CODE))
            text += QString::fromUtf8(cmark_node_get_literal(node));
        else if (event == CMARK_EVENT_ENTER && type == CMARK_NODE_CODE_BLOCK)
            text += indented(QString::fromUtf8(cmark_node_get_literal(node)));
        else if (type == CMARK_NODE_SOFTBREAK || type == CMARK_NODE_LINEBREAK)
            text += event == CMARK_EVENT_ENTER ? QStringLiteral(" ") : QString();
        else if (event == CMARK_EVENT_ENTER && type == CMARK_NODE_ITEM)
            text += QStringLiteral("- ");
        else if (event == CMARK_EVENT_EXIT && type == CMARK_NODE_PARAGRAPH)
            text += cmark_node_get_type(cmark_node_parent(node)) == CMARK_NODE_ITEM ? QStringLiteral("\n")
                                                                                    : QStringLiteral("\n\n");
        else if (event == CMARK_EVENT_EXIT && QByteArray(cmark_node_get_type_string(node)) == "table_cell")
            text += QStringLiteral("  ");
        else if (event == CMARK_EVENT_EXIT && QByteArray(cmark_node_get_type_string(node)).startsWith("table_"))
            text += QStringLiteral("\n");
        else if (event == CMARK_EVENT_EXIT && QByteArray(cmark_node_get_type_string(node)) == "table")
            text += QStringLiteral("\n");
    }
    cmark_iter_free(it);
    return text;
}

/// Whether a node of this kind ends a word and a sentence before it.
bool isBlock(cmark_node* node)
{
    const cmark_node_type type = cmark_node_get_type(node);
    return type == CMARK_NODE_PARAGRAPH || type == CMARK_NODE_ITEM || type == CMARK_NODE_HEADING ||
           QByteArray(cmark_node_get_type_string(node)).startsWith("table");
}

/// What is written in words: the text without code and without bold parts, which are names as they stand on the
/// screen; a blank takes their place.
QString proseOf(cmark_node* top)
{
    QString text;
    int bold = 0;
    cmark_iter* it = cmark_iter_new(top);
    cmark_event_type event = CMARK_EVENT_NONE;
    while ((event = cmark_iter_next(it)) != CMARK_EVENT_DONE) {
        cmark_node* node = cmark_iter_get_node(it);
        const cmark_node_type type = cmark_node_get_type(node);
        if (type == CMARK_NODE_STRONG)
            bold += event == CMARK_EVENT_ENTER ? 1 : -1;
        if (event == CMARK_EVENT_ENTER && type == CMARK_NODE_TEXT && bold == 0)
            text += QString::fromUtf8(cmark_node_get_literal(node));
        else if (type == CMARK_NODE_STRONG || type == CMARK_NODE_CODE || type == CMARK_NODE_SOFTBREAK ||
                 type == CMARK_NODE_LINEBREAK)
            text += ' ';
        else if (event == CMARK_EVENT_EXIT && isBlock(node))
            text += '\n';
    }
    cmark_iter_free(it);
    return text;
}

/// HTML that stands for itself between the blocks of the page.
cmark_node* htmlBlock(const QString& html)
{
    cmark_node* node = cmark_node_new(CMARK_NODE_HTML_BLOCK);
    cmark_node_set_literal(node, (html + '\n').toUtf8().constData());
    return node;
}

/// Takes `{#name}` off the end of a heading. @return the name, empty if there is none
QString takeAnchor(cmark_node* heading)
{
    cmark_node* last = cmark_node_last_child(heading);
    if (last == nullptr || cmark_node_get_type(last) != CMARK_NODE_TEXT)
        return QString();
    static const QRegularExpression form(QStringLiteral("\\s*\\{#([^{}\\s]+)\\}\\s*$"));
    const QString text = QString::fromUtf8(cmark_node_get_literal(last));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return QString();
    cmark_node_set_literal(last, text.left(match.capturedStart()).toUtf8().constData());
    return match.captured(1);
}

QString gradeName(MessageText::eGrade_t grade)
{
    static const char* const grades[] = {"Group", "Info", "Warning", "Error"};
    return QString::fromLatin1(grades[grade]);
}

QString messageHtml(const MessageText& message)
{
    static const char* const classes[] = {"group", "info", "warning", "error"};
    return QStringLiteral("<p class=\"message %1\"><span>%2</span> %3</p>")
        .arg(QLatin1String(classes[message.grade]), gradeName(message.grade), message.text.toHtmlEscaped());
}

/// Goes over the top-level blocks of a page.
class PageWalk
{
public:
    PageWalk(HelpPage* page, const MessageTexts& messages)
        : m_page(page)
        , m_messages(messages)
    {
    }

    void run(cmark_node* document)
    {
        // First what the author wrote, as the blocks are given HTML around them.
        visitAll(document);
        cmark_node* next = nullptr;
        for (cmark_node* node = cmark_node_first_child(document); node != nullptr; node = next) {
            next = cmark_node_next(node);
            visit(node);
        }
    }

private:
    void visit(cmark_node* node)
    {
        const cmark_node_type type = cmark_node_get_type(node);
        if (type == CMARK_NODE_HEADING) {
            visitHeading(node);
            return;
        }
        QString& text = m_page->anchors.isEmpty() ? m_page->intro : m_page->anchors.last().text;
        text += exampleLabel(node) + plainText(node);
        m_afterProvoking = isProvoking(node);
        m_page->prose += proseOf(node);
        if (type == CMARK_NODE_CODE_BLOCK)
            visitExample(node);
        else if (type == CMARK_NODE_PARAGRAPH)
            visitParagraph(node);
        else if (QByteArray(cmark_node_get_type_string(node)) == "table")
            wrap(node, "scroll");
    }

    /// In an entry of a message: does this example provoke it?
    bool isProvoking(cmark_node* node) const
    {
        if (node == nullptr || cmark_node_get_type(node) != CMARK_NODE_CODE_BLOCK || m_page->anchors.isEmpty())
            return false;
        const QString info = QString::fromUtf8(cmark_node_get_fence_info(node));
        return info.contains(' ' + m_page->anchors.last().title + '@');
    }

    /// What takes the place of the colours of an example where there is only text.
    QString exampleLabel(cmark_node* node) const
    {
        if (isProvoking(node))
            return QStringLiteral("Provokes it:\n");
        const bool isMended = m_afterProvoking && cmark_node_get_type(node) == CMARK_NODE_CODE_BLOCK &&
                              QByteArray(cmark_node_get_fence_info(node)).startsWith("psm");
        return isMended ? QStringLiteral("Mended:\n") : QString();
    }

    void visitHeading(cmark_node* node)
    {
        HelpAnchor anchor;
        anchor.name = takeAnchor(node);
        anchor.title = plainText(node).trimmed();
        static const QRegularExpression word(QStringLiteral("^#?[A-Za-z][A-Za-z0-9_]*$"));
        anchor.isWord = word.match(anchor.title).hasMatch() && cmark_node_get_heading_level(node) == 2;
        if (cmark_node_get_heading_level(node) > 2)
            anchor.above = m_section;
        else
            m_section = anchor.title;
        if (anchor.name.isEmpty())
            anchor.name = MarkdownConverter::anchorOf(anchor.title);
        cmark_node_insert_before(node, htmlBlock(QStringLiteral("<a id=\"%1\"></a>").arg(anchor.name.toHtmlEscaped())));
        const auto message = m_messages.constFind(anchor.title);
        if (message != m_messages.constEnd()) {
            cmark_node_insert_after(node, htmlBlock(messageHtml(*message)));
            anchor.text = gradeName(message->grade) + QStringLiteral(": ") + message->text + QStringLiteral("\n\n");
        }
        // The name of a message, an instruction or a directive is no word for a spelling checker.
        if (message == m_messages.constEnd() && anchor.title != anchor.title.toUpper())
            m_page->prose += proseOf(node);
        m_page->anchors.append(anchor);
    }

    static void wrap(cmark_node* node, const char* cssClass)
    {
        cmark_node_insert_before(node, htmlBlock(QStringLiteral("<div class=\"%1\">").arg(QLatin1String(cssClass))));
        cmark_node_insert_after(node, htmlBlock(QStringLiteral("</div>")));
    }

    static void visitParagraph(cmark_node* node)
    {
        cmark_node* first = cmark_node_first_child(node);
        if (first == nullptr || cmark_node_get_type(first) != CMARK_NODE_STRONG)
            return;
        const QString lead = plainText(first);
        if (lead == QLatin1String("Note:"))
            wrap(node, "note");
        else if (lead == QLatin1String("Real core:"))
            wrap(node, "realcore");
    }

    static void visitExample(cmark_node* node)
    {
        const QString info = QString::fromUtf8(cmark_node_get_fence_info(node));
        static const QRegularExpression wrong(QStringLiteral("^psm\\b.*\\berr\\w+@"));
        if (wrong.match(info).hasMatch())
            wrap(node, "wrong");
    }

    void visitAll(cmark_node* document)
    {
        cmark_iter* it = cmark_iter_new(document);
        cmark_event_type event = CMARK_EVENT_NONE;
        while ((event = cmark_iter_next(it)) != CMARK_EVENT_DONE) {
            cmark_node* node = cmark_iter_get_node(it);
            if (event != CMARK_EVENT_ENTER)
                continue;
            const cmark_node_type type = cmark_node_get_type(node);
            if (type == CMARK_NODE_HTML_INLINE || type == CMARK_NODE_HTML_BLOCK)
                m_page->problems.append(QStringLiteral("holds HTML: ") +
                                        QString::fromUtf8(cmark_node_get_literal(node)).trimmed());
            else if (type == CMARK_NODE_CODE_BLOCK)
                takeExample(node);
            else if (type == CMARK_NODE_LINK)
                visitLink(node);
            else if (type == CMARK_NODE_IMAGE)
                visitPicture(node);
        }
        cmark_iter_free(it);
    }

    void takeExample(cmark_node* node)
    {
        HelpExample example;
        example.info = QString::fromUtf8(cmark_node_get_fence_info(node));
        example.text = QString::fromUtf8(cmark_node_get_literal(node));
        example.line = m_page->headLines + cmark_node_get_start_line(node);
        static const QStringList kinds{"psm", "session", "text", "sh", "vhdl", "verilog", "js", "ini"};
        if (!kinds.contains(example.info.section(' ', 0, 0)))
            m_page->problems.append(QStringLiteral("line %1: an example of unknown kind: \"%2\"")
                                        .arg(QString::number(example.line), example.info));
        m_page->examples.append(example);
    }

    void visitLink(cmark_node* node)
    {
        QString url = QString::fromUtf8(cmark_node_get_url(node));
        if (url.startsWith('#'))
            url.prepend(QStringLiteral("pageid:") + m_page->id);
        if (!url.startsWith(QLatin1String("pageid:"))) {
            m_page->webLinks.append(url);
            return;
        }
        HelpLink link;
        link.pageId = url.mid(7).section('#', 0, 0);
        link.anchor = QString::fromUtf8(QByteArray::fromPercentEncoding(url.mid(7).section('#', 1).toUtf8()));
        m_page->links.append(link);
        QString target = link.pageId.toLower() + QStringLiteral(".html");
        if (!link.anchor.isEmpty())
            target += '#' + QString::fromLatin1(link.anchor.toUtf8().toPercentEncoding());
        cmark_node_set_url(node, target.toUtf8().constData());
    }

    void visitPicture(cmark_node* node)
    {
        const QString url = QString::fromUtf8(cmark_node_get_url(node));
        if (!url.startsWith(QLatin1String("shot:"))) {
            m_page->webLinks.append(url);
            return;
        }
        const QString name = url.mid(5) + QStringLiteral(".png");
        m_page->pictures.append(name);
        cmark_node_set_url(node, (QStringLiteral("pictures/") + name).toUtf8().constData());
    }

    HelpPage* m_page;
    const MessageTexts& m_messages;
    QString m_section;             ///< the last heading right below the title
    bool m_afterProvoking = false; ///< the block before provokes the message of the entry
};

} // namespace

QString MarkdownConverter::anchorOf(const QString& heading)
{
    if (!heading.contains(' '))
        return heading;
    QString name = heading.toLower();
    name.remove(QRegularExpression(QStringLiteral("[^a-z0-9 -]")));
    return name.simplified().replace(' ', '-');
}

void MarkdownConverter::convert(HelpPage* page) const
{
    cmark_gfm_core_extensions_ensure_registered();
    const std::unique_ptr<cmark_parser, ParserDeleter> parser(cmark_parser_new(options));
    cmark_parser_attach_syntax_extension(parser.get(), cmark_find_syntax_extension("table"));
    cmark_parser_feed(parser.get(), page->markdown.constData(), size_t(page->markdown.size()));
    const NodePtr document(cmark_parser_finish(parser.get()));
    PageWalk(page, m_messages).run(document.get());
    char* html = cmark_render_html(document.get(), options, cmark_parser_get_syntax_extensions(parser.get()));
    page->html = html;
    std::free(html);
}

} // namespace nsHelpBuild
