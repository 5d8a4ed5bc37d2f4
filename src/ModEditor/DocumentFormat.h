#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace nsModEditor {

/// How the text of a document is stored in its file: encoding, byte order mark and line ends.
///
/// A text that was not changed gives the same bytes again. If the line ends of a file are mixed, each line keeps
/// its own; a line that is new gets the one that the file has most often.
class DocumentFormat
{
public:
    enum eEncoding_t {
        eEncodingUtf8 = 0,
        eEncodingLatin1 = 1 ///< every byte is a character
    };

    enum eLineEnd_t { eLineEndLf = 0, eLineEndCrLf = 1, eLineEndCr = 2, eLineEndMixed = 3 };

    /// Why a text can not be edited without a loss.
    enum eObstacle_t {
        eObstacleNone = 0,
        eObstacleNul = 1,
        eObstacleUtf16 = 2,
        eObstacleCharacters = 3 ///< characters that the text edit does not keep
    };

    /// Decodes the bytes of a file.
    /// @param text the text to show, one line feed between lines; of a file with an obstacle what can be shown of it
    static DocumentFormat decode(const QByteArray& bytes, QString* text);
    /// The bytes of the text in this format. @param text one line feed between lines
    QByteArray encode(const QString& text) const;
    /// @return false when the text has a character that the encoding does not have
    bool canEncode(const QString& text) const;

    eEncoding_t encoding() const { return m_encoding; }
    void setEncoding(eEncoding_t encoding) { m_encoding = encoding; }
    bool hasMark() const { return m_mark; }
    void setMark(bool mark) { m_mark = mark; }
    eLineEnd_t lineEnd() const { return m_lineEnd; }
    /// @param lineEnd from now on of all lines; not mixed
    void setLineEnd(eLineEnd_t lineEnd);
    eObstacle_t obstacle() const { return m_obstacle; }
    void setObstacle(eObstacle_t obstacle) { m_obstacle = obstacle; }
    /// The text was written in this format: its lines keep the line ends that they have got.
    void settle(const QString& text);
    /// For the status bar, e.g. "UTF-8, LF".
    QString text() const;

    bool operator==(const DocumentFormat& other) const
    {
        return m_encoding == other.m_encoding && m_mark == other.m_mark && m_lineEnd == other.m_lineEnd;
    }
    bool operator!=(const DocumentFormat& other) const { return !(*this == other); }

private:
    void takeLineEnds(QString* text);
    QVector<eLineEnd_t> mixedLineEnds(const QString& text) const;
    void setLineEnds(const QString& text, const QVector<eLineEnd_t>& ends);

    eEncoding_t m_encoding = eEncodingUtf8;
    bool m_mark = false;
    eLineEnd_t m_lineEnd = eLineEndLf;
    eObstacle_t m_obstacle = eObstacleNone;
    QString m_mixedText;             ///< of mixed line ends: the text that they belong to
    QVector<eLineEnd_t> m_mixedEnds; ///< one for each line feed of that text
};

} // namespace nsModEditor
