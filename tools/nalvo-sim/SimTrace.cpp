#include "SimTrace.h"

#include "BatchFiles.h"

#include <cstring>

namespace nsNalvoSim {

void SimTrace::setFile(nsBatch::OutputFile* file)
{
    m_file = file;
    m_text.resize(file != nullptr ? pieceSize + reserve : 0);
}

void SimTrace::hex(int value, int digits)
{
    auto rest = static_cast<unsigned>(value);
    // A word or an address that needs more digits gets them.
    while (digits < 8 && rest >> (4 * digits) != 0)
        ++digits;
    for (int pos = digits - 1; pos >= 0; --pos) {
        m_text[size_t(m_used + pos)] = "0123456789ABCDEF"[rest & 0xF];
        rest >>= 4;
    }
    m_used += digits;
}

void SimTrace::line(char kind, int first, int firstDigits, int second, int secondDigits)
{
    m_text[size_t(m_used++)] = kind;
    m_text[size_t(m_used++)] = ' ';
    hex(first, firstDigits);
    m_text[size_t(m_used++)] = ' ';
    hex(second, secondDigits);
    m_text[size_t(m_used++)] = '\n';
}

void SimTrace::interrupt()
{
    for (const char c : {'I', 'N', 'T', '\n'})
        m_text[size_t(m_used++)] = c;
}

void SimTrace::flush(int end)
{
    if (m_file == nullptr)
        return;
    m_failed = m_failed || !m_file->write(m_text.data(), end);
    std::memmove(m_text.data(), m_text.data() + end, size_t(m_used - end));
    m_used -= end;
    m_mark = 0;
}

} // namespace nsNalvoSim
