// Logs and listings: lines of an address, a word, and the source text, among other lines.

#include "ImageBuilder.h"

#include <QRegularExpression>
#include <QSet>
#include <QVector>

#include <algorithm>

namespace nsImport {

namespace {

/// Takes the pieces between blanks from a line, one after the other.
class Pieces
{
public:
    explicit Pieces(const QByteArray& line)
        : m_line(line)
    {
    }

    QByteArray next()
    {
        while (m_pos < m_line.size() && isBlank(m_line.at(m_pos)))
            ++m_pos;
        const int start = m_pos;
        while (m_pos < m_line.size() && !isBlank(m_line.at(m_pos)))
            ++m_pos;
        return m_line.mid(start, m_pos - start);
    }
    QByteArray rest() const { return m_line.mid(m_pos).trimmed(); }

private:
    const QByteArray& m_line;
    int m_pos = 0;
};

bool isNumber(const QByteArray& piece, int fewest, int most, quint64* value)
{
    const QByteArray digits = piece.startsWith("0x") || piece.startsWith("0X") ? piece.mid(2) : piece;
    return digits.size() >= fewest && digits.size() <= most && !digits.contains('_') && toNumber(digits, 16, value);
}

struct sListingLine_t
{
    quint64 address = 0;
    quint64 word = 0;
    quint64 pageAddress = 0; ///< in a listing of our own; else the address
    bool isShared = false;   ///< each page has the word
    int number = 0;          ///< of the line
    QByteArray text;
    bool isDamaged = false; ///< there is an address, and something like a word
};

/// Is it a word with a digit too much or too little, or with a letter in place of a digit? A line without a word goes
/// on with a label, an instruction or a comment, and none of these begins with a digit.
bool isLikeWord(const QByteArray& piece)
{
    const int fewest = 4;
    const int most = 6;
    const auto digits = std::count_if(piece.begin(), piece.end(), isHexDigit);
    return piece.size() >= fewest && piece.size() <= most && piece.at(0) >= '0' && piece.at(0) <= '9' &&
           digits >= piece.size() - 1;
}

/// `3FF 34001 text`, or as our own assembler lists it: `03FF PAGE0 3FF 34001 file:line text`.
bool parseLine(const QByteArray& line, sListingLine_t* result)
{
    Pieces pieces(line);
    if (!isNumber(pieces.next(), 3, 6, &result->address))
        return false;
    QByteArray second = pieces.next();
    result->pageAddress = result->address;
    result->isShared = second == "SHARED";
    if (second.startsWith("PAGE") || result->isShared) {
        if (!isNumber(pieces.next(), 3, 6, &result->pageAddress))
            return false;
        second = pieces.next();
    }
    // A name can look like a word, but no word of 18 bits begins with a letter.
    const int wordDigits = 5;
    const bool isName = second.isEmpty() || second.at(0) < '0' || second.at(0) > '9';
    if (isName || !isNumber(second, wordDigits, wordDigits, &result->word)) {
        result->isDamaged = isLikeWord(second);
        result->text = second;
        return false;
    }
    result->text = pieces.rest();
    return true;
}

QTime timeIn(const QString& line)
{
    static const QRegularExpression form(QStringLiteral("\\b(\\d{1,2}):(\\d{2}):(\\d{2})\\b"));
    const QRegularExpressionMatch match = form.match(line);
    return match.hasMatch() ? QTime(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt())
                            : QTime();
}

QDate dateIn(const QString& line)
{
    static const QRegularExpression numbers(QStringLiteral("\\b(\\d{4})[-/.](\\d{1,2})[-/.](\\d{1,2})\\b"));
    static const QRegularExpression dayFirst(
        QStringLiteral("\\b(\\d{1,2})(?:st|nd|rd|th)?[ -]+([A-Za-z]{3})[a-z]*\\.?,?[ -]+(\\d{4}|\\d{2})\\b"));
    static const QRegularExpression monthFirst(QStringLiteral(
        "\\b([A-Za-z]{3})[a-z]*\\.? +(\\d{1,2})(?:st|nd|rd|th)?,?(?: +\\d\\d:\\d\\d:\\d\\d)? +(\\d{4})\\b"));
    static const QStringList months = {"jan", "feb", "mar", "apr", "may", "jun",
                                       "jul", "aug", "sep", "oct", "nov", "dec"};
    QRegularExpressionMatch match = numbers.match(line);
    if (match.hasMatch())
        return QDate(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt());
    match = dayFirst.match(line);
    const bool isDayFirst = match.hasMatch();
    if (!isDayFirst)
        match = monthFirst.match(line);
    if (!match.hasMatch())
        return QDate();
    const int month = months.indexOf(match.captured(isDayFirst ? 2 : 1).toLower()) + 1;
    const int year = match.captured(3).toInt();
    const int century = 2000; // of a year with two digits
    return QDate(year < 100 ? century + year : year, month, match.captured(isDayFirst ? 1 : 2).toInt());
}

/// Finds the moment of the run in the lines around the program. The tool's own date stands there, too: what has a time
/// beside it, or in the next line, is the run's.
class StampFinder
{
public:
    void look(const QByteArray& bytes)
    {
        const int longest = 512;
        const int lines = 2000; // the moment stands near the start
        if ((time.isValid() && date.isValid()) || ++m_lines > lines)
            return;
        const QString line = QString::fromLatin1(bytes.left(longest));
        const QTime foundTime = time.isValid() ? QTime() : timeIn(line);
        const QDate foundDate = dateIn(line);
        if (foundTime.isValid()) {
            time = foundTime;
            date = foundDate.isValid() ? foundDate : m_lastDate;
        } else if (foundDate.isValid() && (m_lastHadTime || isDateOfRun(line))) {
            date = foundDate;
        }
        m_lastHadTime = foundTime.isValid();
        m_lastDate = foundDate;
    }

    QDate date;
    QTime time;

private:
    static bool isDateOfRun(const QString& line)
    {
        static const QRegularExpression words(QStringLiteral("\\b(date|datestamp|assembled|created|generated on)\\b"),
                                              QRegularExpression::CaseInsensitiveOption);
        return words.match(line).hasMatch();
    }

    int m_lines = 0;
    bool m_lastHadTime = false;
    QDate m_lastDate;
};

} // namespace

bool isListing(const QByteArray& content)
{
    LineCursor cursor(content);
    while (cursor.next()) {
        sListingLine_t parsed;
        if (parseLine(cursor.line(), &parsed))
            return true;
    }
    return false;
}

bool readListing(const QByteArray& content, ImageBuilder* image)
{
    LineCursor cursor(content);
    StampFinder stamp;
    QSet<quint64> pages; // where they begin, but for the first one
    QVector<sListingLine_t> shared;
    while (cursor.next()) {
        sListingLine_t line;
        if (!parseLine(cursor.line(), &line)) {
            if (line.isDamaged)
                return image->fail(cursor.number(), QStringLiteral("%1 is no word.").arg(shown(line.text)));
            stamp.look(cursor.line());
            continue;
        }
        if (!image->add(qint64(line.address), line.word, cursor.number()))
            return false;
        line.number = cursor.number();
        if (line.isShared)
            shared.append(line);
        else if (line.address > line.pageAddress)
            pages.insert(line.address - line.pageAddress);
        if (!line.text.isEmpty())
            image->setText(int(line.address), QString::fromLatin1(line.text));
    }
    for (const sListingLine_t& line : qAsConst(shared)) {
        for (quint64 page : qAsConst(pages)) {
            if (!image->add(qint64(page + line.pageAddress), line.word, line.number))
                return false;
        }
    }
    image->image().date = stamp.date;
    image->image().time = stamp.time;
    return true;
}

} // namespace nsImport
