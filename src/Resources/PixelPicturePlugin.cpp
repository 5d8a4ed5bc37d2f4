#include "PixelPicturePlugin.h"

#include "PixelPicture.h"

#include <QVariant>
#include <QtPlugin>

// Known to every program that this is linked into.
Q_IMPORT_PLUGIN(PixelPicturePlugin)

namespace {

class PixelPictureHandler : public QImageIOHandler
{
public:
    bool canRead() const override { return PixelPicture::isNext(device()); }
    bool read(QImage* image) override { return PixelPicture::read(device(), image); }
    bool supportsOption(ImageOption option) const override { return option == Size; }
    QVariant option(ImageOption option) const override
    {
        return option == Size ? QVariant(PixelPicture::nextSize(device())) : QVariant();
    }
};

} // namespace

QImageIOPlugin::Capabilities PixelPicturePlugin::capabilities(QIODevice* device, const QByteArray& format) const
{
    const bool isAsked = format.isEmpty() || format == "png";
    return isAsked && device != nullptr && device->isReadable() && PixelPicture::isNext(device) ? CanRead
                                                                                                : Capabilities();
}

QImageIOHandler* PixelPicturePlugin::create(QIODevice* device, const QByteArray& format) const
{
    auto* handler = new PixelPictureHandler;
    handler->setDevice(device);
    handler->setFormat(format);
    return handler;
}
