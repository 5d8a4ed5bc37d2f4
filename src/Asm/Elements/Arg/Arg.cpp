#include "Arg.h"

namespace nsModAsmFe {

const char* argTypeName(Arg::eArgType_t type)
{
    static const char* const names[] = {"unset", "empty",  "numeric", "string UTF-16", "string encoded",
                                        "reg",   "regRef", "regBank", "flagZ",         "flagNZ",
                                        "flagC", "flagNC", "enable",  "disable",       "label"};
    return type <= Arg::label ? names[type] : "unset";
}

} // namespace nsModAsmFe
