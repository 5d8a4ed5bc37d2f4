#include "SimTrace.h"

#include "BatchFiles.h"
#include "ProcSimEngine.h"

#include <QByteArray>

#include <cstring>

namespace nsNalvoSim {

SimTrace::SimTrace(nsBatch::OutputFile* file, nsProc::ProcSimEngine* engine, bool hasClocks)
    : m_file(file)
    , m_engine(engine)
    , m_lines(size_t(engine->program().count()))
    , m_text(pieceSize + reserve)
    , m_hasClocks(hasClocks)
{
    for (int position = 0; position < engine->program().count(); ++position) {
        const nsProc::ProcSimProgram& program = engine->program();
        sLine_t& target = m_lines[size_t(position)];
        target.size = char(line(target.text, 'I', program.address(position), 3, program.word(position), 5));
    }
}

/// @return number of characters
int SimTrace::hex(char* text, int value, int digits)
{
    auto rest = static_cast<unsigned>(value);
    // A word or an address that needs more digits gets them.
    while (digits < 8 && rest >> (4 * digits) != 0)
        ++digits;
    for (int pos = digits - 1; pos >= 0; --pos) {
        text[pos] = "0123456789ABCDEF"[rest & 0xF];
        rest >>= 4;
    }
    return digits;
}

/// @return number of characters
int SimTrace::line(char* text, char kind, int first, int firstDigits, int second, int secondDigits)
{
    int used = 0;
    text[used++] = kind;
    text[used++] = ' ';
    used += hex(text + used, first, firstDigits);
    text[used++] = ' ';
    used += hex(text + used, second, secondDigits);
    text[used++] = '\n';
    return used;
}

void SimTrace::instruction(int position, qint64 clock)
{
    if (m_used >= pieceSize)
        flush();
    m_mark = m_used;
    const sLine_t& source = m_lines[size_t(position)];
    // All of it, as a copy of a fixed size is much quicker than one of the size of the text.
    std::memcpy(m_text.data() + m_used, source.text, sizeof(source.text));
    m_used += source.size;
    if (m_hasClocks)
        addClock(clock);
}

void SimTrace::addClock(qint64 clock)
{
    // In the place of the end of the line.
    m_text[size_t(m_used - 1)] = ' ';
    const QByteArray digits = QByteArray::number(clock);
    std::memcpy(m_text.data() + m_used, digits.constData(), size_t(digits.size()));
    m_used += digits.size();
    m_text[size_t(m_used++)] = '\n';
}

void SimTrace::refused(int)
{
    m_used = m_mark;
}

void SimTrace::line(const char* text)
{
    const size_t size = std::strlen(text);
    std::memcpy(m_text.data() + m_used, text, size);
    m_used += int(size);
}

void SimTrace::flush(int end)
{
    m_failed = m_failed || !m_file->write(m_text.data(), end);
    std::memmove(m_text.data(), m_text.data() + end, size_t(m_used - end));
    m_used -= end;
    m_mark = 0;
    if (m_failed)
        m_engine->halt();
}

} // namespace nsNalvoSim
