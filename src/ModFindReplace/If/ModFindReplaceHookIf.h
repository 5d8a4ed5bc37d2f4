#pragma once

#include <QString>

class ModFindReplacePluginIf;
class QWidget;

/// The find and replace strip. Served by nsModFindReplace::ModFindReplace.
class ModFindReplaceHookIf
{
public:
    virtual ~ModFindReplaceHookIf() = default;

    /// Routes find and replace to the plug-in while the widget is current. Neither is owned; a known widget is
    /// replaced.
    /// @param features what the widget can do: bit 0 replace, bit 1 search for whole words
    virtual void registerPluginWidget(ModFindReplacePluginIf* plugin, QWidget* widget, int features) = 0;
    virtual void unregisterPluginWidget(QWidget* widget) = 0;

    virtual QString findString() = 0;
    virtual QString replaceString() = 0;
    virtual bool isCaseSensitive() = 0;
    virtual bool isWholeWords() = 0;

    /// The text to find is a regular expression; only for clients with hasExpressions().
    virtual bool isRegExp() { return false; }
    /// The search is restricted to what was selected; likewise.
    virtual bool isInSelection() { return false; }
    /// What the search has come to, such as "3 of 17". @param toolTip more about it, may be empty
    virtual void setFindResult(const QString& /*text*/, const QString& /*toolTip*/) {}
};
