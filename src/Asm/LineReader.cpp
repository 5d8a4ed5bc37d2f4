#include "LineReader.h"

#include <QIODevice>

#include <algorithm>
#include <cstring>

namespace nsModAsmFe {

namespace {

const int pieceSize = 1 << 18;

/// The characters of the bytes up to the first NUL byte.
QString lineText(const char* bytes, int length)
{
    if (const void* nul = std::memchr(bytes, 0, size_t(length)))
        length = int(static_cast<const char*>(nul) - bytes);
    // Usually there is no carriage return before the line end.
    if (length >= 2 && bytes[length - 1] == '\n' && bytes[length - 2] == '\r')
        return QString::fromLatin1(bytes, length - 2) + '\n';
    return QString::fromLatin1(bytes, length);
}

} // namespace

LineReader::LineReader(QIODevice* device, int maxLineLength)
    : m_device(device)
    , m_maxLineLength(maxLineLength)
{
}

bool LineReader::fill()
{
    m_buffer.resize(pieceSize);
    const qint64 count = m_device->read(m_buffer.data(), pieceSize);
    m_failed = count < 0;
    m_buffer.resize(int(std::max<qint64>(count, 0)));
    m_pos = 0;
    return !m_buffer.isEmpty();
}

/// Skips the byte order mark that some editors write at the start of a UTF-8 text.
void LineReader::skipByteOrderMark()
{
    static const char mark[] = {'\xef', '\xbb', '\xbf'};
    fill();
    // A device may return its first bytes one by one.
    while (m_buffer.size() < 3 && std::memcmp(m_buffer.constData(), mark, size_t(m_buffer.size())) == 0) {
        const QByteArray more = m_device->read(3 - m_buffer.size());
        if (more.isEmpty())
            return;
        m_buffer.append(more);
    }
    if (m_buffer.size() >= 3 && std::memcmp(m_buffer.constData(), mark, 3) == 0)
        m_pos = 3;
}

bool LineReader::readLine(QString* line)
{
    if (!m_started) {
        m_started = true;
        skipByteOrderMark();
    }
    m_truncated = false;
    m_ended = false;
    m_long.clear();
    bool any = false;
    while (m_pos < m_buffer.size() || fill()) {
        any = true;
        const char* start = m_buffer.constData() + m_pos;
        const int rest = m_buffer.size() - m_pos;
        const void* end = std::memchr(start, '\n', size_t(rest));
        const int length = end != nullptr ? int(static_cast<const char*>(end) - start) + 1 : rest;
        m_pos += length;
        m_ended = end != nullptr;
        if (end != nullptr && m_long.isEmpty()) {
            *line = lineText(start, length);
            return true;
        }
        const int room = m_maxLineLength - m_long.size();
        m_truncated = m_truncated || length > room;
        m_long.append(start, std::min(length, room));
        if (end != nullptr)
            break;
    }
    if (any)
        *line = lineText(m_long.constData(), m_long.size());
    return any;
}

} // namespace nsModAsmFe
