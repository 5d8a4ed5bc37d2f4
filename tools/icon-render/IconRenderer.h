#pragma once

#include <QDir>
#include <QString>

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
    IconRenderer(const QDir& svgDir, const QDir& outDir);

    /// Writes the PNG of the entry and its "@2x" sister. Returns false, with a text in errorText(), if the drawing
    /// cannot be read, uses what the renderer cannot draw, shows nothing, or if a file cannot be written.
    bool render(const IconEntry& entry);

    /// What went wrong in the last render().
    QString errorText() const { return m_errorText; }

private:
    bool checkSource(const QString& svgFile);
    bool renderOne(QSvgRenderer& renderer, const IconEntry& entry, int density);
    bool fail(const QString& text);

    QDir m_svgDir;
    QDir m_outDir;
    QString m_errorText;
};
