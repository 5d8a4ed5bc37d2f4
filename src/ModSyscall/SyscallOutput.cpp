#include "SyscallOutput.h"

#include <QTextCodec>
#include <QTextDecoder>

namespace nsModSyscall {

namespace {

const int dropStep = 2000;       ///< lines above the limit before the oldest are dropped, as dropping moves the rest
const int compactStep = 1 << 18; ///< characters; the room of fewer that were taken is not given back
const ushort controlPictures = 0x2400;
const ushort deletePicture = 0x2421;

/// What the view shows for a character.
QChar shown(QChar c)
{
    const ushort code = c.unicode();
    if (code < 0x20)
        return code == '\t' ? c : QChar(ushort(controlPictures + code));
    if (code == 0x7f)
        return QChar(deletePicture);
    // Further control characters, and those that mean something else to the view than to the program.
    const bool isSpecial = (code >= 0x80 && code < 0xa0) || code == QChar::LineSeparator ||
                           code == QChar::ParagraphSeparator || (code >= 0xfdd0 && code <= 0xfdef) || code >= 0xfffc;
    return isSpecial ? QChar(QChar::ReplacementCharacter) : c;
}

} // namespace

SyscallOutput::SyscallOutput()
{
    clear();
}

SyscallOutput::~SyscallOutput() = default;

void SyscallOutput::clear()
{
    for (sStream_t& stream : m_streams) {
        stream.decoder.reset(QTextCodec::codecForName("UTF-8")->makeDecoder());
        stream.afterReturn = false;
    }
    m_text.clear();
    m_start = 0;
    m_lines = 0;
    m_column = 0;
    m_overrun = false;
}

void SyscallOutput::add(eStream_t stream, const QByteArray& bytes)
{
    append(&m_streams[stream], m_streams[stream].decoder->toUnicode(bytes));
}

void SyscallOutput::end()
{
    for (sStream_t& stream : m_streams) {
        // The next character makes the decoder give up the incomplete one.
        QString rest = stream.decoder->toUnicode(" ");
        rest.chop(1);
        append(&stream, rest);
    }
}

void SyscallOutput::append(sStream_t* stream, const QString& text)
{
    for (const QChar c : text) {
        const bool endsReturn = c == '\n' && stream->afterReturn;
        stream->afterReturn = c == '\r';
        if (endsReturn)
            continue;
        if (c == '\n' || c == '\r') {
            appendLineEnd();
            continue;
        }
        if (m_column >= maxLineLength && !c.isLowSurrogate())
            appendLineEnd();
        m_text += shown(c);
        ++m_column;
    }
    if (m_lines > maxLines + dropStep)
        dropOldLines();
}

void SyscallOutput::appendLineEnd()
{
    m_text += '\n';
    ++m_lines;
    m_column = 0;
}

void SyscallOutput::dropOldLines()
{
    int pos = m_start;
    while (m_lines > maxLines) {
        pos = m_text.indexOf('\n', pos) + 1;
        --m_lines;
    }
    m_text.remove(0, pos);
    m_start = 0;
    m_overrun = true;
}

QString SyscallOutput::take(int size)
{
    int count = qMin(size, m_text.size() - m_start);
    if (count > 0 && m_start + count < m_text.size() && m_text.at(m_start + count).isLowSurrogate())
        --count;
    const QString text = m_text.mid(m_start, count);
    m_start += count;
    m_lines -= text.count('\n');
    if (isEmpty()) {
        m_text.clear();
        m_start = 0;
    } else if (m_start > compactStep && m_start > m_text.size() / 2) {
        m_text.remove(0, m_start);
        m_start = 0;
    }
    return text;
}

bool SyscallOutput::takeOverrun()
{
    const bool overrun = m_overrun;
    m_overrun = false;
    return overrun;
}

} // namespace nsModSyscall
