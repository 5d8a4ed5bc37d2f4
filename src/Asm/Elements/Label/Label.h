#pragma once

#include "SrcReference.h"

#include <QString>

namespace nsModAsmFe {

/// One `name:` at a line.
class Label
{
public:
    SrcReference srcRef;
    Label* next = nullptr; ///< not owned
    QString nameSpace;
    QString name;          ///< without the colon, case as written
    bool indented = false; ///< white space stood before the label
    int addr = -1;
};

} // namespace nsModAsmFe
