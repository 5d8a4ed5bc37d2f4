#pragma once

#include <functional>

namespace nsModAsmFe {

class OpcodeList;

/// Calls a function when the instructions of a list are about to be deleted, so that its owner can drop pointers to
/// them.
///
/// List and watch may be deleted in any order.
class OpcodeListWatch
{
public:
    /// @param deleting called before the instructions are deleted; it must not start or end a watch
    explicit OpcodeListWatch(std::function<void()> deleting)
        : m_deleting(std::move(deleting))
    {
    }
    ~OpcodeListWatch() { watch(nullptr); }
    OpcodeListWatch(const OpcodeListWatch&) = delete;
    OpcodeListWatch& operator=(const OpcodeListWatch&) = delete;

    /// Watches this list instead of the one before.
    /// @param list null for none; not owned
    void watch(OpcodeList* list);

private:
    friend class OpcodeList;

    std::function<void()> m_deleting;
    OpcodeList* m_list = nullptr;
};

} // namespace nsModAsmFe
