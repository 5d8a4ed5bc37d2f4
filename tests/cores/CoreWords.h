#pragma once

#include <QtGlobal>

#include <algorithm>
#include <utility>
#include <vector>

/// Words of the cores for programs that are written by hand; y and s are registers, k is a constant, p a port, a an
/// address.

enum class When { always, Z, NZ, C, NC };

namespace p3 {
inline quint32 withK(quint32 op, int x, int k)
{
    return op | quint32(x) << 8 | quint32(k);
}
inline quint32 withY(quint32 op, int x, int y)
{
    return op | 0x1000 | quint32(x) << 8 | quint32(y) << 4;
}
inline quint32 flow(quint32 op, When when, int a)
{
    return op | quint32(a) | (when == When::always ? 0 : 0x1000 | (quint32(when) - 1) << 10);
}
const quint32 LOAD = 0, RDPRT = 0x04000, RDMEM = 0x06000, AND = 0x0A000, OR = 0x0C000, XOR = 0x0E000, TEST = 0x12000,
              COMP = 0x14000, ADD = 0x18000, ADDC = 0x1A000, SUB = 0x1C000, SUBC = 0x1E000, WRPRT = 0x2C000,
              WRMEM = 0x2E000;
inline quint32 SR0(int x)
{
    return 0x2000E | quint32(x) << 8;
}
inline quint32 jump(int a, When when = When::always)
{
    return flow(0x34000, when, a);
}
inline quint32 call(int a, When when = When::always)
{
    return flow(0x30000, when, a);
}
inline quint32 ret(When when = When::always)
{
    return flow(0x2A000, when, 0);
}
const quint32 RETI_DISABLE = 0x38000, RETI_ENABLE = 0x38001, INT_DISABLE = 0x3C000, INT_ENABLE = 0x3C001, NOP = 0x01000;
} // namespace p3

namespace p6 {
inline quint32 withK(quint32 op, int x, int k)
{
    return op | 0x1000 | quint32(x) << 8 | quint32(k);
}
inline quint32 withY(quint32 op, int x, int y)
{
    return op | quint32(x) << 8 | quint32(y) << 4;
}
inline quint32 flow(quint32 op, When when, int a)
{
    return op | quint32(a) | (when == When::always ? 0 : 0x10000 | (quint32(when) - 1) << 14);
}
const quint32 LOAD = 0, AND = 0x02000, OR = 0x04000, XOR = 0x06000, RDPRT = 0x08000, RDMEM = 0x0A000, TEST = 0x0C000,
              TESTC = 0x0E000, ADD = 0x10000, ADDC = 0x12000, STAR = 0x16000, SUB = 0x18000, SUBC = 0x1A000,
              COMP = 0x1C000, COMPC = 0x1E000, WRPRT = 0x2C000, WRMEM = 0x2E000;
inline quint32 wrprtConstant(int k, int p)
{
    return 0x2B000 | quint32(k) << 4 | quint32(p);
}
inline quint32 SR0(int x)
{
    return 0x1400E | quint32(x) << 8;
}
inline quint32 hwbuild(int x)
{
    return 0x14080 | quint32(x) << 8;
}
inline quint32 loadret(int x, int k)
{
    return 0x21000 | quint32(x) << 8 | quint32(k);
}
inline quint32 jump(int a, When when = When::always)
{
    return flow(0x22000, when, a);
}
inline quint32 call(int a, When when = When::always)
{
    return flow(0x20000, when, a);
}
inline quint32 jumpRegs(int x, int y)
{
    return withY(0x26000, x, y);
}
inline quint32 callRegs(int x, int y)
{
    return withY(0x24000, x, y);
}
inline quint32 ret(When when = When::always)
{
    return when == When::always ? 0x25000 : flow(0x21000, when, 0);
}
const quint32 RETI_DISABLE = 0x29000, RETI_ENABLE = 0x29001, INT_DISABLE = 0x28000, INT_ENABLE = 0x28001, NOP = 0,
              BANK_A = 0x37000, BANK_B = 0x37001;
} // namespace p6

namespace m8 {
inline quint32 withK(quint32 op, int d, int k)
{
    return op | 0x2000 | quint32(d) << 8 | quint32(k);
}
inline quint32 withR(quint32 op, int d, int s)
{
    return op | quint32(d) << 8 | quint32(s) << 3;
}
const quint32 SUB = 0, SUBC = 0x04000, ADD = 0x08000, ADDC = 0x0C000, LOAD = 0x10000, AND = 0x14000, OR = 0x18000,
              XOR = 0x1C000, COMP = 0x20000, TEST = 0x24000, ROR = 0x28000, ROL = 0x28001, RORC = 0x28002,
              ROLC = 0x28003;
/// For accesses with a number and for those with (rs), which have a number of the register there.
inline quint32 access(quint32 op, int d, int number)
{
    return op | quint32(d) << 8 | quint32(number) << 3;
}
const quint32 WRPRT = 0x2E000, RDPRT = 0x2E001, WRPRT_REG = 0x2E002, RDPRT_REG = 0x2E003, WRMEM = 0x2E004,
              RDMEM = 0x2E005, WRMEM_REG = 0x2E006, RDMEM_REG = 0x2E007;
/// Jumps and calls are relative.
inline quint32 jump(int offset, When when = When::always)
{
    return (when == When::always ? 0x3B000 : 0x30000 | (quint32(when) - 1) << 12) | (quint32(offset) & 0xFFF);
}
inline quint32 call(int offset, When when = When::always)
{
    return (when == When::always ? 0x38000 : 0x34000 | (quint32(when) - 1) << 12) | (quint32(offset) & 0xFFF);
}
const quint32 RET = 0x39000, RETI = 0x3A000, CLR_C = 0x2C000, SET_C = 0x2C001, CLR_Z = 0x2C002, SET_Z = 0x2C003,
              INT_DISABLE = 0x2C004, INT_ENABLE = 0x2C005, NOP = 0x10000;
} // namespace m8

/// Words from an address on.
using Block = std::pair<int, std::vector<quint32>>;

/// The memory up to the last block; what lies between holds the word 0.
inline std::vector<quint32> program(const std::vector<Block>& blocks)
{
    std::vector<quint32> words;
    for (const auto& [first, part] : blocks) {
        if (words.size() < std::size_t(first) + part.size())
            words.resize(std::size_t(first) + part.size());
        std::copy(part.begin(), part.end(), words.begin() + first);
    }
    return words;
}
