#pragma once

#include <QImageIOPlugin>

/// Makes the pictures that are packed into the program known to QImage and all that reads pictures through it. Their
/// names end in ".png", like those of the drawings' other outputs; a real PNG is left to Qt.
class PixelPicturePlugin : public QImageIOPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "PixelPicturePlugin.json")

public:
    Capabilities capabilities(QIODevice* device, const QByteArray& format) const override;
    QImageIOHandler* create(QIODevice* device, const QByteArray& format = QByteArray()) const override;
};
