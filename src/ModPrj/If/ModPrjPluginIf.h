#pragma once

#include "PrjStep.h"

#include <QList>

class ModPrjHookIf;

/// A client that takes part in the life of the project.
class ModPrjPluginIf
{
public:
    virtual ~ModPrjPluginIf() = default;

    /// The project file has been read: read your own keys. Other clients may not have read theirs.
    virtual void prjOpen() = 0;
    /// All clients have read their keys.
    virtual void prjOpened() = 0;
    /// The project is going to be saved and closed, and is still all there: save what belongs to it, ask the user what
    /// has to be asked.
    virtual void prjAboutToClose() {}
    /// The project is about to be written: write your own keys.
    virtual void prjSave() = 0;
    /// The project is closed, its tree is empty: drop what you hold of it.
    virtual void prjClose() = 0;
    /// What can be done next, also without a project. Asked after ModPrjHookIf::stepsChanged().
    virtual QList<PrjStep> prjSteps() { return {}; }

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModPrjHookIf* modPrjHook = nullptr;
};

/// A client that wants the hook and nothing else.
class ModPrjPluginIfInterMod
{
public:
    virtual ~ModPrjPluginIfInterMod() = default;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModPrjHookIf* modPrjHook = nullptr;
};
