#include "PixelPicture.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QImageReader>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// At global scope, as the macro declares a function of the resource compiler.
static void initPictures()
{
    Q_INIT_RESOURCE(nalvo);
}

namespace {

QImage readBack(const QByteArray& bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImage image;
    return PixelPicture::read(&buffer, &image) ? image : QImage();
}

/// Of many colours.
QImage colourful(int width, int height, int alpha)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixelColor(x, y, QColor((x * 7) % 256, (y * 5) % 256, (x * y) % 256, alpha));
    }
    return image;
}

} // namespace

TEST(PixelPicture, isReadAsItWasWritten)
{
    const QImage opaque = colourful(13, 7, 255);
    EXPECT_EQ(readBack(PixelPicture::written(opaque)), opaque.convertToFormat(QImage::Format_RGB32));
    const QImage glass = colourful(5, 9, 128);
    EXPECT_EQ(readBack(PixelPicture::written(glass)), glass);
    const QImage large = colourful(400, 300, 255);
    EXPECT_EQ(readBack(PixelPicture::written(large)), large.convertToFormat(QImage::Format_RGB32));
    // A large one of few colours is smaller.
    QImage flat(400, 300, QImage::Format_RGB32);
    flat.fill(qRgb(1, 2, 3));
    flat.setPixel(399, 299, qRgb(250, 0, 0));
    const QByteArray bytes = PixelPicture::written(flat);
    EXPECT_LT(bytes.size(), 400 * 300 + 100);
    EXPECT_EQ(readBack(bytes).convertToFormat(QImage::Format_RGB32), flat);
}

TEST(PixelPicture, thatIsNotWholeIsNotRead)
{
    EXPECT_TRUE(PixelPicture::written(QImage()).isEmpty());
    EXPECT_TRUE(PixelPicture::written(QImage(PixelPicture::maxSide + 1, 1, QImage::Format_RGB32)).isEmpty());
    QImage flat(300, 250, QImage::Format_RGB32);
    flat.fill(Qt::red);
    for (const QImage& image : {colourful(4, 3, 255), colourful(4, 3, 20), flat}) {
        const QByteArray bytes = PixelPicture::written(image);
        EXPECT_FALSE(readBack(bytes).isNull());
        EXPECT_TRUE(readBack(bytes + '\0').isNull());
        for (int size = 0; size < qMin(bytes.size(), 200); ++size)
            EXPECT_TRUE(readBack(bytes.left(size)).isNull()) << size;
        // Each byte of the head wrong: refused, or a picture of that size.
        for (int at = 0; at < 12; ++at) {
            for (const int value : {0, 1, 2, 3, 127, 255}) {
                QByteArray wrong = bytes;
                wrong[at] = char(value);
                readBack(wrong);
            }
        }
    }
}

TEST(PixelPicture, whosePixelsHaveNoColourIsNotRead)
{
    QImage flat(300, 250, QImage::Format_RGB32);
    flat.fill(Qt::red);
    QByteArray bytes = PixelPicture::written(flat);
    ASSERT_LT(bytes.size(), 300 * 250 + 100);
    bytes[bytes.size() - 1] = char(1);
    EXPECT_TRUE(readBack(bytes).isNull());
}

TEST(PixelPicture, ofTheProgramIsReadByEverythingThatReadsPictures)
{
    initPictures();
    const QString path = ":/ModGui/img/tab-close.png";
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(PixelPicture::isNext(&file)) << "the pictures are packed";
    const QSize size = PixelPicture::nextSize(&file);
    QImage image;
    ASSERT_TRUE(PixelPicture::read(&file, &image));
    EXPECT_EQ(image.size(), size);
    EXPECT_EQ(QImage(path), image);
    EXPECT_EQ(QImageReader(path).size(), size);
    EXPECT_EQ(QImageReader(path).format(), "png");
    EXPECT_FALSE(QIcon(path).pixmap(size).isNull());
    file.seek(0);
    EXPECT_EQ(QImage::fromData(file.readAll()), image);
}

TEST(PixelPicture, leavesOtherPicturesToQt)
{
    initPictures();
    QTemporaryDir folder;
    const QString path = folder.filePath("real.png");
    const QImage image = colourful(20, 10, 100);
    ASSERT_TRUE(image.save(path));
    EXPECT_EQ(QImage(path).convertToFormat(image.format()).pixelColor(3, 4).alpha(), 100);
    QFile broken(folder.filePath("broken.png"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write(PixelPicture::written(image).left(30));
    broken.close();
    EXPECT_TRUE(QImage(broken.fileName()).isNull());
}
