#pragma once

#include <QByteArray>
#include <QString>

class QIODevice;

namespace nsModAsmFe {

/// Reads a text line by line, in large pieces and with a bounded line length.
///
/// Every byte becomes the character of the same number, whatever the text's encoding is; a byte order mark of UTF-8 at
/// the start is skipped. CR LF counts as one line end, and a line ends for its reader at the first NUL byte.
class LineReader
{
public:
    /// @param device open for reading; not owned
    /// @param maxLineLength in bytes; a longer line is delivered up to there, the rest of it is skipped
    LineReader(QIODevice* device, int maxLineLength);

    /// Delivers the next line with its line end, if it has one.
    /// @return false at the end of the text
    bool readLine(QString* line);
    /// The line that was delivered last was longer than the bound.
    bool wasTruncated() const { return m_truncated; }
    /// The line that was delivered last has a line end; the last line of a text may have none.
    bool wasEnded() const { return m_ended; }
    /// The device has reported a failure.
    bool failed() const { return m_failed; }

private:
    bool fill();
    void skipByteOrderMark();

    QIODevice* m_device;
    int m_maxLineLength;
    QByteArray m_buffer;
    int m_pos = 0;
    bool m_started = false;
    bool m_truncated = false;
    bool m_ended = false;
    bool m_failed = false;
    QByteArray m_long; ///< start of a line that goes over the end of a piece
};

} // namespace nsModAsmFe
