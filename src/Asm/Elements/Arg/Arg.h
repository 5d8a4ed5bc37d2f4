#pragma once

#include <QByteArray>
#include <QString>

namespace nsModAsmFe {

class Opcode;

/// One argument of an instruction, or the value of an `#EQU`. `type` says which of the value fields counts.
class Arg
{
public:
    enum eArgType_t : quint8 {
        unset,
        empty,
        numeric,
        stringUtf16,
        stringEncoded,
        reg,
        regRef,
        regBank,
        flagZ,
        flagNZ,
        flagC,
        flagNC,
        enable,
        disable,
        label,
    };

    /// Takes over another argument's value and name, but keeps its own text as written.
    void takeValue(const Arg& other)
    {
        const QString own = dispName;
        *this = other;
        dispName = own;
    }

    QString nameSpace;    ///< namespace in which `name` is looked up
    QString dispName;     ///< the text as written
    QString name;         ///< the working text: attributes, ranges, parentheses and prefix are taken off step by step
    QString strValue;     ///< text of a string without quotes and escapes; name of a register
    QByteArray barrValue; ///< the string in its character set
    Opcode* labelOpcode = nullptr; ///< for a label the first instruction at or after it; not owned
    int iValue = 0;                ///< value of a numeric, number of a register or a bank
    eArgType_t type = unset;
    bool isValid = true;
};

/// The word that names the kind in debug output and reports, such as "numeric".
const char* argTypeName(Arg::eArgType_t type);

} // namespace nsModAsmFe
