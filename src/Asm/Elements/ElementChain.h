#pragma once

namespace nsModAsmFe {

/// Elements in the order of their adding, each with a pointer to the next one. Owns them.
template <class Element>
class ElementChain
{
public:
    ElementChain() = default;
    ~ElementChain() { clear(); }
    ElementChain(const ElementChain&) = delete;
    ElementChain& operator=(const ElementChain&) = delete;

    /// Null if the chain is empty.
    Element* first() const { return m_first; }
    Element* last() const { return m_last; }

    void append(Element* element)
    {
        if (m_last == nullptr)
            m_first = element;
        else
            m_last->next = element;
        m_last = element;
    }

    /// Deletes all elements.
    void clear()
    {
        while (m_first != nullptr) {
            Element* next = m_first->next;
            delete m_first;
            m_first = next;
        }
        m_last = nullptr;
    }

private:
    Element* m_first = nullptr;
    Element* m_last = nullptr;
};

} // namespace nsModAsmFe
