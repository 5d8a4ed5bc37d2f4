#include "Contents.h"

#include <QFile>

namespace nsHelpBuild {

namespace {

const int indentation = 2; ///< blanks a level

struct Line
{
    int level;
    ContentsEntry entry;
};

/// Takes the entries of a level and those below them, from the place on.
QVector<ContentsEntry> takeLevel(const QVector<Line>& lines, int* place, int level)
{
    QVector<ContentsEntry> entries;
    while (*place < lines.size() && lines.at(*place).level >= level) {
        ContentsEntry entry = lines.at((*place)++).entry;
        entry.entries = takeLevel(lines, place, level + 1);
        entries.append(entry);
    }
    return entries;
}

} // namespace

QVector<ContentsEntry> readContents(const QString& path, QStringList* errors)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        errors->append(path + QStringLiteral(": ") + file.errorString());
        return {};
    }
    QVector<Line> lines;
    for (const QString& text : QString::fromUtf8(file.readAll()).split('\n')) {
        const QString shown = text.trimmed();
        if (shown.isEmpty() || shown.startsWith('#'))
            continue;
        Line line{int(text.indexOf(shown)) / indentation, ContentsEntry()};
        if (line.level > (lines.isEmpty() ? 0 : lines.last().level + 1))
            errors->append(path + QStringLiteral(": indented too far: ") + shown);
        if (shown.startsWith('='))
            line.entry.title = shown.mid(1).trimmed();
        else
            line.entry.pageId = shown;
        lines.append(line);
    }
    int place = 0;
    return takeLevel(lines, &place, 0);
}

} // namespace nsHelpBuild
