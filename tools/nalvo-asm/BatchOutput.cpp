#include "BatchOutput.h"

#include <QDir>
#include <QTextCodec>

#include <cerrno>
#include <cstring>

namespace nsNalvoAsm {

namespace {

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

/// The characters of UTF-8 bytes, or nothing if the bytes are none.
QString fromUtf8(const QByteArray& bytes)
{
    QTextCodec::ConverterState state;
    static QTextCodec* const codec = QTextCodec::codecForName("UTF-8");
    const QString text = codec->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0 ? text : QString();
}

} // namespace

void print(std::FILE* stream, const QByteArray& text)
{
    errno = 0;
    if (stream == stderr)
        noteStdout(std::fflush(stdout) == 0);
    const bool success = std::fwrite(text.constData(), 1, size_t(text.size()), stream) == size_t(text.size());
    if (stream == stdout)
        noteStdout(success);
}

void printLine(std::FILE* stream, const QByteArray& line)
{
    print(stream, line + '\n');
}

void printComplaint(const QString& text)
{
    printLine(stderr, "nalvo-asm: " + oneLine(text).toLocal8Bit());
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
    const auto isByte = [](QChar c) { return c.unicode() >= 0x80 && c.unicode() <= 0xff; };
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size();) {
        int end = i;
        while (end < text.size() && isByte(text.at(end)) == isByte(text.at(i)))
            ++end;
        const QString run = text.mid(i, end - i);
        const QString decoded = isByte(text.at(i)) ? fromUtf8(run.toLatin1()) : QString();
        result += decoded.isEmpty() ? run : decoded;
        i = end;
    }
    return result;
}

QString shownPath(const QString& path)
{
    static const QDir working = QDir::current();
    return path.isEmpty() ? path : working.relativeFilePath(path);
}

} // namespace nsNalvoAsm
