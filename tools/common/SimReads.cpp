#include "SimReads.h"

#include "BatchOutput.h"
#include "SimStop.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace nsBatch {

namespace {

const int pieceSize = 1 << 16;
const int wordMax = 4; ///< 0xFF

QString tr(const char* text)
{
    return QCoreApplication::translate("nsBatch", text);
}

QString systemError(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

} // namespace

SimReads::~SimReads()
{
    if (m_fd > STDERR_FILENO)
        close(m_fd);
}

QString SimReads::open(const QString& name)
{
    m_name = name;
    // A pipe is opened without blocking; the program waits for a writer only when a value is needed.
    m_fd = name == "-" ? STDIN_FILENO
                       : ::open(QFile::encodeName(name).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    struct stat info = {};
    if (m_fd < 0 || fstat(m_fd, &info) != 0)
        return systemError(errno);
    if (S_ISDIR(info.st_mode))
        return systemError(EISDIR);
    m_isRegular = S_ISREG(info.st_mode);
    return QString();
}

QString SimReads::shownName() const
{
    return m_name == "-" ? tr("standard input") : m_name;
}

bool SimReads::fill(eResult_t* result)
{
    *result = resultStopped;
    if (isStopRequested() || (!m_isRegular && !waitForInput(m_fd)))
        return false;
    m_piece.resize(size_t(pieceSize));
    const ssize_t size = read(m_fd, m_piece.data(), m_piece.size());
    const int error = errno;
    m_size = std::max(int(size), 0);
    m_pos = 0;
    if (size < 0 && (error == EINTR || error == EAGAIN))
        return fill(result);
    if (size < 0)
        *result = fail(systemError(error));
    m_ended = size == 0;
    return size >= 0;
}

SimReads::eResult_t SimReads::fail(const QString& reason)
{
    m_failure = QString("%1:%2: %3").arg(shownName(), QString::number(m_line), reason);
    return resultFailed;
}

bool SimReads::addChar(char c, sLine_t* line) const
{
    if (line->isComment || c == '\r')
        return true;
    if (c == ';' || c == '#') {
        line->isComment = true;
        return true;
    }
    if (c == ' ' || c == '\t') {
        line->ended = !line->word.isEmpty();
        return true;
    }
    line->word += c;
    return !line->ended && line->word.size() <= wordMax;
}

bool SimReads::toByte(const QByteArray& word, int* value)
{
    const QByteArray digits = word.startsWith("0x") || word.startsWith("0X") ? word.mid(2) : word;
    for (const char c : digits) {
        if (!std::isxdigit(static_cast<unsigned char>(c)))
            return false;
    }
    *value = digits.toInt(nullptr, 16);
    return digits.size() == 1 || digits.size() == 2;
}

SimReads::eResult_t SimReads::next(int* value)
{
    sLine_t line;
    eResult_t result = resultEnd;
    while (!m_ended) {
        if (m_pos == m_size) {
            if (!fill(&result))
                return result;
            continue;
        }
        const char c = m_piece[size_t(m_pos++)];
        if (c != '\n') {
            if (!addChar(c, &line))
                return fail(tr("no hexadecimal byte"));
            continue;
        }
        if (!line.word.isEmpty())
            break;
        line = sLine_t();
        ++m_line;
    }
    if (line.word.isEmpty())
        return resultEnd;
    if (!toByte(line.word, value))
        return fail(tr("no hexadecimal byte"));
    ++m_line;
    ++m_count;
    return resultValue;
}

} // namespace nsBatch
