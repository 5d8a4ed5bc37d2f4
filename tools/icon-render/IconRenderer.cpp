#include "IconRenderer.h"
#include "ColorTable.h"
#include "IconList.h"
#include "PixelPicture.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>
#include <QSvgRenderer>
#include <QXmlStreamReader>

namespace {

/// Elements that Qt's SVG renderer silently ignores, or that make the result depend on the fonts of the machine.
bool isUnsupportedElement(const QString& name)
{
    static const QSet<QString> names = {
        QStringLiteral("filter"),   QStringLiteral("mask"),   QStringLiteral("style"),
        QStringLiteral("clipPath"), QStringLiteral("symbol"), QStringLiteral("marker"),
        QStringLiteral("text"),     QStringLiteral("image"),  QStringLiteral("pattern")};
    return names.contains(name);
}

/// The role of a drawing with this light colour; null if there is none.
const ColorTable::sRow_t* rowOf(unsigned light)
{
    for (int role = ColorTable::firstOfDrawings; role < ColorTable::roleCount; ++role) {
        if (ColorTable::rows[role].light == light) {
            return &ColorTable::rows[role];
        }
    }
    return nullptr;
}

/// True if nothing at all is visible in the image.
bool isBlank(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) != 0) {
                return false;
            }
        }
    }
    return true;
}

/// True if nothing shines through.
bool isSolid(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) != 255) {
                return false;
            }
        }
    }
    return true;
}

/// "img/a.png" gives "img/a@2x.png" for density 2; density 1 leaves the name as it is.
QString targetName(const QString& target, int density)
{
    if (density == 1) {
        return target;
    }
    const int dot = target.lastIndexOf(QLatin1Char('.'));
    return target.left(dot) + QStringLiteral("@%1x").arg(density) + target.mid(dot);
}

} // namespace

IconRenderer::IconRenderer(const QDir& svgDir, const QDir& outDir, bool isPacked)
    : m_svgDir(svgDir)
    , m_outDir(outDir)
    , m_isPacked(isPacked)
{
}

bool IconRenderer::render(const IconEntry& entry)
{
    m_errorText.clear();
    const QString svgFile = m_svgDir.filePath(entry.svg + QStringLiteral(".svg"));
    QByteArray drawing;
    return readSource(svgFile, &drawing) && renderScheme(drawing, entry, QString()) && darkened(svgFile, &drawing) &&
           renderScheme(drawing, entry, QStringLiteral("dark/"));
}

bool IconRenderer::readSource(const QString& svgFile, QByteArray* drawing)
{
    QFile file(svgFile);
    if (!file.open(QIODevice::ReadOnly)) {
        return fail(svgFile + QStringLiteral(": ") + file.errorString());
    }
    *drawing = file.readAll();
    QXmlStreamReader reader(*drawing);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        const QString name = reader.name().toString();
        const QString place = QStringLiteral("%1:%2: ").arg(svgFile).arg(reader.lineNumber());
        if (isUnsupportedElement(name)) {
            return fail(place + QStringLiteral("element \"%1\" is not rendered").arg(name));
        }
        if (reader.attributes().hasAttribute(QLatin1String("class"))) {
            return fail(place + QStringLiteral("attribute \"class\" is not rendered"));
        }
    }
    if (reader.hasError()) {
        return fail(QStringLiteral("%1:%2: %3").arg(svgFile).arg(reader.lineNumber()).arg(reader.errorString()));
    }
    return true;
}

/// Replaces each colour by that of its role in the dark scheme.
bool IconRenderer::darkened(const QString& svgFile, QByteArray* drawing)
{
    static const QRegularExpression color(QStringLiteral("#([0-9a-fA-F]{3,8})\\b"));
    const QString text = QString::fromUtf8(*drawing);
    QString result;
    int end = 0;
    for (auto it = color.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        const ColorTable::sRow_t* row = rowOf(match.captured(1).toUInt(nullptr, 16));
        if (match.capturedLength(1) != 6 || row == nullptr) {
            return fail(QStringLiteral("%1: %2 is no colour of a drawing").arg(svgFile, match.captured()));
        }
        result += text.mid(end, match.capturedStart() - end);
        result += QStringLiteral("#%1").arg(row->dark, 6, 16, QLatin1Char('0'));
        end = match.capturedEnd();
    }
    *drawing = (result + text.mid(end)).toUtf8();
    return true;
}

bool IconRenderer::renderScheme(const QByteArray& drawing, const IconEntry& entry, const QString& folder)
{
    QSvgRenderer renderer;
    if (!renderer.load(drawing)) {
        return fail(entry.svg + QStringLiteral(": not a drawing that can be rendered"));
    }
    return renderOne(renderer, entry, folder, 1) && renderOne(renderer, entry, folder, 2);
}

bool IconRenderer::renderOne(QSvgRenderer& renderer, const IconEntry& entry, const QString& folder, int density)
{
    QImage image(entry.size * density, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(image.size())));
    painter.end();
    if (isBlank(image)) {
        return fail(entry.svg + QStringLiteral(": the rendered picture is empty"));
    }

    const QString fileName = m_outDir.filePath(folder + targetName(entry.target, density));
    if (!m_outDir.mkpath(QFileInfo(fileName).path())) {
        return fail(QStringLiteral("can not create folder for ") + fileName);
    }
    if (!save(image, fileName)) {
        return fail(QStringLiteral("can not write ") + fileName);
    }
    return true;
}

bool IconRenderer::save(const QImage& image, const QString& fileName) const
{
    if (m_isPacked) {
        QFile file(fileName);
        const QByteArray picture = PixelPicture::written(image);
        return !picture.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(picture) == picture.size() &&
               file.flush();
    }
    // What nothing shines through is smaller without its transparency.
    return image.convertToFormat(isSolid(image) ? QImage::Format_RGB32 : QImage::Format_ARGB32).save(fileName, "PNG");
}

bool IconRenderer::fail(const QString& text)
{
    m_errorText = text;
    return false;
}
