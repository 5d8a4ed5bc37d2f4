#pragma once

#include <cstddef>
#include <new>
#include <vector>

namespace nsModAsmFe {

/// Memory for many objects of one size, taken in blocks. All blocks go back as soon as no object is left.
///
/// For one thread, as the whole program is.
class BlockPool
{
public:
    BlockPool(size_t objectSize, size_t alignment);
    ~BlockPool();
    BlockPool(const BlockPool&) = delete;
    BlockPool& operator=(const BlockPool&) = delete;

    /// @return memory for one object, neighbour of the one before as far as possible
    void* allocate();
    /// @param memory from allocate()
    void release(void* memory);

private:
    struct sFree_t
    {
        sFree_t* next;
    };

    void releaseBlocks();

    size_t m_objectSize;
    size_t m_alignment;
    std::vector<char*> m_blocks;
    size_t m_usedOfLast = 0; ///< bytes given out of the last block
    sFree_t* m_free = nullptr;
    size_t m_count = 0; ///< objects given out
};

} // namespace nsModAsmFe
