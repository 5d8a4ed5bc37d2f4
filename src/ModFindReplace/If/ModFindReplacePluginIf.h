#pragma once

#include <QString>

class ModFindReplaceHookIf;

/// A client with widgets in which the user can search.
///
/// `configChanged` is true if the user has changed the text or an option since the last operation: the parameters must
/// be read from the hook again.
class ModFindReplacePluginIf
{
public:
    virtual ~ModFindReplacePluginIf() = default;

    /// The strip opens for the current widget, which is one of the client's.
    /// @return the text to start with; empty leaves the text of the last search
    virtual QString findInit() = 0;
    /// The strip was closed, or now serves another client.
    virtual void findExit() = 0;
    virtual void findNext(bool configChanged) = 0;
    virtual void findPrev(bool configChanged) = 0;
    /// Replaces the hit that is selected and goes on to the next.
    virtual void replace(bool configChanged) = 0;
    virtual void replaceAll(bool configChanged) = 0;

    /// The client can search for regular expressions and in a selection, and shows results.
    virtual bool hasExpressions() { return false; }
    /// The strip serves this client, and the parameters or the current widget have changed: the client can show what a
    /// search would find. It moves no cursor.
    virtual void findPreview() {}

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModFindReplaceHookIf* modFindReplaceHook = nullptr;
};
