#pragma once

#include "CoreRun.h"

/// A deliberate fault of a model: a text in its source and what replaces it.
struct Fault
{
    QString file; ///< of this folder
    QString what; ///< the fault in words
    QString from;
    QString to;
};

/// Those of faults.list in its order.
std::vector<Fault> readFaults();

/// @return the source with the fault; empty if its text does not stand in the file once
QString sourceWith(const Fault& fault);

/// Programs that show all of the faults, for cores that are built in several ways: random ones, and some by hand for
/// what random ones do not meet.
struct Trial
{
    CoreBuild build;
    Stimulus stimulus;
};
std::vector<Trial> trials(Core core);
