#include "MessageEntries.h"

#include "MessageTables.h"

#include <QRegularExpression>

namespace nsHelpBuild {

namespace {

const int columns = 80;

/// A line as several that fit; those after the first are indented as its text is.
QStringList wrapped(const QString& line)
{
    const bool isCode = line.startsWith(QLatin1String("    "));
    if (isCode || line.size() <= columns)
        return {line};
    const QString indentation = line.startsWith(QLatin1String("- ")) ? QStringLiteral("  ") : QString();
    QStringList lines;
    QString text;
    for (const QString& word : line.split(' ', Qt::SkipEmptyParts)) {
        if (!text.trimmed().isEmpty() && text.size() + 1 + word.size() > columns) {
            lines.append(text);
            text = indentation + word;
        } else {
            text += (text.trimmed().isEmpty() ? QString() : QStringLiteral(" ")) + word;
        }
    }
    return lines << text;
}

QByteArray bodyOf(const HelpAnchor& anchor)
{
    QString text = anchor.text;
    static const QRegularExpression blankEnds(QStringLiteral("[ \t]+(?=\n)"));
    static const QRegularExpression emptyLines(QStringLiteral("\n{3,}"));
    text.replace(blankEnds, QString()).replace(emptyLines, QStringLiteral("\n\n"));
    QByteArray body;
    QStringList lines = text.split('\n');
    while (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    for (const QString& line : qAsConst(lines)) {
        for (const QString& part : wrapped(line))
            body += (part.isEmpty() ? QByteArray() : "  " + part.toUtf8()) + '\n';
    }
    return body;
}

} // namespace

QByteArray messageEntries(const QVector<HelpPage>& pages)
{
    const QStringList ids = entryPages();
    QByteArray text;
    for (const QString& id : ids) {
        for (const HelpPage& page : pages) {
            if (page.id.compare(id, Qt::CaseInsensitive) != 0)
                continue;
            for (const HelpAnchor& anchor : page.anchors)
                text += QStringList{anchor.name, page.id, page.title, anchor.title}.join('\t').toUtf8() + '\n' +
                        bodyOf(anchor);
        }
    }
    return text;
}

} // namespace nsHelpBuild
