#include "IODev.h"

#include <algorithm>

namespace nsModAsmFe {

bool IODev::setValue(int addr, unsigned int value, SrcReference* srcRef, bool mirrored)
{
    if (!hasCell(addr))
        return false;
    values[size_t(addr)] = value;
    sMetaInfo_t& info = metaInfos[size_t(addr)];
    info.srcRef = srcRef;
    info.isInitValue = false;
    info.mirrored = mirrored;
    appendAddr = std::max(appendAddr, addr + 1);
    ++valueCnt;
    if (mirrored)
        ++mirrorCnt;
    return true;
}

bool IODev::value(int addr, unsigned int* value, bool* isInitValue) const
{
    if (!hasCell(addr))
        return false;
    *value = values[size_t(addr)];
    *isInitValue = metaInfos[size_t(addr)].isInitValue;
    return true;
}

bool IODev::isInitValue(int addr) const
{
    return !hasCell(addr) || metaInfos[size_t(addr)].isInitValue;
}

void IODev::clearWritten()
{
    for (sMetaInfo_t& info : metaInfos)
        info.written = false;
}

bool IODev::srcRef(int addr, SrcReference** srcRef) const
{
    if (!hasCell(addr))
        return false;
    *srcRef = metaInfos[size_t(addr)].srcRef;
    return true;
}

const IODev::sMetaInfo_t* IODev::metaInfo(int addr) const
{
    return hasCell(addr) ? &metaInfos[size_t(addr)] : nullptr;
}

void IODev::initDevice()
{
    delArrays();
    const size_t size = size_t(std::max(memSize, 0));
    values.assign(size, initValue);
    sMetaInfo_t info;
    info.srcRef = initValueSrcRef;
    metaInfos.assign(size, info);
    appendAddr = 0;
    valueCnt = 0;
    mirrorCnt = 0;
}

void IODev::delArrays()
{
    std::vector<unsigned int>().swap(values);
    std::vector<sMetaInfo_t>().swap(metaInfos);
}

} // namespace nsModAsmFe
