#include "FilterText.h"

#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

namespace nsModImport {

namespace {

const int maxFilterLine = 4096; ///< characters

bool isKeptByTextWidgets(const QString& text)
{
    for (const ushort forbidden : {0x2028, 0x2029, 0xfdd0, 0xfdd1}) {
        if (text.contains(QChar(forbidden)))
            return false;
    }
    return true;
}

/// Makes all line ends line feeds. The text mode of files would drop a carriage return that ends a line alone, and so
/// join an instruction to the comment above it.
void takeLineEnds(QByteArray* bytes)
{
    int to = 0;
    for (int from = 0; from < bytes->size();) {
        int end = from;
        while (end < bytes->size() && bytes->at(end) == '\r')
            ++end;
        const bool isFeed = end < bytes->size() && bytes->at(end) == '\n';
        const int returns = end - from;
        if (returns == 0 || isFeed)
            (*bytes)[to++] = bytes->at(end);
        for (int i = 0; !isFeed && i < returns; ++i)
            (*bytes)[to++] = '\n';
        from = returns == 0 || isFeed ? end + 1 : end;
    }
    bytes->truncate(to);
}

} // namespace

eFileRead_t readTextFile(const QString& path, QByteArray* bytes)
{
    if (!QFileInfo(path).isFile())
        return fileUnreadable;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fileUnreadable;
    // The size that a file names need not be what it holds.
    *bytes = file.read(maxImportFileSize + 1);
    if (file.error() != QFileDevice::NoError)
        return fileUnreadable;
    if (bytes->size() > maxImportFileSize)
        return fileTooLarge;
    takeLineEnds(bytes);
    return fileRead;
}

QString importText(const QByteArray& bytes)
{
    const int end = bytes.indexOf('\0');
    const QByteArray used = end < 0 ? bytes : bytes.left(end);
    QTextCodec::ConverterState state;
    const QString text = QTextCodec::codecForName("UTF-8")->toUnicode(used.constData(), used.size(), &state);
    const bool isUtf8 = state.invalidChars == 0 && state.remainingChars == 0 && isKeptByTextWidgets(text);
    return isUtf8 ? text : QString::fromLatin1(used);
}

QStringList filterLines(const QString& path)
{
    QByteArray bytes;
    if (readTextFile(path, &bytes) != fileRead)
        return {};
    QStringList lines;
    const QString text = importText(bytes);
    for (int start = 0; start < text.size();) {
        const int feed = text.indexOf('\n', start);
        const int end = feed < 0 ? text.size() : feed + 1;
        if (end - start <= maxFilterLine)
            lines.append(text.mid(start, end - start));
        start = end;
    }
    return lines;
}

} // namespace nsModImport
