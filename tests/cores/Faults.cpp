#include "Faults.h"

#include "CoreWords.h"
#include "RandomWords.h"

#include <QFile>

namespace {

const QString folder = QStringLiteral(NALVO_CORES_DIR);

QString read(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void append(QString* text, const QString& line)
{
    if (!text->isEmpty())
        *text += '\n';
    *text += line;
}

Stimulus stimulusOf(const std::vector<Block>& blocks, const std::vector<Pulse>& interrupts)
{
    Stimulus stimulus;
    stimulus.program = program(blocks);
    stimulus.interrupts = interrupts;
    stimulus.clocks = 60;
    return stimulus;
}

/// What random programs seldom meet.
std::vector<Stimulus> byHandForPicoBlaze3()
{
    using namespace p3;
    // Zero is set at the entry, not in the routine, and leads the way behind the return.
    return {stimulusOf({{0, {INT_ENABLE, withK(SUB, 0, 0), NOP, NOP, jump(8, When::Z), withK(WRPRT, 0, 1)}},
                        {0x20, {withK(OR, 1, 1), RETI_ENABLE}},
                        {0x3FF, {jump(0x20)}}},
                       {{4}})};
}

std::vector<Stimulus> byHandForPicoBlaze6()
{
    using namespace p6;
    return {
        // The return of a routine in bank B is pre-empted; the routine of the second interrupt runs in bank A.
        stimulusOf({{0, {withK(LOAD, 1, 0x11), withK(STAR, 1, 0x21), INT_ENABLE}},
                    {0x3FF, {withK(WRPRT, 1, 2), BANK_B, INT_ENABLE, RETI_DISABLE}}},
                   {{4}, {12}}),
        // STAR from bank to bank, both ways.
        stimulusOf({{0,
                     {withK(LOAD, 1, 0x11), BANK_B, withK(LOAD, 1, 0x21), withY(STAR, 2, 1), withK(WRPRT, 2, 1), BANK_A,
                      withK(WRPRT, 2, 2), withY(STAR, 3, 1), BANK_B, withK(WRPRT, 3, 3)}}},
                   {}),
        // Zero is set at the entry, not in the routine, and leads the way behind the return.
        stimulusOf({{0, {INT_ENABLE, withK(SUB, 0, 0), NOP, NOP, jump(8, When::Z), withK(WRPRT, 0, 1)}},
                    {0x3FF, {withK(OR, 1, 1), RETI_ENABLE}}},
                   {{4}}),
    };
}

std::vector<Stimulus> byHandForMico8()
{
    using namespace m8;
    // The entry comes behind the instruction that sets zero and the carry; the routine clears both.
    return {stimulusOf({{0,
                         {jump(0x20), INT_ENABLE, withK(LOAD, 1, 0xFF), withK(ADD, 1, 1), jump(2, When::NZ),
                          access(WRPRT, 1, 1), jump(2, When::NC), access(WRPRT, 1, 2)}},
                        {0x20, {withK(ADD, 2, 1), INT_DISABLE, RETI}}},
                       {{4}})};
}

std::vector<Stimulus> byHand(Core core)
{
    switch (core) {
    case Core::PicoBlaze3:
        return byHandForPicoBlaze3();
    case Core::PicoBlaze6:
        return byHandForPicoBlaze6();
    case Core::Mico8:
        return byHandForMico8();
    }
    return {};
}

} // namespace

std::vector<Fault> readFaults()
{
    std::vector<Fault> faults;
    for (const QString& line : read(folder + "/faults.list").split('\n')) {
        if (line.startsWith('-'))
            append(&faults.back().from, line.mid(2));
        else if (line.startsWith('+'))
            append(&faults.back().to, line.mid(2));
        else if (!line.isEmpty() && !line.startsWith('#'))
            faults.push_back({line.section(": ", 0, 0), line.section(": ", 1), {}, {}});
    }
    return faults;
}

QString sourceWith(const Fault& fault)
{
    QString source = read(folder + '/' + fault.file);
    if (fault.from.isEmpty() || source.count(fault.from) != 1)
        return {};
    return source.replace(fault.from, fault.to);
}

std::vector<Trial> trials(Core core)
{
    std::vector<Trial> all;
    for (unsigned seed = 0; seed < 4; ++seed) {
        std::mt19937 random(500 + seed);
        const CoreBuild build = seed % 2 == 0 ? CoreBuild() : randomBuild(core, &random);
        for (const Flavour flavour : allFlavours)
            all.push_back(
                {build, randomStimulus(core, build, flavour, flavour == Flavour::resets ? 8000 : 3000, &random)});
    }
    for (const Stimulus& stimulus : flagPrograms(core))
        all.push_back({{}, stimulus});
    for (const Stimulus& stimulus : byHand(core))
        all.push_back({{}, stimulus});
    return all;
}
