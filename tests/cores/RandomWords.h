#pragma once

#include "CoreRun.h"

#include <random>

/// What a random program is rich in.
enum class Flavour {
    mixed,
    calls,
    returns,
    ports,
    resets, ///< of a PicoBlaze 6 by its 31st call, with all kinds of instructions half executed
};
const Flavour allFlavours[] = {Flavour::mixed, Flavour::calls, Flavour::returns, Flavour::ports, Flavour::resets};

/// Words for the whole memory or the lower part of it, with a routine at the interrupt vector; all instructions of the
/// core.
std::vector<quint32> randomProgram(Core core, const CoreBuild& build, Flavour flavour, std::mt19937* random);

/// A random program with values to read and interrupt requests at random clocks.
Stimulus randomStimulus(Core core, const CoreBuild& build, Flavour flavour, qint64 clocks, std::mt19937* random);

/// Programs that show what an instruction makes of values at the edges and of the flags before it, one for each
/// instruction that changes them.
std::vector<Stimulus> flagPrograms(Core core);

CoreBuild randomBuild(Core core, std::mt19937* random);
