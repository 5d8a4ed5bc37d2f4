#pragma once

namespace nsProc {

/// State of the interrupt logic.
enum eInt_t {
    eIntEnabled = 0,
    eIntDisabled = 1,
    eIntPending = 2,
    eIntService = 3,
};

/// Number base of what the simulator shows.
enum eBase_t {
    eBaseOct = 0,
    eBaseDec = 1,
    eBaseHex = 2,
};

/// The base as a number: 8, 10 or 16.
inline int numberBase(eBase_t base)
{
    return base == eBaseOct ? 8 : base == eBaseDec ? 10 : 16;
}

} // namespace nsProc
