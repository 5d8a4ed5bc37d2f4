#include "AddrIndex.h"

namespace nsModAsmFe {

int AddrIndex::find(qint64 addr) const
{
    if (addr >= 0 && addr < qint64(m_dense.size()))
        return m_dense[size_t(addr)];
    const auto it = std::lower_bound(m_sorted.begin(), m_sorted.end(), addr,
                                     [](const sEntry_t& entry, qint64 a) { return entry.addr < a; });
    return it != m_sorted.end() && it->addr == addr ? it->pos : -1;
}

void AddrIndex::clear()
{
    std::vector<int>().swap(m_dense);
    std::vector<sEntry_t>().swap(m_sorted);
}

} // namespace nsModAsmFe
