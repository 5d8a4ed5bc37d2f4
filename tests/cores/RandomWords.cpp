#include "RandomWords.h"

#include "CoreWords.h"

namespace {

class Generator
{
public:
    Generator(Core core, const CoreBuild& build, Flavour flavour, std::mt19937* random)
        : m_core(core)
        , m_build(build)
        , m_flavour(flavour)
        , m_random(random)
    {
    }

    std::vector<quint32> program()
    {
        if (m_core == Core::PicoBlaze6 && m_flavour == Flavour::resets)
            return resetProgram();
        // Now and then the program ends early, and the core runs into empty memory.
        m_size = pick(3) == 0 ? 100 + pick(200) : memorySize(m_core);
        m_words.resize(std::size_t(m_size));
        for (m_at = 0; m_at < m_size; ++m_at)
            m_words[std::size_t(m_at)] = instruction(group());
        start();
        if (pick(4) != 0)
            routine(-1);
        return m_words;
    }

    int pick(int count) { return int((*m_random)() % unsigned(count)); }

private:
    enum class Group { compute, port, memory, jump, call, ret, interrupt, bank };

    void put(quint32 word) { m_words.at(std::size_t(m_at++)) = word; }
    quint32 jumpTo(int target, When when)
    {
        switch (m_core) {
        case Core::PicoBlaze3:
            return p3::jump(target, when);
        case Core::PicoBlaze6:
            return p6::jump(target, when);
        case Core::Mico8:
            return m8::jump(target - m_at, when);
        }
        return 0;
    }

    quint32 enable() const
    {
        static const quint32 words[] = {p3::INT_ENABLE, p6::INT_ENABLE, m8::INT_ENABLE};
        return words[int(m_core)];
    }

    /// The program often comes back to its start. It shall then show what it has, and go on in another way: with values
    /// from outside, interrupts on, some calls deep, and to a place that depends on these values.
    void start()
    {
        static const quint32 write[] = {p3::WRPRT, p6::withK(p6::WRPRT, 0, 0), m8::WRPRT};
        static const quint32 read[] = {p3::RDPRT, p6::withK(p6::RDPRT, 0, 0), m8::RDPRT};
        static const quint32 call[] = {p3::call(0), p6::call(0), m8::call(1)};
        static const quint32 compare[] = {p3::COMP, p6::withK(p6::COMP, 0, 0), m8::withK(m8::COMP, 0, 0)};
        m_at = 1; // where a Mico8 starts
        if (pick(2) == 0)
            put(jumpTo(3, When(1 + pick(4))));
        for (quint32 number = 0; number < 4; ++number)
            put(write[int(m_core)] + (number << 8));
        for (quint32 number = 0; number < 4; ++number)
            put(read[int(m_core)] + (number << 8));
        put(enable());
        for (int n = m_flavour == Flavour::returns ? 2 : 8; n > 0; --n)
            put(call[int(m_core)] + (m_core == Core::Mico8 ? 0 : quint32(m_at + 1)));
        for (quint32 n = 0; n < 12; ++n) {
            put(compare[int(m_core)] + (n % 4 << 8) + quint32(pick(100)));
            put(jumpTo(pick(m_size), When::C));
        }
    }

    /// On and on: puts out registers and scratchpad, takes new values, calls until the core resets itself. The 31st
    /// call goes to one of 256 words that a value from outside selects, and which is half executed.
    std::vector<quint32> resetProgram()
    {
        m_size = 0x300;
        m_words.resize(std::size_t(m_size));
        m_at = 0;
        for (int cell = 0; cell < 8; ++cell) {
            put(p6::withK(p6::RDMEM, 9, cell));
            put(p6::withK(p6::WRPRT, 9, cell));
        }
        for (const quint32 bank : {p6::BANK_B, p6::BANK_A}) {
            put(bank);
            for (int number = 0; number < 4; ++number)
                put(p6::withK(p6::WRPRT, number, number));
        }
        for (const quint32 bank : {p6::BANK_A, p6::BANK_B}) {
            put(bank);
            for (int number = 0; number < 4; ++number) {
                put(p6::withK(p6::RDPRT, number, number));
                put(p6::withK(p6::AND, number, 7));
            }
            put(p6::withK(p6::RDPRT, 13, 13));
            put(p6::withK(p6::LOAD, 12, 2));
        }
        // Either bank, by a value from outside.
        put(p6::withK(p6::COMP, 0, 4));
        put(p6::jump(m_at + 2, When::C));
        put(p6::BANK_A);
        put(p6::withY(p6::ADD, 14, 13));
        for (int level = 0; level < 30; ++level)
            put(p6::call(m_at + 1));
        // An interrupt is entered before the last call, or pre-empts what the call would half execute, or comes too
        // late.
        put(pick(3) == 0 ? p6::INT_DISABLE : p6::INT_ENABLE);
        put(p6::callRegs(12, 13));
        for (m_at = 0x200; m_at < m_size;)
            put(instruction(pick(2) == 0 ? Group::memory : Group(pick(8))));
        routine(0x100);
        return m_words;
    }

    /// What an interrupt comes to: a few instructions without a jump, and the return.
    /// @param place a free one; a random one where it is negative
    void routine(int place)
    {
        const int vector = m_core == Core::Mico8 ? 0 : m_core == Core::PicoBlaze3 ? 0x3FF : m_build.vector;
        if (vector >= m_size)
            m_words.resize(std::size_t(vector) + 1);
        m_at = vector;
        const int first = place >= 0 ? place : 40 + pick(m_size - 60);
        put(jumpTo(first, When::always));
        m_at = first;
        if (m_core == Core::PicoBlaze6 && pick(2) == 0) {
            put(p6::withK(p6::WRPRT, 0, 0));
            put(pick(2) == 0 ? p6::BANK_A : p6::BANK_B);
        }
        if (pick(3) == 0)
            put(enable());
        for (int n = pick(8); n > 0; --n)
            put(instruction(pick(3) == 0 ? Group::port : Group::compute));
        put(instruction(Group::ret, true));
    }

    quint32 instruction(Group group, bool fromInterrupt = false)
    {
        switch (m_core) {
        case Core::PicoBlaze3:
            return picoBlaze3(group, fromInterrupt);
        case Core::PicoBlaze6:
            return picoBlaze6(group, fromInterrupt);
        case Core::Mico8:
            return mico8(group, fromInterrupt);
        }
        return 0;
    }

    quint32 one(std::initializer_list<quint32> words) { return words.begin()[pick(int(words.size()))]; }
    /// Values at the edges come more often than they would by chance.
    quint32 byte() { return pick(3) == 0 ? one({0, 1, 0x7F, 0x80, 0xFE, 0xFF}) : quint32(pick(256)); }
    /// A few registers are used more than others, so that values meet again.
    quint32 reg(int count) { return quint32(pick(3) == 0 ? pick(count) : pick(4)); }

    Group group()
    {
        // Percentages in the order of the groups.
        static const int weights[][8] = {
            {44, 24, 8, 8, 7, 4, 3, 2},   // mixed
            {30, 20, 2, 4, 36, 2, 4, 2},  // calls
            {34, 24, 2, 4, 14, 16, 4, 2}, // returns
            {30, 50, 10, 4, 1, 1, 3, 1},  // ports
            {44, 24, 8, 8, 7, 4, 3, 2},   // resets, where the core has none of its own
        };
        int n = pick(100);
        int group = 0;
        while (n >= weights[int(m_flavour)][group])
            n -= weights[int(m_flavour)][group++];
        // The returns of a Mico8 have no condition.
        const bool isTooMuch = m_core == Core::Mico8 && Group(group) == Group::ret && pick(2) == 0;
        return isTooMuch ? Group::compute : Group(group);
    }

    /// Z, NZ, C, NC. The carry is more of a surprise than zero.
    quint32 condition() { return quint32(pick(4) == 0 ? pick(4) : 2 + pick(2)); }

    /// Mostly a little further on, so that the program does not stay where it is.
    quint32 target() { return quint32(pick(4) == 0 ? pick(m_size) : (m_at + 2 + pick(30)) % m_size); }

    quint32 picoBlaze3(Group group, bool fromInterrupt)
    {
        const quint32 x = reg(16) << 8;
        const quint32 y = reg(16) << 4;
        const bool immediate = pick(2) == 0;
        const quint32 source = immediate ? byte() : y;
        const quint32 other = immediate ? 0 : 0x1000;
        const quint32 ifMet = 0x1000 + (condition() << 10);
        const quint32 when = pick(3) == 0 ? 0 : ifMet;
        switch (group) {
        case Group::compute:
            if (pick(4) == 0)
                return 0x20000 + x + one({0, 2, 4, 6, 7, 8, 10, 12, 14, 15});
            return one({0, 0x0A000, 0x0C000, 0x0E000, 0x12000, 0x14000, 0x18000, 0x1A000, 0x1C000, 0x1E000}) + other +
                   x + source;
        case Group::port:
            return one({0x04000, 0x2C000}) + other + x + source;
        case Group::memory:
            return one({0x06000, 0x2E000}) + other + x + (immediate ? quint32(pick(64)) : y);
        case Group::jump:
            return 0x34000 + (pick(6) == 0 ? 0 : ifMet) + target();
        case Group::call:
            return 0x30000 + when + target();
        case Group::ret:
            return fromInterrupt || pick(8) == 0 ? one({0x38000, 0x38001, 0x38001}) : 0x2A000 + when;
        case Group::interrupt:
            return pick(8) == 0 ? 0x3C000 : 0x3C001;
        case Group::bank:
            return 0;
        }
        return 0;
    }

    quint32 picoBlaze6(Group group, bool fromInterrupt)
    {
        const quint32 x = reg(16) << 8;
        const quint32 y = reg(16) << 4;
        const bool immediate = pick(2) == 0;
        const quint32 source = immediate ? byte() : y;
        const quint32 other = immediate ? 0x1000 : 0;
        const quint32 ifMet = 0x10000 + (condition() << 14);
        const quint32 when = pick(3) == 0 ? 0 : ifMet;
        switch (group) {
        case Group::compute:
            if (pick(4) == 0)
                return 0x14000 + x + one({0, 2, 4, 6, 7, 8, 10, 12, 14, 15, 0x80});
            return one({0, 0x02000, 0x04000, 0x06000, 0x0C000, 0x0E000, 0x10000, 0x12000, 0x16000, 0x18000, 0x1A000,
                        0x1C000, 0x1E000}) +
                   other + x + source;
        case Group::port:
            if (pick(4) == 0)
                return 0x2B000 + (byte() << 4) + quint32(pick(16));
            return one({0x08000, 0x2C000}) + other + x + source;
        case Group::memory:
            return one({0x0A000, 0x2E000}) + other + x + (immediate ? quint32(pick(m_build.scratchpadSize)) : y);
        case Group::jump:
            return pick(6) == 0 ? 0x26000 + x + y : 0x22000 + (pick(6) == 0 ? 0 : ifMet) + target();
        case Group::call:
            return pick(6) == 0 ? 0x24000 + x + y : 0x20000 + when + target();
        case Group::ret:
            if (fromInterrupt || pick(8) == 0)
                return one({0x29000, 0x29001, 0x29001});
            if (pick(4) == 0)
                return 0x21000 + x + byte();
            // The conditional form has another number in the middle.
            return when == 0 ? 0x25000 : 0x21000 + when;
        case Group::interrupt:
            return pick(8) == 0 ? 0x28000 : 0x28001;
        case Group::bank:
            return one({0x37000, 0x37001});
        }
        return 0;
    }

    quint32 mico8(Group group, bool fromInterrupt)
    {
        const quint32 d = reg(32) << 8;
        const quint32 s = reg(32) << 3;
        const bool immediate = pick(2) == 0;
        const quint32 source = immediate ? byte() : s;
        const quint32 other = immediate ? 0x2000 : 0;
        const quint32 number = quint32(pick(32)) << 3;
        const quint32 where = immediate ? number : s + 2;
        const quint32 offset = (target() - quint32(m_at)) & 0xFFF;
        switch (group) {
        case Group::compute:
            if (pick(4) == 0)
                return 0x28000 + d + s + quint32(pick(4));
            if (pick(8) == 0)
                return 0x2C000 + quint32(pick(4));
            return (quint32(pick(10)) << 14) + other + d + source;
        case Group::port:
            return 0x2E000 + d + where + quint32(pick(2));
        case Group::memory:
            return 0x2E004 + d + where + quint32(pick(2));
        case Group::jump:
            return (pick(6) == 0 ? 0x3B000 : 0x30000 + (condition() << 12)) + offset;
        case Group::call:
            return (pick(3) == 0 ? 0x38000 : 0x34000 + (condition() << 12)) + offset;
        case Group::ret:
            return fromInterrupt || pick(6) == 0 ? 0x3A000 : 0x39000;
        case Group::interrupt:
            return pick(8) == 0 ? 0x2C004 : 0x2C005;
        case Group::bank:
            return 0x10000;
        }
        return 0;
    }

    Core m_core;
    CoreBuild m_build;
    Flavour m_flavour;
    std::mt19937* m_random;
    std::vector<quint32> m_words;
    int m_size = 0;
    int m_at = 0;
};

} // namespace

std::vector<quint32> randomProgram(Core core, const CoreBuild& build, Flavour flavour, std::mt19937* random)
{
    return Generator(core, build, flavour, random).program();
}

Stimulus randomStimulus(Core core, const CoreBuild& build, Flavour flavour, qint64 clocks, std::mt19937* random)
{
    Generator generator(core, build, flavour, random);
    Stimulus stimulus;
    stimulus.program = generator.program();
    stimulus.clocks = clocks;
    stimulus.waitStates = generator.pick(3);
    for (qint64 n = 0; n < clocks / 2; ++n)
        stimulus.reads.push_back(quint8(generator.pick(4) == 0 ? 0 : generator.pick(256)));
    // Some requests last for one or two clocks, some are held.
    const bool isDense = flavour == Flavour::resets;
    for (qint64 clock = generator.pick(40); clock < clocks; clock += 1 + generator.pick(isDense ? 8 : 60)) {
        const qint64 length = isDense ? 1 : 1 + generator.pick(generator.pick(2) == 0 ? 3 : 30);
        stimulus.interrupts.push_back({clock, length});
        clock += length;
    }
    // Now and then a reset, between two instructions.
    if (generator.pick(3) == 0) {
        const qint64 about = generator.pick(int(clocks));
        Stimulus before = stimulus;
        before.clocks = about;
        stimulus.resets.push_back({runModel(core, build, before).model->clock(), 1 + 2 * generator.pick(2)});
    }
    return stimulus;
}

namespace {

struct Operation
{
    quint32 word;
    bool hasConstant;
};

/// Those that change flags, on register 0; without a constant on what the register holds.
std::vector<Operation> operations(Core core)
{
    std::vector<Operation> all;
    if (core == Core::Mico8) {
        for (const quint32 op :
             {m8::SUB, m8::SUBC, m8::ADD, m8::ADDC, m8::AND, m8::OR, m8::XOR, m8::COMP, m8::TEST, m8::LOAD})
            all.push_back({m8::withK(op, 0, 0), true});
        for (const quint32 op : {m8::ROR, m8::ROL, m8::RORC, m8::ROLC})
            all.push_back({op, false});
        return all;
    }
    const bool isSix = core == Core::PicoBlaze6;
    for (const quint32 op : {p6::AND, p6::OR, p6::XOR, p6::TEST, p6::TESTC, p6::ADD, p6::ADDC, p6::SUB, p6::SUBC,
                             p6::COMP, p6::COMPC, p6::LOAD})
        if (isSix)
            all.push_back({p6::withK(op, 0, 0), true});
    for (const quint32 op :
         {p3::AND, p3::OR, p3::XOR, p3::TEST, p3::ADD, p3::ADDC, p3::SUB, p3::SUBC, p3::COMP, p3::LOAD})
        if (!isSix)
            all.push_back({op, true});
    for (const quint32 low : {0, 2, 4, 6, 7, 8, 10, 12, 14, 15})
        all.push_back({(isSix ? 0x14000 : 0x20000) + low, false});
    return all;
}

/// The flags, the register and the instruction; what has become of register and flags is put out.
void appendCase(Core core, const Operation& operation, int flags, int a, int b, std::vector<quint32>* words)
{
    const quint32 word = operation.word + (operation.hasConstant ? quint32(b) : 0);
    const int at = int(words->size());
    std::vector<quint32> part;
    if (core == Core::Mico8)
        part = {m8::withK(m8::LOAD, 0, a),
                m8::CLR_C + quint32(flags & 1),
                m8::CLR_Z + quint32(flags >> 1),
                word,
                m8::jump(2, When::Z),
                m8::access(m8::WRPRT, 0, 1),
                m8::jump(2, When::C),
                m8::access(m8::WRPRT, 0, 2),
                m8::access(m8::WRPRT, 0, 3)};
    // A shift of 0 to 3 to the right leaves all four pairs of flags.
    else if (core == Core::PicoBlaze3)
        part = {p3::withK(p3::LOAD, 0, a),
                p3::withK(p3::LOAD, 1, flags),
                p3::SR0(1),
                word,
                p3::jump(at + 6, When::Z),
                p3::withK(p3::WRPRT, 0, 1),
                p3::jump(at + 8, When::C),
                p3::withK(p3::WRPRT, 0, 2),
                p3::withK(p3::WRPRT, 0, 3)};
    else
        part = {p6::withK(p6::LOAD, 0, a),
                p6::withK(p6::LOAD, 1, flags),
                p6::SR0(1),
                word,
                p6::jump(at + 6, When::Z),
                p6::withK(p6::WRPRT, 0, 1),
                p6::jump(at + 8, When::C),
                p6::withK(p6::WRPRT, 0, 2),
                p6::withK(p6::WRPRT, 0, 3)};
    words->insert(words->end(), part.begin(), part.end());
}

} // namespace

std::vector<Stimulus> flagPrograms(Core core)
{
    static const int edges[] = {0, 1, 0x80, 0xFE, 0xFF};
    std::vector<Stimulus> all;
    for (const Operation& operation : operations(core)) {
        Stimulus stimulus;
        stimulus.program = {core == Core::Mico8 ? m8::NOP : core == Core::PicoBlaze3 ? p3::NOP : p6::NOP};
        for (int flags = 0; flags < 4; ++flags) {
            for (const int a : edges) {
                for (const int b : edges) {
                    if (operation.hasConstant || b == 0)
                        appendCase(core, operation, flags, a, b, &stimulus.program);
                }
            }
        }
        stimulus.clocks = 2 * qint64(stimulus.program.size());
        all.push_back(stimulus);
    }
    return all;
}

CoreBuild randomBuild(Core core, std::mt19937* random)
{
    Generator pick(core, {}, Flavour::mixed, random);
    CoreBuild build;
    if (core == Core::PicoBlaze6) {
        build.scratchpadSize = 64 << pick.pick(3);
        build.vector = pick.pick(2) == 0 ? 0x3FF : pick.pick(4096);
        build.hwBuild = pick.pick(3) == 0 ? 0 : pick.pick(256);
    } else if (core == Core::Mico8) {
        build.scratchpadSize = 32 << pick.pick(4);
        build.registers = pick.pick(2) == 0 ? 16 : 32;
        build.addressBits = 8 << pick.pick(3);
    }
    return build;
}
