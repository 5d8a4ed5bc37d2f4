#include "ExactModel.h"

#include <cstdio>

bool ExactEvent::operator==(const ExactEvent& other) const
{
    return kind == other.kind && address == other.address && port == other.port && value == other.value &&
           clock == other.clock;
}

std::string ExactEvent::text() const
{
    static const char* const names[] = {"I", "R", "W", "K", "INT", "RESET"};
    char line[80];
    if (kind == Read || kind == Write || kind == ConstantWrite)
        std::snprintf(line, sizeof line, "%s %02x %02x %lld", names[kind], port, value, static_cast<long long>(clock));
    else
        std::snprintf(line, sizeof line, "%s %03x %lld", names[kind], address, static_cast<long long>(clock));
    return line;
}

ExactModel::ExactModel(const std::vector<quint32>& program, int memorySize)
    : m_memory(program)
{
    m_memory.resize(std::size_t(memorySize));
}

bool ExactModel::isOdd(int value)
{
    bool odd = false;
    for (int bit = 0; bit < 8; ++bit)
        odd ^= (value >> bit & 1) != 0;
    return odd;
}

bool ExactModel::shiftedIn(quint32 word, int value, bool carry)
{
    switch (word >> 1 & 3) {
    case 0:
        return carry;
    case 1:
        return (value & 0x80) != 0;
    case 2:
        return (value & 1) != 0;
    default:
        return (word & 1) != 0;
    }
}
