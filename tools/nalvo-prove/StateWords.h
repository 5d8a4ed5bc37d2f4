#pragma once

#include "CoreSource.h"

#include <vector>

namespace nsNalvoProve {

/// A program for a core, from its first address on.
using Words = std::vector<int>;

/// Cells of the scratchpad that these programs reach: more are not compared.
constexpr int cellsReached = 512;

/// A program that fills the scratchpad and leaves all else as after power-up. What follows it must be the word 0 and
/// then a reset.
/// @param cells values from address 0 on
Words wordsThatFill(const CoreKind& kind, const std::vector<int>& cells);

/// A program that writes all registers, bank by bank, and then the scratchpad to the ports.
/// @param registers of a bank
Words wordsThatShow(const CoreKind& kind, int registers, int cells);

/// Clocks in which a program without loops is executed.
qint64 clocksOf(const CoreKind& kind, const Words& words, int waitStates);

} // namespace nsNalvoProve
