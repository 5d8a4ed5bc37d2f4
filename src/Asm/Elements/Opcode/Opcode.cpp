#include "Opcode.h"

#include "BlockPool.h"

namespace nsModAsmFe {

namespace {

// With an address sanitizer every instruction gets memory of its own, so that a stale pointer shows.
#if defined(__SANITIZE_ADDRESS__)
void* allocate()
{
    return ::operator new(sizeof(Opcode), std::align_val_t(alignof(Opcode)));
}

void release(void* memory)
{
    ::operator delete(memory, std::align_val_t(alignof(Opcode)));
}
#else
BlockPool& pool()
{
    static BlockPool opcodes(sizeof(Opcode), alignof(Opcode));
    return opcodes;
}

void* allocate()
{
    return pool().allocate();
}

void release(void* memory)
{
    pool().release(memory);
}
#endif

} // namespace

void* Opcode::operator new(size_t)
{
    return allocate();
}

void Opcode::operator delete(void* memory)
{
    if (memory != nullptr)
        release(memory);
}

} // namespace nsModAsmFe
