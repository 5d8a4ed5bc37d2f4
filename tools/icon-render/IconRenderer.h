#pragma once

#include <QByteArray>
#include <QDir>
#include <QString>

class QImage;
class QSvgRenderer;

struct IconEntry;

/// Renders single SVG drawings to PNG files at single and double density.
///
/// The same sources give the same bytes on every machine with the same Qt: no time stamps, no system fonts.
class IconRenderer
{
public:
    /// @param svgDir  folder of the SVG sources
    /// @param outDir  folder of the PNG files; sub folders are made as they are needed
    /// @param isPacked  they go into a program: a PixelPicture each, under the same names
    IconRenderer(const QDir& svgDir, const QDir& outDir, bool isPacked);

    /// Writes the PNG of the entry and its "@2x" sister, and both in the dark colours below "dark/". Returns false,
    /// with a text in errorText(), if the drawing cannot be read, uses what the renderer cannot draw or a colour that
    /// is no role of a drawing, shows nothing, or if a file cannot be written.
    bool render(const IconEntry& entry);

    /// What went wrong in the last render().
    QString errorText() const { return m_errorText; }

private:
    bool readSource(const QString& svgFile, QByteArray* drawing);
    bool darkened(const QString& svgFile, QByteArray* drawing);
    bool renderScheme(const QByteArray& drawing, const IconEntry& entry, const QString& folder);
    bool renderOne(QSvgRenderer& renderer, const IconEntry& entry, const QString& folder, int density);
    bool save(const QImage& image, const QString& fileName) const;
    bool fail(const QString& text);

    QDir m_svgDir;
    QDir m_outDir;
    bool m_isPacked;
    QString m_errorText;
};
