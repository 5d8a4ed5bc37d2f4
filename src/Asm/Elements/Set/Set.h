#pragma once

#include "SrcReference.h"

#include <QString>

namespace nsModAsmFe {

/// One `#SET`.
class Set
{
public:
    enum eValueType_t {
        valueUnset = 0,
        valueNumeric = 1,
        valueTrue = 2,
        valueFalse = 3,
        valueText = 4, ///< anything else
    };

    SrcReference srcRef;
    Set* prev = nullptr; ///< not owned
    Set* next = nullptr;
    bool used = false; ///< set by the consumer of the parameter
    QString nameSpace; ///< part before the last "::", case as written
    QString name;      ///< part after it, case as written
    QString nameSpaceUpper;
    QString nameUpper;
    int valueType = valueUnset;
    QString value;  ///< as written
    int iValue = 0; ///< the value when it is numeric
};

} // namespace nsModAsmFe
