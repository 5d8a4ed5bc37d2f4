#pragma once

#include "SrcReference.h"

#include <QString>

namespace nsModAsmFe {

/// One `#ORG`.
class Org
{
public:
    enum eType_t { unset = 0, addr = 1, memrange = 2 };

    SrcReference srcRef;
    Org* next = nullptr; ///< not owned
    QString name;        ///< first operand as written, `ADDR` for a bare number
    QString value;       ///< second operand as written
    int type = unset;
    int iValue = 0;    ///< the address, or the number of the range: 0 shared, n + 1 for page n
    bool used = false; ///< the mapper has applied it
};

} // namespace nsModAsmFe
