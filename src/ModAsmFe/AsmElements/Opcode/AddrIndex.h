#pragma once

#include <QtGlobal>

#include <vector>

namespace nsModAsmFe {

/// Finds the first element of a list by an address, without a walk over the list.
///
/// Addresses of a program are dense, so they index an array; where they are spread too widely for that, a sorted table serves.
/// Negative addresses are not found.
class AddrIndex
{
public:
    /// Enters the addresses; the position in the vector is what find() answers.
    void build(const std::vector<qint64>& addrs);
    /// @return position of the first element with this address, -1 if there is none
    int find(qint64 addr) const;
    void clear();

private:
    struct sEntry_t
    {
        qint64 addr;
        int pos;
    };

    std::vector<int> m_dense;
    std::vector<sEntry_t> m_sorted;
};

} // namespace nsModAsmFe
