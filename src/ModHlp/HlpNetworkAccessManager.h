#pragma once

#include "HlpCollectionDescription.h"

#include <QHash>
#include <QNetworkAccessManager>
#include <QUrl>

#include <functional>
#include <utility>

class QHelpEngineCore;

namespace nsModHlp {

/// What the help pages load, and nothing else: pages of the collection by their ids ("pageid://"), files of the
/// collection ("qthelp://"), and calls of script functions ("script://").
class HlpNetworkAccessManager : public QNetworkAccessManager, public HlpCollectionDescription
{
    Q_OBJECT

public:
    /// A place in the collection.
    struct hlpFile_t
    {
        QString path;
        QString anchor;
    };

    /// @param opener opens the collection and calls setEngine(); called once, when the first page is wanted
    explicit HlpNetworkAccessManager(std::function<void()> opener, QObject* parent = nullptr);

    /// The engine with an opened collection, of which the page table is read; null: every page is empty. Not owned.
    void setEngine(QHelpEngineCore* engine);
    /// As in the constructor, once more.
    void setOpener(std::function<void()> opener) { m_opener = std::move(opener); }
    /// Is there a page with this id, in any case?
    bool hasPage(const QString& pageId) { return pages().contains(pageId.toLower()); }
    /// The ids of all pages, in lower case, in no order.
    QStringList pageIds() { return pages().keys(); }
    /// Opens the collection, unless that has been tried.
    void makeReady();
    /// Has the collection been opened, with or without success?
    bool isReady() const { return m_opener == nullptr; }

    /// The URL in the collection that a URL with a page id leads to; other URLs are returned as they are.
    QUrl resolved(const QUrl& url);
    /// Is this a file of the collection, by its name? It need not exist.
    bool isOfCollection(const QUrl& url) const;
    /// Where a request for a page leads: its URL in the collection. Any other URL leads to the page about internal
    /// errors.
    QUrl pageOf(const QUrl& url);
    /// The title of a page of the collection; empty if there is none.
    QString titleOf(const QUrl& page);
    /// The call of a script function that a URL of the scheme "script" stands for.
    static QString scriptCall(const QUrl& url);
    /// Calls the script function of a link of the scheme "script".
    /// @param page that holds the link
    /// @return false: the URL is none, or the page is not one of the collection
    bool runScriptLink(const QUrl& url, const QUrl& page);
    /// By the end of its name.
    static QString mimeType(const QUrl& url);

signals:
    /// A page of the collection asks for the call of a script function.
    void callScript(QString script);

protected:
    QNetworkReply* createRequest(Operation operation, const QNetworkRequest& request, QIODevice* data) override;

private:
    QUrl unknownPageUrl();
    const QHash<QString, hlpFile_t>& pages();
    void readPageTable();
    QByteArray fileData(const QUrl& url);

    std::function<void()> m_opener; ///< null once it has been called
    QHelpEngineCore* m_engine = nullptr;
    QHash<QString, hlpFile_t> m_pages; ///< by id in lower case
};

} // namespace nsModHlp
