#include "HlpWidgetNetworkReply.h"

#include <QNetworkRequest>
#include <QTimer>

#include <algorithm>
#include <cstring>

namespace nsModHlp {

HlpWidgetNetworkReply::HlpWidgetNetworkReply(const QNetworkRequest& request, const QByteArray& data,
                                             const QString& mimeType, QObject* parent)
    : QNetworkReply(parent)
    , m_data(data)
{
    setRequest(request);
    setUrl(request.url());
    setOpenMode(ReadOnly);
    const bool isText = mimeType.startsWith(QLatin1String("text/"));
    setHeader(QNetworkRequest::ContentTypeHeader, isText ? mimeType + QLatin1String("; charset=utf-8") : mimeType);
    setHeader(QNetworkRequest::ContentLengthHeader, QByteArray::number(data.size()));
    // Whoever asked connects to the reply only after it has got it.
    QTimer::singleShot(0, this, &QNetworkReply::metaDataChanged);
    QTimer::singleShot(0, this, &QNetworkReply::readyRead);
    // Who decides by the first 512 bytes what it has got reads nothing of a shorter file before it is finished.
    QTimer::singleShot(0, this, &HlpWidgetNetworkReply::finish);
}

void HlpWidgetNetworkReply::finish()
{
    if (isFinished())
        return;
    setFinished(true);
    emit finished();
}

qint64 HlpWidgetNetworkReply::readData(char* data, qint64 maxSize)
{
    const qint64 size = std::min<qint64>(maxSize, m_data.size());
    if (size > 0) {
        std::memcpy(data, m_data.constData(), size_t(size));
        m_data.remove(0, int(size));
    }
    if (m_data.isEmpty())
        QTimer::singleShot(0, this, &HlpWidgetNetworkReply::finish);
    return size;
}

} // namespace nsModHlp
