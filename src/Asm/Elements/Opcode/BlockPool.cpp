#include "BlockPool.h"

namespace nsModAsmFe {

namespace {

const size_t objectsPerBlock = 1024;

} // namespace

BlockPool::BlockPool(size_t objectSize, size_t alignment)
    : m_objectSize(objectSize)
    , m_alignment(alignment)
{
}

BlockPool::~BlockPool()
{
    // Objects that outlive the pool, such as globals, keep their memory.
    if (m_count == 0)
        releaseBlocks();
}

void* BlockPool::allocate()
{
    ++m_count;
    if (m_free != nullptr) {
        sFree_t* memory = m_free;
        m_free = memory->next;
        return memory;
    }
    const size_t blockSize = m_objectSize * objectsPerBlock;
    if (m_blocks.empty() || m_usedOfLast == blockSize) {
        m_blocks.push_back(static_cast<char*>(::operator new(blockSize, std::align_val_t(m_alignment))));
        m_usedOfLast = 0;
    }
    char* memory = m_blocks.back() + m_usedOfLast;
    m_usedOfLast += m_objectSize;
    return memory;
}

void BlockPool::release(void* memory)
{
    auto* entry = static_cast<sFree_t*>(memory);
    entry->next = m_free;
    m_free = entry;
    if (--m_count == 0)
        releaseBlocks();
}

void BlockPool::releaseBlocks()
{
    for (char* block : m_blocks)
        ::operator delete(block, std::align_val_t(m_alignment));
    m_blocks.clear();
    m_usedOfLast = 0;
    m_free = nullptr;
}

} // namespace nsModAsmFe
