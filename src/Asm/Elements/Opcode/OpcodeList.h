#pragma once

#include "AddrIndex.h"

#include <vector>

namespace nsModAsmFe {

class Opcode;
class OpcodeListWatch;

/// The instructions of the program, in source order. Owns them.
class OpcodeList
{
public:
    OpcodeList() = default;
    ~OpcodeList();
    OpcodeList(const OpcodeList&) = delete;
    OpcodeList& operator=(const OpcodeList&) = delete;

    /// Deletes all elements. Notifies the watches of the list before.
    void clear();
    /// Takes the ownership and links the element to the last one.
    void append(Opcode* opcode);
    /// Null if the list is empty.
    Opcode* first() const;
    int count() const { return int(m_opcodes.size()); }
    /// Iterates over all elements in order; faster than following the `next` pointers.
    std::vector<Opcode*>::const_iterator begin() const { return m_opcodes.begin(); }
    std::vector<Opcode*>::const_iterator end() const { return m_opcodes.end(); }
    /// Dumps the list to standard output.
    void print() const;

    /// First opcode whose `absLineNo` is not below the argument; null if there is none.
    Opcode* nextOfLineIndex(int absLineNo) const;
    /// First opcode of the file at or after this line, or the first opcode of any later file.
    Opcode* nextOfSrcRef(int fileNo, int lineNo) const;
    /// First opcode with this address in this range.
    Opcode* opcodeOfAddr(int pageAddr, int memRange) const;
    /// First opcode with this address in any range.
    Opcode* opcodeOfAddr(int pageAddr) const;
    /// First opcode with this absolute address.
    Opcode* opcodeOfMemAddr(int memAddr) const;

    /// Must be called after addresses or ranges of elements were written: the look-ups by address depend on them.
    void addressesChanged();

private:
    friend class OpcodeListWatch;

    void addWatch(OpcodeListWatch* watch) { m_watches.push_back(watch); }
    void removeWatch(OpcodeListWatch* watch);

    template <class Below>
    Opcode* firstNotBelow(Below below) const;
    template <class Hits>
    Opcode* firstOf(Hits hits) const;
    void buildIndexes() const;

    std::vector<Opcode*> m_opcodes;
    std::vector<OpcodeListWatch*> m_watches; ///< not owned
    bool m_ascending = true;                 ///< positions ascend, as they do in every run

    mutable bool m_indexed = false;
    mutable qint64 m_rangeStride = 0; ///< one more than the highest address: makes range and address one key
    mutable AddrIndex m_byRange;
    mutable AddrIndex m_byPageAddr;
    mutable AddrIndex m_byMemAddr;
};

} // namespace nsModAsmFe
