#pragma once

#include <QtGlobal>

#include <algorithm>
#include <vector>

namespace nsModAsmFe {

/// Finds the first element of a list by an address, without a walk over the list.
///
/// Addresses of a program are dense, so they index an array; if they are spread too widely for that, a sorted table is
/// used. Negative addresses are not found.
class AddrIndex
{
public:
    /// Enters the addresses of all elements.
    /// @param count number of elements
    /// @param addrOf address of the element at a position; the position is what find() answers
    template <class AddrOf>
    void build(size_t count, AddrOf addrOf);
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

template <class AddrOf>
void AddrIndex::build(size_t count, AddrOf addrOf)
{
    clear();
    qint64 highest = -1;
    for (size_t pos = 0; pos < count; ++pos)
        highest = std::max(highest, addrOf(pos));
    if (highest < qint64(count) * 4 + 4096) {
        m_dense.assign(size_t(highest + 1), -1);
        for (size_t pos = count; pos-- > 0;) {
            if (addrOf(pos) >= 0)
                m_dense[size_t(addrOf(pos))] = int(pos);
        }
        return;
    }
    m_sorted.reserve(count);
    for (size_t pos = 0; pos < count; ++pos) {
        if (addrOf(pos) >= 0)
            m_sorted.push_back({addrOf(pos), int(pos)});
    }
    std::stable_sort(m_sorted.begin(), m_sorted.end(),
                     [](const sEntry_t& a, const sEntry_t& b) { return a.addr < b.addr; });
}

} // namespace nsModAsmFe
