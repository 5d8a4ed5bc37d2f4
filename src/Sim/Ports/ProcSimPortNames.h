#pragma once

#include <QString>

namespace nsModAsmFe {
class EquList;
class OpcodeList;
} // namespace nsModAsmFe

namespace nsProc {

/// The names that the assembled program has for ports: the constants by which its instructions address them.
class ProcSimPortNames
{
public:
    /// The constant by which the program addresses a port, with its namespace; if there are several, the first one in
    /// source order.
    /// @param isWrite the name in the instructions that write the port, else in those that read it
    /// @return empty without such a name
    static QString nameOf(const nsModAsmFe::OpcodeList& opcodes, const nsModAsmFe::EquList& equs, int addr,
                          bool isWrite);
    /// The port whose address is the value of a constant.
    /// @param name with its namespace; case counts, as in the sources
    /// @return 0 to 255; -1 if no constant of this name has such a value
    static int addrOf(const nsModAsmFe::EquList& equs, const QString& name);
};

} // namespace nsProc
