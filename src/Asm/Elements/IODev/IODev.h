#pragma once

#include "SrcReference.h"
#include "TargetFile.h"

#include <QString>

#include <vector>

namespace nsModAsmFe {

/// One memory, register block or FIFO of the target, and the image of its contents.
class IODev
{
public:
    enum eDevType_t { unset = 0, mem = 1, fifo = 2, reg = 3 };
    enum eSimAccessMode_t { simRd = 0, simWr = 1, simRdWr = 2 };

    /// What is known of one cell.
    struct sMetaInfo_t
    {
        SrcReference* srcRef = nullptr; ///< where the value stands; not owned
        bool isInitValue = true;        ///< nothing wrote the cell
        bool written = false;           ///< a writer, viewer or simulator has touched the cell
        bool mirrored = false;          ///< the word lies in the shared range and stands in every page
    };

    /// @return false, with nothing changed, without arrays or out of bounds
    bool setValue(int addr, unsigned int value, SrcReference* srcRef, bool mirrored);
    /// @return false, with nothing changed, without arrays or out of bounds
    bool value(int addr, unsigned int* value) const;
    bool value(int addr, unsigned int* value, bool* isInitValue) const;
    /// True for a cell that nothing wrote, and for any cell without arrays or out of bounds.
    bool isInitValue(int addr) const;
    void setWritten(int addr);
    bool isWritten(int addr) const;
    void clearWritten();
    bool srcRef(int addr, SrcReference** srcRef) const;
    /// Null without arrays or out of bounds. Owned by the device.
    const sMetaInfo_t* metaInfo(int addr) const;

    /// Creates the arrays of `memSize` cells, all with `initValue`, and resets the counts.
    void initDevice();
    void delArrays();

    bool written = false;
    bool en = false;      ///< device enabled
    bool instMem = false; ///< device holds instructions
    QString devName;      ///< as written
    QString devNameUpper;
    int devType = unset;
    unsigned int baseAddr = 0;
    int memSize = 0;    ///< number of words
    int appendAddr = 0; ///< one past the highest index ever written
    std::vector<unsigned int> values;
    unsigned int initValue = 0;
    SrcReference* initValueSrcRef = nullptr; ///< where `INITVALUE` stood; not owned, null for the default
    int valueCnt = 0;                        ///< number of values set
    int mirrorCnt = 0;                       ///< those that are mirrored
    std::vector<sMetaInfo_t> metaInfos;

    bool simEn = false;
    int simAccessMode = simRdWr;

    TargetFile targets[targetKindCount]; ///< indexed by eTargetKind_t

private:
    bool hasCell(int addr) const { return addr >= 0 && addr < memSize && size_t(addr) < values.size(); }
};

// The writers ask for every cell.

inline bool IODev::value(int addr, unsigned int* value) const
{
    if (!hasCell(addr))
        return false;
    *value = values[size_t(addr)];
    return true;
}

inline void IODev::setWritten(int addr)
{
    if (hasCell(addr))
        metaInfos[size_t(addr)].written = true;
}

inline bool IODev::isWritten(int addr) const
{
    return hasCell(addr) && metaInfos[size_t(addr)].written;
}

} // namespace nsModAsmFe
