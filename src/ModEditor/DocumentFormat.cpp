#include "DocumentFormat.h"

#include "LineDiff.h"
#include "Utf8.h"

#include <QCoreApplication>
#include <QTextCodec>

#include <algorithm>
#include <array>

namespace nsModEditor {

namespace {

const QByteArray utf8Mark("\xEF\xBB\xBF");
const QByteArray utf16Marks[] = {QByteArray("\xFF\xFE"), QByteArray("\xFE\xFF")};
const std::array<const char*, 4> lineEndNames = {"LF", "CRLF", "CR", "mixed"};
const std::array<const char*, 3> lineEndTexts = {"\n", "\r\n", "\r"};

QString lineEndText(DocumentFormat::eLineEnd_t lineEnd)
{
    return QString::fromLatin1(lineEndTexts.at(std::size_t(lineEnd)));
}

/// @param ends one less than lines
QString joined(const QStringList& lines, const QVector<DocumentFormat::eLineEnd_t>& ends)
{
    QString result = lines.first();
    for (int line = 1; line < lines.size(); ++line)
        result += lineEndText(ends.at(line - 1)) + lines.at(line);
    return result;
}

} // namespace

DocumentFormat DocumentFormat::decode(const QByteArray& bytes, QString* text)
{
    DocumentFormat format;
    for (const QByteArray& mark : utf16Marks) {
        if (!bytes.startsWith(mark) || bytes.size() % 2 != 0 || !bytes.contains('\0'))
            continue;
        *text = QTextCodec::codecForName("UTF-16")->toUnicode(bytes);
        text->truncate(text->indexOf(QChar(0)) >= 0 ? text->indexOf(QChar(0)) : text->size());
        format.takeLineEnds(text);
        format.m_obstacle = eObstacleUtf16;
        return format;
    }
    QByteArray body = bytes;
    const int nul = body.indexOf('\0');
    if (nul >= 0) {
        format.m_obstacle = eObstacleNul;
        body.truncate(nul);
    }
    format.m_mark = body.startsWith(utf8Mark);
    if (!Utf8::decode(format.m_mark ? body.mid(utf8Mark.size()) : body, text)) {
        format.m_encoding = eEncodingLatin1;
        format.m_mark = false;
        *text = QString::fromLatin1(body);
    }
    format.takeLineEnds(text);
    return format;
}

/// Notes the line ends of the text, and leaves a line feed in place of each.
void DocumentFormat::takeLineEnds(QString* text)
{
    QVector<eLineEnd_t> ends;
    QString plain;
    plain.reserve(text->size());
    for (int i = 0; i < text->size(); ++i) {
        const QChar c = text->at(i);
        if (c == QLatin1Char('\r')) {
            const bool isPair = i + 1 < text->size() && text->at(i + 1) == QLatin1Char('\n');
            ends.append(isPair ? eLineEndCrLf : eLineEndCr);
            i += isPair ? 1 : 0;
        } else if (c == QLatin1Char('\n')) {
            ends.append(eLineEndLf);
        } else {
            plain.append(c);
            continue;
        }
        plain.append(QLatin1Char('\n'));
    }
    *text = plain;
    setLineEnds(plain, ends);
}

void DocumentFormat::setLineEnds(const QString& text, const QVector<eLineEnd_t>& ends)
{
    const bool mixed = std::any_of(ends.begin(), ends.end(), [&ends](eLineEnd_t end) { return end != ends.first(); });
    if (!mixed) {
        setLineEnd(ends.isEmpty() ? eLineEndLf : ends.first());
        return;
    }
    m_lineEnd = eLineEndMixed;
    m_mixedText = text;
    m_mixedEnds = ends;
}

void DocumentFormat::settle(const QString& text)
{
    if (m_lineEnd == eLineEndMixed)
        setLineEnds(text, mixedLineEnds(text));
}

void DocumentFormat::setLineEnd(eLineEnd_t lineEnd)
{
    m_lineEnd = lineEnd;
    m_mixedText.clear();
    m_mixedEnds.clear();
}

bool DocumentFormat::canEncode(const QString& text) const
{
    return m_encoding == eEncodingUtf8 || QTextCodec::codecForName("ISO-8859-1")->canEncode(text);
}

QByteArray DocumentFormat::encode(const QString& text) const
{
    QString lines = text;
    if (m_lineEnd == eLineEndMixed)
        lines = joined(text.split(QLatin1Char('\n')), mixedLineEnds(text));
    else if (m_lineEnd != eLineEndLf)
        lines.replace(QLatin1Char('\n'), lineEndText(m_lineEnd));
    if (m_encoding == eEncodingLatin1)
        return QTextCodec::codecForName("ISO-8859-1")->fromUnicode(lines);
    return (m_mark ? utf8Mark : QByteArray()) + lines.toUtf8();
}

/// The line ends of a text with mixed ones, one for each line feed.
QVector<DocumentFormat::eLineEnd_t> DocumentFormat::mixedLineEnds(const QString& text) const
{
    if (text == m_mixedText)
        return m_mixedEnds;
    std::array<int, 3> counts = {};
    for (const eLineEnd_t end : m_mixedEnds)
        ++counts.at(std::size_t(end));
    const auto most = eLineEnd_t(std::max_element(counts.begin(), counts.end()) - counts.begin());

    const QStringList before = m_mixedText.split(QLatin1Char('\n'));
    const QStringList now = text.split(QLatin1Char('\n'));
    QVector<eLineEnd_t> ends(now.size(), most);
    int oldLine = 0;
    int newLine = 0;
    const auto keep = [&](int oldEnd) {
        for (; oldLine < oldEnd; ++oldLine, ++newLine)
            ends[newLine] = m_mixedEnds.value(oldLine, most);
    };
    for (const LineDiff::sHunk_t& hunk : LineDiff::compare(before, now)) {
        keep(hunk.left);
        // A line that was changed keeps its line end.
        for (int i = 0; i < qMin(hunk.leftCount, hunk.rightCount); ++i)
            ends[hunk.right + i] = m_mixedEnds.value(hunk.left + i, most);
        oldLine = hunk.left + hunk.leftCount;
        newLine = hunk.right + hunk.rightCount;
    }
    keep(before.size());
    ends.removeLast();
    return ends;
}

QString DocumentFormat::text() const
{
    QString encoding = m_encoding == eEncodingLatin1 ? QStringLiteral("ISO 8859-1") : QStringLiteral("UTF-8");
    if (m_obstacle == eObstacleUtf16)
        encoding = QStringLiteral("UTF-16");
    if (m_mark)
        encoding = QCoreApplication::translate("nsModEditor::DocumentFormat", "%1 with mark").arg(encoding);
    return encoding + QStringLiteral(", ") +
           QCoreApplication::translate("nsModEditor::DocumentFormat", lineEndNames.at(std::size_t(m_lineEnd)));
}

} // namespace nsModEditor
