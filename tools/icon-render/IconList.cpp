#include "IconList.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace {

/// A larger size is regarded as a typing error in the list.
constexpr int maxSide = 4096;

/// Reads "24" or "480x300"; an invalid size if the text is neither.
QSize sizeFromText(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("^([0-9]{1,4})(?:x([0-9]{1,4}))?$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch()) {
        return {};
    }
    const int width = match.captured(1).toInt();
    const int height = match.captured(2).isEmpty() ? width : match.captured(2).toInt();
    const bool valid = width > 0 && height > 0 && width <= maxSide && height <= maxSide;
    return valid ? QSize(width, height) : QSize();
}

} // namespace

bool IconList::read(const QString& fileName)
{
    m_entries.clear();
    m_errorText.clear();
    m_fileName = fileName;

    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return fail(0, file.errorString());
    }
    int lineNo = 0;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).simplified();
        ++lineNo;
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) {
            continue;
        }
        if (!parseLine(line, lineNo)) {
            return false;
        }
    }
    return true;
}

bool IconList::parseLine(const QString& line, int lineNo)
{
    const QStringList fields = line.split(QLatin1Char(' '));
    if (fields.size() != 3) {
        return fail(lineNo, QStringLiteral("expected source, target and size"));
    }
    IconEntry entry;
    entry.svg = fields.at(0);
    entry.target = fields.at(1);
    entry.size = sizeFromText(fields.at(2));
    entry.line = lineNo;
    if (!entry.target.endsWith(QLatin1String(".png"))) {
        return fail(lineNo, QStringLiteral("target does not end in \".png\": ") + entry.target);
    }
    if (!entry.size.isValid()) {
        return fail(lineNo, QStringLiteral("size is neither \"24\" nor \"480x300\": ") + fields.at(2));
    }
    const bool known = std::any_of(m_entries.cbegin(), m_entries.cend(),
                                   [&entry](const IconEntry& other) { return other.target == entry.target; });
    if (known) {
        return fail(lineNo, QStringLiteral("target occurs twice: ") + entry.target);
    }
    m_entries.append(entry);
    return true;
}

bool IconList::fail(int lineNo, const QString& text)
{
    m_errorText = QStringLiteral("%1:%2: %3").arg(m_fileName).arg(lineNo).arg(text);
    return false;
}
