#include "BatchOutput.h"

#include <QDir>

#include <cerrno>
#include <cstring>

namespace nsBatch {

namespace {

QByteArray program;  ///< at the start of error messages
int stdoutError = 0; ///< why the first text for standard output was lost

void noteStdout(bool success)
{
    if (!success && stdoutError == 0)
        stdoutError = errno != 0 ? errno : EIO;
}

bool isControl(QChar c)
{
    return c.category() == QChar::Other_Control || c == QChar(QChar::LineSeparator) ||
           c == QChar(QChar::ParagraphSeparator);
}

/// The characters of the UTF-8 sequence at the position, or nothing if there is none of more than one byte.
QString sequenceAt(const QString& text, int pos, int* length)
{
    const ushort lead = text.at(pos).unicode();
    *length = lead < 0xc2 || lead > 0xf4 ? 0 : lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : 4;
    if (*length == 0 || pos + *length > text.size())
        return QString();
    QByteArray bytes;
    for (int i = pos; i < pos + *length; ++i) {
        const ushort byte = text.at(i).unicode();
        if (i > pos && (byte < 0x80 || byte > 0xbf))
            return QString();
        bytes += char(byte);
    }
    const QString decoded = QString::fromUtf8(bytes);
    return decoded.contains(QChar::ReplacementCharacter) ? QString() : decoded;
}

} // namespace

void setProgramName(const QByteArray& name)
{
    program = name;
}

void print(std::FILE* stream, const QByteArray& text)
{
    errno = 0;
    const bool success = std::fwrite(text.constData(), 1, size_t(text.size()), stream) == size_t(text.size());
    if (stream == stdout)
        noteStdout(success);
}

void printLine(std::FILE* stream, const QByteArray& line)
{
    print(stream, line + '\n');
}

void printError(const QString& text)
{
    printLine(stderr, program + ": " + oneLine(text).toLocal8Bit());
}

bool wrongUsage(const QString& text)
{
    printError(text);
    printError("try " + QString::fromLatin1(program) + " --help");
    return false;
}

QString stdoutFailure()
{
    errno = 0;
    noteStdout(std::fflush(stdout) == 0);
    return stdoutError == 0 ? QString() : QString::fromLocal8Bit(std::strerror(stdoutError));
}

QString oneLine(const QString& text)
{
    QString line;
    line.reserve(text.size());
    for (const QChar c : text) {
        if (c == '\n')
            line += ' ';
        else if (c == '\t' || !isControl(c))
            line += c;
        else if (c != '\r')
            line += "\\x" + QString::number(c.unicode(), 16).toUpper().rightJustified(2, '0');
    }
    return line;
}

QString readable(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size();) {
        int length = 0;
        const QString decoded = sequenceAt(text, i, &length);
        result += decoded.isEmpty() ? QString(text.at(i)) : decoded;
        i += decoded.isEmpty() ? 1 : length;
    }
    return result;
}

QString shownPath(const QString& path)
{
    static const QDir working = QDir::current();
    return path.isEmpty() ? path : working.relativeFilePath(path);
}

} // namespace nsBatch
