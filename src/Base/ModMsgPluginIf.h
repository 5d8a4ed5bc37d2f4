#pragma once

#include <QUrl>

class ModMsgHookIf;

/// A client of the message service.
class ModMsgPluginIf
{
public:
    virtual ~ModMsgPluginIf() = default;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModMsgHookIf* modMsgHook = nullptr;
};

/// A client that wants the hook and nothing else.
class ModMsgPluginIfInterMod
{
public:
    virtual ~ModMsgPluginIfInterMod() = default;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModMsgHookIf* modMsgHook = nullptr;
};

/// Answers clicks on links in the message view.
class ModMsgPluginIfUrlHndlr
{
public:
    virtual ~ModMsgPluginIfUrlHndlr() = default;

    /// @param url never empty
    virtual void handleUrl(QUrl url) = 0;
};
