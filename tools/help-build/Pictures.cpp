#include "Pictures.h"

#include <QFile>
#include <QRegularExpression>
#include <QtEndian>

namespace nsHelpBuild {

int shownWidth(const QString& pngFile)
{
    // The signature is followed by the length and the name of the head, which begins with the width.
    static const QByteArray signature("\x89PNG\r\n\x1a\n", 8);
    const int headAt = 12;
    const int widthAt = 16;
    QFile file(pngFile);
    const QByteArray start = file.open(QIODevice::ReadOnly) ? file.read(widthAt + 4) : QByteArray();
    if (start.size() < widthAt + 4 || !start.startsWith(signature) || start.mid(headAt, 4) != "IHDR")
        return 0;
    return qFromBigEndian<int>(start.constData() + widthAt) / pictureScale;
}

QByteArray withPictureWidths(const QByteArray& html, const QString& pictureDir)
{
    static const QRegularExpression form(QStringLiteral("<img src=\"pictures/([^\"/]+)\""));
    const QString text = QString::fromUtf8(html);
    QString result;
    int end = 0;
    QRegularExpressionMatchIterator pictures = form.globalMatch(text);
    while (pictures.hasNext()) {
        const QRegularExpressionMatch picture = pictures.next();
        result += text.mid(end, picture.capturedEnd() - end);
        end = picture.capturedEnd();
        const int width = shownWidth(pictureDir + '/' + picture.captured(1));
        if (width > 0)
            result += QStringLiteral(" width=\"%1\"").arg(width);
    }
    return (result + text.mid(end)).toUtf8();
}

QStringList copyPictures(const QString& pictureDir, const QVector<HelpPage>& pages, const QDir& out)
{
    QStringList names;
    out.mkpath(QStringLiteral("pictures"));
    for (const HelpPage& page : pages) {
        for (const QString& picture : page.pictures) {
            const QString name = QStringLiteral("pictures/") + picture;
            if (names.contains(name))
                continue;
            QFile::remove(out.filePath(name));
            if (QFile::copy(pictureDir + '/' + picture, out.filePath(name)))
                names.append(name);
        }
    }
    return names;
}

} // namespace nsHelpBuild
