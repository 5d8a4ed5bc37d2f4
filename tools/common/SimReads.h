#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace nsBatch {

/// A source of values for the reads of the program: a text with one hexadecimal byte a line. Blank lines and the text
/// after `;` or `#` are ignored.
///
/// The text is read as far as values are needed, a piece at a time, so that it may be endless.
class SimReads
{
public:
    enum eResult_t {
        resultValue,
        resultEnd,     ///< there is no further value
        resultFailed,  ///< a line is not a value, or the file can not be read: see failure()
        resultStopped, ///< the user wants the run to end
    };

    SimReads() = default;
    ~SimReads();
    SimReads(const SimReads&) = delete;
    SimReads& operator=(const SimReads&) = delete;

    /// @param name "-" is standard input
    /// @return why that failed, or an empty text
    QString open(const QString& name);
    /// @param value 0 to 255
    eResult_t next(int* value);
    /// May next() have to wait for a terminal or another program?
    bool mayWait() const { return !m_isRegular && m_pos == m_size; }

    /// As a user knows it.
    QString shownName() const;
    qint64 count() const { return m_count; }
    /// Position and reason of the failure.
    const QString& failure() const { return m_failure; }

private:
    /// What the characters of a line are so far.
    struct sLine_t
    {
        QByteArray word;
        bool ended = false; ///< there was a blank after the word
        bool isComment = false;
    };

    bool fill(eResult_t* result);
    bool addChar(char c, sLine_t* line) const;
    eResult_t fail(const QString& reason);
    static bool toByte(const QByteArray& word, int* value);

    QString m_name;
    int m_fd = -1;
    bool m_isRegular = false;
    std::vector<char> m_piece;
    int m_size = 0; ///< characters in the piece
    int m_pos = 0;
    qint64 m_line = 1;
    qint64 m_count = 0;
    bool m_ended = false;
    QString m_failure;
};

} // namespace nsBatch
