#pragma once

#include <QByteArray>
#include <QNetworkProxy>
#include <QObject>
#include <QUrl>

class QNetworkAccessManager;
class QNetworkReply;
class QXmlStreamReader;

namespace nsModSwUpdate {

/// Asks the update server for the newest release; one request at a time.
///
/// The answer is not trusted: it is short, has no document type, and its texts are plain and of bounded length. What is
/// neither an answer nor a failure of the network ends in silence; the caller must have a time-out.
class SwUpdateCheck : public QObject
{
    Q_OBJECT

public:
    /// The answer.
    struct sUpdateInfo_t
    {
        bool expired = false; ///< there is a newer release than the one that was named
        QString release;
        QString date;
        QString changeLog; ///< may have several lines
    };

    static constexpr int answerMax = 1024 * 1024;  ///< bytes of an answer; a longer one is not read to its end
    static constexpr int redirectsMax = 5;         ///< one after the other
    static constexpr int nameMax = 80;             ///< characters of release and date
    static constexpr int changeLogMax = 16 * 1024; ///< characters

    explicit SwUpdateCheck(QObject* parent = nullptr);
    /// A request in progress ends without a signal.
    ~SwUpdateCheck() override;

    /// @param server scheme, host and port; an empty one is never asked
    void setServer(const QUrl& server) { m_server = server; }
    /// For the next request.
    void setProxy(const QNetworkProxy& proxy) { m_proxy = proxy; }
    /// Sends the request, in place of one in progress. Ends with ready(), failed() or in silence.
    /// @param release that of this program, with its state
    /// @param screenSize width and height in pixels, as "1920x1080"
    void chkUpdate(const QString& release, const QString& screenSize, bool addChangeLog);
    /// Drops the request in progress, if any: no signal comes any more.
    void abort();
    bool isRunning() const { return m_reply != nullptr; }

    // The last answer, after ready().
    bool isExpired() const { return m_info.expired; }
    QString release() const { return m_info.release; }
    QString date() const { return m_info.date; }
    QString changeLog() const { return m_info.changeLog; }

signals:
    /// There is an answer.
    void ready();
    /// There can be no answer.
    /// @param reason a sentence for the user
    void failed(const QString& reason);

private slots:
    /// @param id of the request; one that is not the present one is ignored
    void httpRequestFinished(int id, bool error);
    void readAnswer();

private:
    void get(const QUrl& url);
    void followRedirect(const QUrl& target);
    void parseRequest(const QByteArray& answer);
    static sUpdateInfo_t parseUpdateInfo(QXmlStreamReader* xml);
    void fail(const QString& reason);

    QUrl m_server;
    QNetworkProxy m_proxy;
    QNetworkAccessManager* m_manager = nullptr; ///< of the request; nothing is reused
    QNetworkReply* m_reply = nullptr;           ///< null: no request in progress
    int m_requestId = 0;
    int m_redirects = 0;
    QByteArray m_answer; ///< what has been read so far
    sUpdateInfo_t m_info;
};

} // namespace nsModSwUpdate
