#pragma once

#include <QString>

class ModAsmFeHookIf;

namespace nsProc {

/// The names that the assembled program has for ports: the constants by which its instructions address them.
class ProcSimPortNames
{
public:
    /// The constant by which the program addresses a port, with its namespace; if there are several, the first one in
    /// source order.
    /// @param hook null for none
    /// @param isWrite the name in the instructions that write the port, else in those that read it
    /// @return empty without such a name, and without an assembled program
    static QString nameOf(ModAsmFeHookIf* hook, int addr, bool isWrite);
    /// The port whose address is the value of a constant.
    /// @param hook null for none
    /// @param name with its namespace; case counts, as in the sources
    /// @return 0 to 255; -1 if no constant of this name has such a value, and without an assembled program
    static int addrOf(ModAsmFeHookIf* hook, const QString& name);
};

} // namespace nsProc
