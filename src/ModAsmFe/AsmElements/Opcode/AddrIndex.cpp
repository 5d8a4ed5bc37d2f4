#include "AddrIndex.h"

#include <algorithm>

namespace nsModAsmFe {

void AddrIndex::build(const std::vector<qint64>& addrs)
{
    clear();
    qint64 highest = -1;
    for (qint64 addr : addrs)
        highest = std::max(highest, addr);
    if (highest < qint64(addrs.size()) * 4 + 4096) {
        m_dense.assign(size_t(highest + 1), -1);
        for (size_t pos = addrs.size(); pos-- > 0;) {
            if (addrs[pos] >= 0)
                m_dense[size_t(addrs[pos])] = int(pos);
        }
        return;
    }
    m_sorted.reserve(addrs.size());
    for (size_t pos = 0; pos < addrs.size(); ++pos) {
        if (addrs[pos] >= 0)
            m_sorted.push_back({addrs[pos], int(pos)});
    }
    std::stable_sort(m_sorted.begin(), m_sorted.end(),
                     [](const sEntry_t& a, const sEntry_t& b) { return a.addr < b.addr; });
}

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
