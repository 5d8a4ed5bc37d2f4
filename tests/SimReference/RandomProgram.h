#pragma once

#include "NaiveProcessor.h"

#include <random>

/// A processor and what it runs.
struct Machine
{
    Build build;
    Program program;
};

/// How the instructions of a random program lie in the instruction memory.
enum class Layout {
    fullPage,   ///< one page, each of its words
    gaps,       ///< one page with words that have no instruction, the interrupt vector of a PicoBlaze among them
    sharedHigh, ///< two pages; the upper words are shared
    sharedLow,  ///< two pages; the lower words are shared, and only the first page reaches the upper end
};
const int layoutCount = int(Layout::sharedLow) + 1;

/// A program with all mnemonics and forms of the processor at random, for a processor that is built at random.
Machine randomMachine(Family family, Layout layout, std::mt19937* random);
