#pragma once

#include <QByteArray>
#include <QNetworkReply>

namespace nsModHlp {

/// Serves bytes that are there already as the answer to a request.
class HlpWidgetNetworkReply : public QNetworkReply
{
    Q_OBJECT

public:
    HlpWidgetNetworkReply(const QNetworkRequest& request, const QByteArray& data, const QString& mimeType,
                          QObject* parent = nullptr);

    /// Everything is there, so there is nothing to abort.
    void abort() override {}
    qint64 bytesAvailable() const override { return m_data.size() + QNetworkReply::bytesAvailable(); }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 maxSize) override;

private:
    void finish();

    QByteArray m_data; ///< what has not been read yet
};

} // namespace nsModHlp
