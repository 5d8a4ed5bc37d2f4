#pragma once

#include "Arg.h"
#include "ArgExt.h"
#include "SrcReference.h"

#include <QString>

namespace nsModAsmFe {

/// One `#EQU`.
class Equ
{
public:
    Equ()
        : arg(&m_arg)
        , argExt(&m_argExt)
    {
    }
    Equ(const Equ&) = delete;
    Equ& operator=(const Equ&) = delete;

    SrcReference srcRef; ///< a replaced `#EQU` takes the new position
    Equ* next = nullptr; ///< not owned
    Equ* prev = nullptr;
    bool used = false; ///< an argument, an expression or another `#EQU` refers to it
    QString nameSpace;
    QString name;          ///< case as written
    Arg* const arg;        ///< owned; the value, of type `unset` until it is checked
    ArgExt* const argExt;  ///< owned
    bool prepared = false; ///< parentheses and prefix have been taken off the value

private:
    Arg m_arg;
    ArgExt m_argExt;
};

} // namespace nsModAsmFe
