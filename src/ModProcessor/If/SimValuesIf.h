#pragma once

#include <QString>

namespace nsModProcessor {

/// Values of the program that is being simulated, as they are now. Reading changes nothing.
class SimValuesIf
{
public:
    virtual ~SimValuesIf() = default;

    virtual bool isSimulating() = 0;
    // Each returns false where there is no such place, or no value in it, and without a simulation.
    /// @param name of a register, in the bank that the program has selected
    virtual bool registerValue(const QString& name, int* value) = 0;
    virtual bool scratchpadValue(int addr, int* value) = 0;
    /// What the program would read at a port of the simulation, as far as that is known without a read.
    virtual bool portValue(int addr, int* value) = 0;
};

} // namespace nsModProcessor
