#include "SourceText.h"

#include "LineDiff.h"
#include "Utf8.h"

#include <QFile>
#include <QFileInfo>

namespace nsModSymbols::SourceText {

QString onDisk(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return QString();
    const QByteArray bytes = file.readAll();
    QString text;
    if (!Utf8::decode(bytes, &text))
        text = QString::fromLatin1(bytes);
    if (text.startsWith(QChar(QChar::ByteOrderMark)))
        text.remove(0, 1);
    return text.remove('\r');
}

int codeLength(const QString& line)
{
    bool isQuoted = false;
    for (int i = 0; i < line.size(); ++i) {
        if (line.at(i) == '\\')
            ++i;
        else if (line.at(i) == '"')
            isQuoted = !isQuoted;
        else if (line.at(i) == ';' && !isQuoted)
            return i;
    }
    return line.size();
}

QVector<int> movedLines(const QString& from, const QString& to, const QVector<int>& lines)
{
    const QVector<LineDiff::sHunk_t> hunks = LineDiff::compare(from.split('\n'), to.split('\n'));
    QVector<int> result;
    for (int line : lines) {
        int moved = line;
        for (const LineDiff::sHunk_t& hunk : hunks) {
            if (line < hunk.left)
                break;
            if (line < hunk.left + hunk.leftCount) {
                // A changed line keeps its place in the stretch.
                moved = hunk.right + qMin(line - hunk.left, qMax(hunk.rightCount - 1, 0));
                break;
            }
            moved = line + hunk.right + hunk.rightCount - hunk.left - hunk.leftCount;
        }
        result.append(moved);
    }
    return result;
}

} // namespace nsModSymbols::SourceText
