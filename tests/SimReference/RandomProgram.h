#pragma once

#include "NaiveProcessor.h"

#include <random>
#include <vector>

/// A program of as many instructions as a page has words, all mnemonics and forms of the processor at random.
std::vector<Instruction> randomProgram(Family family, std::mt19937* random);

const int programSize = 1024;
