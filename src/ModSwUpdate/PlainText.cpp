#include "PlainText.h"

#include <QVector>

namespace nsModSwUpdate {

namespace {

const QString ellipsis = QStringLiteral("...");

bool isShown(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
        return false;
    default:
        return true;
    }
}

bool isLineEnd(uint character)
{
    return character == '\n' || character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
}

QString clean(const QString& text)
{
    QVector<uint> result;
    for (const uint character : QString(text).replace(QLatin1String("\r\n"), QLatin1String("\n")).toUcs4()) {
        if (isLineEnd(character) || character == '\r')
            result.append('\n');
        else if (QChar::isSpace(character))
            result.append(' ');
        else if (isShown(character))
            result.append(character);
    }
    return QString::fromUcs4(result.constData(), result.size());
}

} // namespace

QString PlainText::bounded(QString text, int most)
{
    if (text.size() <= most)
        return text;
    text.truncate(most - ellipsis.size());
    if (!text.isEmpty() && text.at(text.size() - 1).isHighSurrogate())
        text.chop(1);
    return text + ellipsis;
}

QString PlainText::line(const QString& text, int most)
{
    return bounded(clean(text).simplified(), most);
}

QString PlainText::lines(const QString& text, int most)
{
    return bounded(clean(text).trimmed(), most);
}

} // namespace nsModSwUpdate
