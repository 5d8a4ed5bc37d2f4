#include "HlpNetworkAccessManager.h"

#include "HlpWidgetNetworkReply.h"

#include <QDebug>
#include <QHelpEngineCore>
#include <QNetworkRequest>
#include <QRegularExpression>
#include <QTextDocumentFragment>
#include <QUrlQuery>

#include <utility>

namespace nsModHlp {

namespace {

const char* const unknownPage = "errmsginternalerror";

/// A text for the inside of a script's string.
QString escaped(QString text)
{
    return text.replace('\\', QLatin1String("\\\\"))
        .replace('"', QLatin1String("\\\""))
        .replace('\n', QLatin1String("\\n"))
        .replace('\r', QLatin1String("\\r"))
        .replace(QChar::LineSeparator, QLatin1String("\\u2028"))
        .replace(QChar::ParagraphSeparator, QLatin1String("\\u2029"));
}

const QString schemePage = QStringLiteral("pageid");
const QString schemeScript = QStringLiteral("script");
const QString schemeHelp = QStringLiteral("qthelp");

/// The page that a request comes from; empty if it comes from none. The class of the engine is known by its name alone,
/// as the library that it is in need not be loaded.
QUrl pageThatAsks(const QNetworkRequest& request)
{
    const QObject* frame = request.originatingObject();
    return frame != nullptr && frame->inherits("QWebFrame") ? frame->property("url").toUrl() : QUrl();
}

} // namespace

HlpNetworkAccessManager::HlpNetworkAccessManager(std::function<void()> opener, QObject* parent)
    : QNetworkAccessManager(parent)
    , m_opener(std::move(opener))
{
}

void HlpNetworkAccessManager::makeReady()
{
    const std::function<void()> opener = std::exchange(m_opener, nullptr);
    if (opener)
        opener();
}

const QHash<QString, HlpNetworkAccessManager::hlpFile_t>& HlpNetworkAccessManager::pages()
{
    makeReady();
    return m_pages;
}

void HlpNetworkAccessManager::setEngine(QHelpEngineCore* engine)
{
    m_opener = nullptr;
    m_engine = engine;
    readPageTable();
}

void HlpNetworkAccessManager::readPageTable()
{
    m_pages.clear();
    for (const QByteArray& line : fileData(pageTableUrl()).split('\n')) {
        const QList<QByteArray> fields = line.trimmed().split(';');
        if (line.trimmed().isEmpty())
            break;
        m_pages.insert(QString::fromUtf8(fields.value(0)).toLower(),
                       {QString::fromUtf8(fields.value(1)), QString::fromUtf8(fields.value(2))});
    }
}

QByteArray HlpNetworkAccessManager::fileData(const QUrl& url)
{
    makeReady();
    return m_engine != nullptr ? m_engine->fileData(url) : QByteArray();
}

QUrl HlpNetworkAccessManager::resolved(const QUrl& url)
{
    if (url.scheme() != schemePage)
        return url;
    const auto page = pages().constFind(url.host().toLower());
    if (page == m_pages.constEnd()) {
        qDebug() << "HlpNetworkAccessManager::createRequest - page not found:" << url;
        return unknownPageUrl();
    }
    QUrl target = fileUrl('/' + page->path);
    if (!url.path().isEmpty())
        target.setPath(target.path() + (url.path().startsWith('/') ? "" : "/") + url.path());
    if (url.hasFragment())
        target.setFragment(url.fragment());
    else if (!page->anchor.isEmpty())
        target.setFragment(page->anchor);
    return target;
}

QUrl HlpNetworkAccessManager::unknownPageUrl()
{
    return fileUrl('/' + pages().value(QLatin1String(unknownPage)).path);
}

bool HlpNetworkAccessManager::isOfCollection(const QUrl& url) const
{
    return url.scheme() == schemeHelp && url.host().compare(hlpNamespace, Qt::CaseInsensitive) == 0;
}

QUrl HlpNetworkAccessManager::pageOf(const QUrl& url)
{
    const QUrl page = resolved(url);
    if (isOfCollection(page))
        return page;
    qDebug() << "HlpNetworkAccessManager::pageOf - no page of the help:" << url;
    return unknownPageUrl();
}

QString HlpNetworkAccessManager::titleOf(const QUrl& page)
{
    static const QRegularExpression title(QStringLiteral("<title>([^<]*)</title>"));
    // It stands at the start of each page; the end of a long one is not decoded.
    const int headSize = 2048;
    const QByteArray head = fileData(page.adjusted(QUrl::RemoveFragment)).left(headSize);
    return QTextDocumentFragment::fromHtml(title.match(QString::fromUtf8(head)).captured(1)).toPlainText();
}

QString HlpNetworkAccessManager::scriptCall(const QUrl& url)
{
    // "script://name" has the name as its host, which is in lower case; "script:///name" and "script:name" as its path.
    QString name = url.path();
    while (name.startsWith('/'))
        name.remove(0, 1);
    if (name.isEmpty())
        name = url.host();
    QStringList arguments;
    const QUrlQuery query(url);
    for (const auto& item : query.queryItems(QUrl::FullyDecoded)) {
        if (item.first == QLatin1String("str"))
            arguments.append('"' + escaped(item.second) + '"');
        else if (item.first == QLatin1String("int"))
            arguments.append(item.second);
    }
    return name + '(' + arguments.join(',') + ')';
}

QString HlpNetworkAccessManager::mimeType(const QUrl& url)
{
    static const struct
    {
        const char* ending;
        const char* type;
    } types[] = {
        {".svg", "image/svg+xml"},  {".svgz", "image/svg+xml"}, {".css", "text/css"},
        {".js", "text/javascript"}, {".txt", "text/plain"},     {".psm", "text/plain"},
        {".asm", "text/plain"},     {".vhd", "text/plain"},     {".png", "image/png"},
    };
    const QString path = url.path();
    for (const auto& row : types) {
        if (path.endsWith(QLatin1String(row.ending)))
            return QString::fromLatin1(row.type);
    }
    return QStringLiteral("text/html");
}

bool HlpNetworkAccessManager::runScriptLink(const QUrl& url, const QUrl& page)
{
    // Only what was shipped with the program may act on it.
    if (url.scheme() != schemeScript || !isOfCollection(page))
        return false;
    emit callScript(scriptCall(url));
    return true;
}

QNetworkReply* HlpNetworkAccessManager::createRequest(Operation operation, const QNetworkRequest& request,
                                                      QIODevice* data)
{
    Q_UNUSED(operation);
    Q_UNUSED(data);
    const QUrl url = request.url();
    if (url.scheme() == schemePage) {
        QNetworkRequest target(request);
        target.setUrl(resolved(url));
        target.setAttribute(QNetworkRequest::RedirectionTargetAttribute, target.url());
        return createRequest(operation, target, data);
    }
    if (url.scheme() == schemeScript)
        runScriptLink(url, pageThatAsks(request));
    // What a page shows comes from the collection; anything else stays empty.
    QByteArray bytes = url.scheme() == schemeHelp ? fileData(url) : QByteArray();
    if (bytes.isEmpty())
        bytes = " ";
    return new HlpWidgetNetworkReply(request, bytes, mimeType(url), this);
}

} // namespace nsModHlp
