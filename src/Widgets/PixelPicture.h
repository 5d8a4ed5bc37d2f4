#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

class QIODevice;

/// The pictures of the program as they are packed into it: pixels as they are painted, which are read in a fraction of
/// the time that a picture of another kind takes, as no library of image formats has to be loaded and asked.
///
/// Written and read on machines of one byte order: the mark, width and height (2 bytes each, of the machine), kind and
/// number of colours less one (1 byte each), 2 bytes that mean nothing, the colours, if it has any, and the lines from
/// top to bottom.
class PixelPicture
{
public:
    /// @return empty for a picture that has no side or one of more than maxSide
    static QByteArray written(const QImage& image);
    /// Whether what comes next in the device is such a picture. Moves nothing.
    static bool isNext(QIODevice* device);
    /// Size of the picture that comes next; invalid if none does. Moves nothing.
    static QSize nextSize(QIODevice* device);
    /// Reads the device to its end. @return false: it holds no such picture, or not the whole of one
    static bool read(QIODevice* device, QImage* image);

    static const int maxSide = 4096;
};
