#pragma once

#include <QSize>
#include <QString>
#include <QVector>

/// One line of the icon list: which drawing is rendered to which file, and how large.
struct IconEntry
{
    QString svg;    ///< path of the SVG source, relative to the folder of the sources, without ".svg"
    QString target; ///< path of the PNG at single density, relative to the output folder, ending in ".png"
    QSize size;     ///< logical size in pixels; both sides are above 0
    int line = 0;   ///< line in the list file, counted from 1, for messages
};

/// The table of all rendered pictures, read from a text file.
///
/// One picture a line: source, target and size, set apart by blanks. The size is "24" for a square or "480x300".
/// Empty lines and lines that begin with "#" are skipped.
class IconList
{
public:
    /// Reads the file. Returns false, with a text for the user in errorText(), if the file cannot be read, a line
    /// is malformed, or a target occurs twice.
    bool read(const QString& fileName);

    /// The entries in the order of the file.
    const QVector<IconEntry>& entries() const { return m_entries; }

    /// What went wrong in the last read(), as "file:line: text".
    QString errorText() const { return m_errorText; }

private:
    bool parseLine(const QString& line, int lineNo);
    bool fail(int lineNo, const QString& text);

    QVector<IconEntry> m_entries;
    QString m_fileName;
    QString m_errorText;
};
