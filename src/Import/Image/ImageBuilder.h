#pragma once

#include "ImageReader.h"

#include <QHash>

#include <vector>

namespace nsImport {

/// Collects the words that a reader finds, and refuses those that contradict each other.
class ImageBuilder
{
public:
    ImageBuilder(const ImageOptions& options, const QString& fileName);

    const ImageOptions& options() const { return m_options; }
    /// Takes a word. @param line counted from 1 @return false after a reported error
    bool add(qint64 address, quint64 word, int line);
    void setText(int address, const QString& text) { m_result.image.setText(address, text); }
    void note(const QString& text);
    /// Reports an error; the first one stays. @param line counted from 1; 0 without a line @return false
    bool fail(int line, const QString& text);

    ProgramImage& image() { return m_result.image; }
    /// The result of a reader. @param success what it returned
    ImageResult finish(bool success, eImageFormat_t format);

private:
    ImageOptions m_options;
    ImageResult m_result;
};

/// The lines of a text: they end with LF, CR LF or CR.
class LineCursor
{
public:
    enum eEnd_t { endNone, endLf, endCrLf, endCr };

    /// @param text must live as long as the cursor and the lines
    explicit LineCursor(const QByteArray& text)
        : m_text(text)
    {
    }

    /// Goes to the next line. @return false at the end of the text
    bool next();
    /// The line without its end; shares the memory of the text.
    QByteArray line() const { return QByteArray::fromRawData(m_text.constData() + m_start, m_length); }
    int number() const { return m_number; } ///< counted from 1
    eEnd_t end() const { return m_end; }

private:
    const QByteArray& m_text;
    int m_pos = 0;
    int m_start = 0;
    int m_length = 0;
    int m_number = 0;
    eEnd_t m_end = endNone;
};

/// Finds the lines of positions in a text.
class LineIndex
{
public:
    explicit LineIndex(const QByteArray& text);
    /// @return counted from 1
    int lineAt(int pos) const;

private:
    std::vector<int> m_starts;
};

bool isBlank(char c);
bool isHexDigit(char c);

/// Reads digits of a radix up to 16. Underscores between them are skipped.
/// @return false: there is none, one that does not belong to the radix, or the value exceeds 62 bits
bool toNumber(const QByteArray& digits, int radix, quint64* value);

/// A word or an address as hexadecimal digits for the user.
QString hexText(quint64 value, int digits);
/// A piece of a file for a message: printable and short.
QString shown(const QByteArray& text);

// The readers, one a format. Each takes a content that detection has found to be of its kind, and returns false after a
// reported error.

bool readWordFile(const QByteArray& content, ImageBuilder* image);
bool readLatticeMem(const QByteArray& content, ImageBuilder* image);
bool readCoe(const QByteArray& content, ImageBuilder* image);
bool readMif(const QByteArray& content, ImageBuilder* image);
bool readHdl(const QByteArray& content, ImageBuilder* image);
bool readIntelHex(const QByteArray& content, ImageBuilder* image);
bool readListing(const QByteArray& content, ImageBuilder* image);

/// Are all lines words, addresses behind `@`, and comments?
bool isWordFile(const QByteArray& content);
/// Is at least the first line with a word or an address like that? Then the reader tells what is wrong with the others.
bool startsAsWordFile(const QByteArray& content);
/// Does the content have lines of an address and a word?
bool isListing(const QByteArray& content);

} // namespace nsImport
