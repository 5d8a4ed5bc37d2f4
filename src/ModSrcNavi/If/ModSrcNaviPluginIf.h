#pragma once

#include "NaviSymbol.h"

#include <QVector>

class ModSrcNaviHookIf;

/// A client of the source navigator.
class ModSrcNaviPluginIf
{
public:
    virtual ~ModSrcNaviPluginIf() = default;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModSrcNaviHookIf* modSrcNaviHook = nullptr;
};

/// A client that knows the names of the program, for quick open.
class ModSrcNaviPluginIfSymbols
{
public:
    virtual ~ModSrcNaviPluginIfSymbols() = default;

    /// All names that are defined in the sources, as these stand now.
    virtual QVector<nsModSrcNavi::NaviSymbol> naviSymbols() = 0;
    /// The user has chosen one of them: show its definition.
    virtual void showNaviSymbol(const nsModSrcNavi::NaviSymbol& symbol) = 0;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModSrcNaviHookIf* modSrcNaviHook = nullptr;
};
