#include "PixelPicture.h"

#include <QHash>
#include <QIODevice>
#include <QVector>

#include <algorithm>
#include <cstring>

namespace {

enum eKind_t : uchar { eOpaque, eTransparent, eIndexed };

const char mark[] = {'N', 'P', 'I', 'X'};
const int maxColors = 256;
const int leastForColors = 64 * 1024; ///< pixels; the table does not pay for less

struct sHead_t
{
    char mark[4];
    quint16 width;
    quint16 height;
    uchar kind;
    uchar lastColor; ///< of a kind with colours: their number less one
    uchar unused[2];
};
static_assert(sizeof(sHead_t) == 12, "as it stands in the file");

/// @return false: there is none
bool nextHead(QIODevice* device, sHead_t* head)
{
    if (device == nullptr || device->peek(reinterpret_cast<char*>(head), sizeof *head) != qint64(sizeof *head))
        return false;
    return std::memcmp(head->mark, mark, sizeof mark) == 0 && head->width > 0 && head->height > 0 &&
           head->width <= PixelPicture::maxSide && head->height <= PixelPicture::maxSide && head->kind <= eIndexed;
}

bool isOpaque(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) != 255)
                return false;
        }
    }
    return true;
}

/// Pixels as places in the table of their colours. @return null: there are too many colours
QImage indexed(const QImage& image)
{
    QImage result(image.size(), QImage::Format_Indexed8);
    QVector<QRgb> colors;
    QHash<QRgb, uchar> places;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        uchar* target = result.scanLine(y);
        for (int x = 0; x < image.width(); ++x) {
            auto place = places.constFind(line[x]);
            if (place == places.constEnd()) {
                if (colors.size() == maxColors)
                    return {};
                place = places.insert(line[x], uchar(colors.size()));
                colors.append(line[x]);
            }
            target[x] = place.value();
        }
    }
    result.setColorTable(colors);
    return result;
}

QImage::Format formatOf(uchar kind)
{
    return kind == eIndexed  ? QImage::Format_Indexed8
           : kind == eOpaque ? QImage::Format_RGB32
                             : QImage::Format_ARGB32_Premultiplied;
}

/// Bytes of a line, which in the file has nothing behind its last pixel.
int lineBytes(uchar kind, int width)
{
    return kind == eIndexed ? width : width * int(sizeof(QRgb));
}

} // namespace

QByteArray PixelPicture::written(const QImage& image)
{
    if (image.isNull() || image.width() > maxSide || image.height() > maxSide)
        return {};
    QImage picture = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    sHead_t head = {{}, quint16(image.width()), quint16(image.height()), eTransparent, 0, {0, 0}};
    std::memcpy(head.mark, mark, sizeof mark);
    if (isOpaque(picture)) {
        head.kind = eOpaque;
        const QImage small = image.width() * image.height() >= leastForColors ? indexed(picture) : QImage();
        if (!small.isNull()) {
            head.kind = eIndexed;
            head.lastColor = uchar(small.colorCount() - 1);
            picture = small;
        }
    }
    QByteArray bytes(reinterpret_cast<const char*>(&head), sizeof head);
    if (head.kind == eIndexed) {
        const QVector<QRgb> colors = picture.colorTable();
        bytes.append(reinterpret_cast<const char*>(colors.constData()), colors.size() * int(sizeof(QRgb)));
    }
    for (int y = 0; y < picture.height(); ++y)
        bytes.append(reinterpret_cast<const char*>(picture.constScanLine(y)), lineBytes(head.kind, picture.width()));
    return bytes;
}

bool PixelPicture::isNext(QIODevice* device)
{
    sHead_t head;
    return nextHead(device, &head);
}

QSize PixelPicture::nextSize(QIODevice* device)
{
    sHead_t head;
    return nextHead(device, &head) ? QSize(head.width, head.height) : QSize();
}

bool PixelPicture::read(QIODevice* device, QImage* image)
{
    sHead_t head;
    if (!nextHead(device, &head))
        return false;
    const QByteArray bytes = device->readAll();
    const int colors = head.kind == eIndexed ? head.lastColor + 1 : 0;
    const int lineSize = lineBytes(head.kind, head.width);
    const int tableSize = colors * int(sizeof(QRgb));
    if (bytes.size() != int(sizeof head) + tableSize + lineSize * head.height)
        return false;
    QImage result(head.width, head.height, formatOf(head.kind));
    if (result.isNull())
        return false;
    const char* at = bytes.constData() + sizeof head;
    if (head.kind == eIndexed) {
        QVector<QRgb> table(colors);
        std::memcpy(table.data(), at, size_t(tableSize));
        result.setColorTable(table);
        at += tableSize;
        // Whoever paints it looks up each of them.
        if (std::any_of(at, bytes.constEnd(), [&head](char place) { return uchar(place) > head.lastColor; }))
            return false;
    }
    for (int y = 0; y < head.height; ++y, at += lineSize)
        std::memcpy(result.scanLine(y), at, size_t(lineSize));
    *image = result;
    return true;
}
