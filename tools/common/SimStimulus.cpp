#include "SimStimulus.h"

#include "BatchNumbers.h"
#include "BatchOutput.h"
#include "SimStop.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace nsBatch {

namespace {

const int pieceSize = 1 << 16;
const int largestText = 64 << 20; ///< bytes
const int longestShown = 40;      ///< characters of what is wrong

QString tr(const char* text)
{
    return QCoreApplication::translate("nsBatch", text);
}

QString systemError(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

/// @return why the text can not be read, or an empty text
QString readAll(int fd, QByteArray* text)
{
    struct stat info = {};
    if (fd < 0 || fstat(fd, &info) != 0)
        return systemError(errno);
    if (S_ISDIR(info.st_mode))
        return systemError(EISDIR);
    std::vector<char> piece(pieceSize);
    for (;;) {
        if (isStopRequested() || (!S_ISREG(info.st_mode) && !waitForInput(fd)))
            return tr("interrupted");
        const ssize_t size = read(fd, piece.data(), piece.size());
        if (size < 0 && (errno == EINTR || errno == EAGAIN))
            continue;
        if (size < 0)
            return systemError(errno);
        if (size == 0)
            return QString();
        text->append(piece.data(), int(size));
        if (text->size() > largestText)
            return tr("it is larger than %1 MiB").arg(largestText >> 20);
    }
}

QList<QByteArray> wordsOf(QByteArray line)
{
    for (const char mark : {';', '#'}) {
        const int comment = line.indexOf(mark);
        line.truncate(comment >= 0 ? comment : line.size());
    }
    line = line.simplified();
    return line.isEmpty() ? QList<QByteArray>() : line.split(' ');
}

QString shown(const QByteArray& word)
{
    return QString::fromLocal8Bit(word.left(longestShown));
}

bool toNumber(const QByteArray& word, qint64 minimum, qint64 maximum, qint64* value)
{
    return nsBatch::toNumber(QString::fromLatin1(word), minimum, maximum, value);
}

} // namespace

QString SimStimulus::read(const QString& name)
{
    const QString shownName = name == "-" ? tr("standard input") : name;
    // What is no file is opened without blocking, so that a signal ends the wait for it.
    const int fd = name == "-"
                       ? STDIN_FILENO
                       : ::open(QFile::encodeName(name).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    QByteArray text;
    QString failure = readAll(fd, &text);
    if (fd > STDERR_FILENO)
        close(fd);
    if (!failure.isEmpty())
        return tr("Can not read %1: %2").arg(shownName, failure);
    int number = 0;
    for (int from = 0; from < text.size();) {
        const int end = text.indexOf('\n', from);
        const int length = (end < 0 ? text.size() : end) - from;
        failure = take(text.mid(from, length), ++number);
        if (!failure.isEmpty())
            return QString("%1:%2: %3").arg(shownName, QString::number(number), failure);
        from += length + 1;
    }
    std::sort(m_requests.begin(), m_requests.end());
    return QString();
}

QString SimStimulus::take(const QByteArray& line, int number)
{
    const QList<QByteArray> words = wordsOf(line);
    if (words.isEmpty())
        return QString();
    const QByteArray what = words.value(1).toLower();
    const bool isPort = what == "port" && words.size() == 4;
    const bool isInterrupt = what == "interrupt" && words.size() <= 3;
    if (!isPort && !isInterrupt)
        return tr("neither CLOCK port ADDR VALUE nor CLOCK interrupt [LENGTH]: %1").arg(shown(line.simplified()));
    qint64 clock = 0;
    if (!toNumber(words[0], 0, unbounded, &clock))
        return tr("a clock is a number from 0 on: %1").arg(shown(words[0]));
    if (isPort)
        return takePort(words, clock, number);
    qint64 length = 1;
    if (words.size() == 3 && !toNumber(words[2], 1, unbounded, &length))
        return tr("a length is a number from 1 on: %1").arg(shown(words[2]));
    m_requests.push_back({clock, length});
    return QString();
}

QString SimStimulus::takePort(const QList<QByteArray>& words, qint64 clock, int line)
{
    qint64 port = 0;
    qint64 value = 0;
    if (!toNumber(words[2], 0, 255, &port))
        return tr("the address of a port is a number from 0 to 255: %1").arg(shown(words[2]));
    if (!toNumber(words[3], 0, 255, &value))
        return tr("the value of a port is a number from 0 to 255: %1").arg(shown(words[3]));
    const auto added = m_values[int(port)].insert({clock, {int(value), line}});
    if (added.second)
        return QString();
    return tr("port %1 has a value from clock %2 on already, by line %3")
        .arg(QString::fromLatin1(words[2]), QString::number(clock), QString::number(added.first->second.line));
}

QList<int> SimStimulus::ports() const
{
    QList<int> result;
    for (const auto& values : m_values)
        result.append(values.first);
    return result;
}

int SimStimulus::value(int port, qint64 clock) const
{
    const auto values = m_values.find(port);
    if (values == m_values.end())
        return 0;
    const auto later = values->second.upper_bound(clock);
    return later == values->second.begin() ? 0 : std::prev(later)->second.value;
}

} // namespace nsBatch
