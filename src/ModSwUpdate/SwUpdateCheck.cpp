#include "SwUpdateCheck.h"

#include "PlainText.h"
#include "SwUpdateAddresses.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace nsModSwUpdate {

namespace {

const int textMax = 500; ///< characters of a reason

bool isRedirect(int status)
{
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

/// @return the proxy itself refuses or fails
bool isProxyError(QNetworkReply::NetworkError error)
{
    return error >= QNetworkReply::ProxyConnectionRefusedError && error <= QNetworkReply::UnknownProxyError;
}

/// A decimal number other than 0, of any length.
bool isNonZero(const QString& text)
{
    static const QRegularExpression number(QStringLiteral("^[+-]?0*[1-9][0-9]*$"));
    return number.match(text.trimmed()).hasMatch();
}

QNetworkRequest requestFor(const QUrl& url)
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setRawHeader("User-Agent", "Nalvo");
    // What is not packed can not be a small answer that unpacks to a huge one.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

} // namespace

SwUpdateCheck::SwUpdateCheck(QObject* parent)
    : QObject(parent)
{
}

SwUpdateCheck::~SwUpdateCheck()
{
    abort();
}

void SwUpdateCheck::chkUpdate(const QString& release, const QString& screenSize, bool addChangeLog)
{
    abort();
    if (!SwUpdateAddresses::isWebScheme(m_server) || m_server.host().isEmpty())
        return;
    m_info = sUpdateInfo_t();
    m_redirects = 0;
    m_manager = new QNetworkAccessManager(this);
    m_manager->setProxy(m_proxy);
    QUrl url = m_server;
    url.setPath(QStringLiteral("/nalvo/"));
    url.setQuery(QStringLiteral("release=") + release + QStringLiteral("&platform=Win&screenSize=") + screenSize +
                 (addChangeLog ? QStringLiteral("&addChangeLog") : QString()));
    get(url);
}

void SwUpdateCheck::get(const QUrl& url)
{
    const int id = ++m_requestId;
    m_answer.clear();
    m_reply = m_manager->get(requestFor(url));
    m_reply->setReadBufferSize(answerMax + 1);
    connect(m_reply, &QNetworkReply::readyRead, this, &SwUpdateCheck::readAnswer);
    connect(m_reply, &QNetworkReply::finished, this,
            [this, id, reply = m_reply] { httpRequestFinished(id, reply->error() != QNetworkReply::NoError); });
}

void SwUpdateCheck::abort()
{
    ++m_requestId;
    if (m_reply != nullptr) {
        m_reply->disconnect(this);
        m_reply->abort();
    }
    m_reply = nullptr;
    // This may be called by a signal of the reply, which belongs to the manager.
    if (m_manager != nullptr)
        m_manager->deleteLater();
    m_manager = nullptr;
    m_answer.clear();
}

void SwUpdateCheck::fail(const QString& reason)
{
    abort();
    emit failed(reason);
}

void SwUpdateCheck::readAnswer()
{
    if (m_reply == nullptr)
        return;
    m_answer += m_reply->read(answerMax + 1 - m_answer.size());
    if (m_answer.size() > answerMax)
        fail(tr("The answer of the update server is too large."));
}

void SwUpdateCheck::httpRequestFinished(int id, bool error)
{
    if (m_reply == nullptr || id != m_requestId)
        return;
    readAnswer();
    if (m_reply == nullptr)
        return;
    const QNetworkReply::NetworkError code = m_reply->error();
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QUrl target = m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (error && (isProxyError(code) || (status == 0 && code != QNetworkReply::RemoteHostClosedError))) {
        // The text can be one that a stranger has sent.
        fail(PlainText::line(m_reply->errorString(), textMax));
    } else if (!error && isRedirect(status) && !target.isEmpty()) {
        followRedirect(m_reply->url().resolved(target));
    } else {
        const bool hasAnswer = !error && status >= 200 && status < 300 && !m_answer.isEmpty();
        const QByteArray answer = hasAnswer ? m_answer : QByteArray();
        abort();
        if (hasAnswer)
            parseRequest(answer);
    }
}

void SwUpdateCheck::followRedirect(const QUrl& target)
{
    const QUrl from = m_reply->url();
    const bool losesSafety = from.scheme() != target.scheme() && target.scheme() == QLatin1String("http");
    if (!SwUpdateAddresses::isWebScheme(target) || target.host() != from.host() || losesSafety) {
        fail(
            tr("The update server leads to another place: %1").arg(PlainText::line(target.toDisplayString(), textMax)));
        return;
    }
    if (++m_redirects > redirectsMax) {
        fail(tr("The update server leads from one place to the next without an end."));
        return;
    }
    m_reply->disconnect(this);
    m_reply->deleteLater();
    QUrl next = target;
    next.setUserInfo(QString());
    get(next);
}

void SwUpdateCheck::parseRequest(const QByteArray& answer)
{
    QXmlStreamReader xml(answer);
    sUpdateInfo_t info;
    bool hasInfo = false;
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        // A document type declares entities, which can make a short text endless.
        if (token == QXmlStreamReader::DTD)
            return;
        if (token == QXmlStreamReader::StartElement && !hasInfo && xml.name() == QLatin1String("updateinfo")) {
            info = parseUpdateInfo(&xml);
            hasInfo = true;
        }
    }
    if (xml.hasError() || !hasInfo)
        return;
    m_info = info;
    emit ready();
}

SwUpdateCheck::sUpdateInfo_t SwUpdateCheck::parseUpdateInfo(QXmlStreamReader* xml)
{
    sUpdateInfo_t info;
    while (xml->readNextStartElement()) {
        const QString name = xml->name().toString();
        if (name == QLatin1String("expired"))
            info.expired = isNonZero(xml->readElementText());
        else if (name == QLatin1String("release"))
            info.release = PlainText::line(xml->readElementText(), nameMax);
        else if (name == QLatin1String("date"))
            info.date = PlainText::line(xml->readElementText(), nameMax);
        else if (name == QLatin1String("changelog"))
            info.changeLog = PlainText::lines(xml->readElementText(), changeLogMax);
        else
            xml->skipCurrentElement();
    }
    return info;
}

} // namespace nsModSwUpdate
