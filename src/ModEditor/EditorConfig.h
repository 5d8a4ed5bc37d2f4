#pragma once

#include <QColor>
#include <QFont>
#include <QTextCharFormat>

#include "Colors.h"
#include "EditorComfort.h"
#include "ModEditorHookIf.h"

class ModCfgAppHookIf;

namespace nsModEditor {

/// How the editor looks and behaves.
class EditorConfig
{
public:
    /// When the margin shows memory page addresses.
    enum eMemPageAddrEn_t { memPageAddrOff = 0, memPageAddrOn = 1, memPageAddrSimOnly = 2 };

    /// Kinds of text with a format of their own, in the order in which the user sees them.
    enum eFontContext_t {
        fontCmd,
        fontDirective,
        fontHw,
        fontHexNumber,
        fontDecNumber,
        fontOctNumber,
        fontBinNumber,
        fontComment,
        fontSeparator,
        fontLabel,
        fontDoc,
        fontNaviCmd,
        fontAttr,
        fontString,
        fontKeyWords,
        fontContextCount, ///< number of contexts, not a context
    };

    // Ranges of the numbers, from the settings as well as from the page; the smallest width, length and count is 1.
    static constexpr int maxTabIndent = 64; ///< characters
    static constexpr int maxPrefixLength = 20;
    static constexpr int maxItemCount = 100;
    static constexpr int minFontSize = 4;  ///< points, also of a zoomed document
    static constexpr int maxFontSize = 72; ///< points

    EditorConfig();

    /// Reads all keys from the application's settings; a missing one leaves the field as it is.
    void rdEditorConfig(ModCfgAppHookIf* cfg);
    void wrEditorConfig(ModCfgAppHookIf* cfg) const;

    /// The format of a highlighting rule; null for an unknown one.
    const QTextCharFormat* formatOfRule(ModEditorHookIf::eHighlightRule_t rule) const;
    /// The same as it is shown in the present colour scheme; as it stands for an unknown rule.
    QTextCharFormat shownFormatOfRule(ModEditorHookIf::eHighlightRule_t rule) const;
    /// The colour of a new user's text.
    static Colors::eRole_t colorOf(eFontContext_t context);
    /// The font that a new user gets.
    static QFont getNominalFont();

    int tabIndent = 4; ///< characters
    bool dynamicLineWrapEn = false;
    bool lineNumberEn = true;
    bool autoReturnIndentEn = true;
    bool textCompletionEn = true;
    int textCompleterPrefixLength = 3; ///< characters
    int textCompleterItemCount = 10;
    bool reloadKeepsUndo = false; ///< a reload by the user is a step that can be undone
    bool highlightSelectionEn = true;
    sEditorComfort_t comfort;
    int memPageAddrEn = memPageAddrSimOnly;
    QColor cursorBgColor = Colors::of(Colors::eEditorCursorLine, Colors::eLight);
    QColor highlightBgColor = Colors::of(Colors::eEditorFlaggedLine, Colors::eLight);
    QColor leftMarginBgColor = Colors::of(Colors::eMarginGround, Colors::eLight);
    QColor leftMarginFgColor = Colors::of(Colors::eMarginText, Colors::eLight);
    QColor simBreakpointSymbolColor = Colors::of(Colors::eMarkBreakpoint, Colors::eLight);
    QColor simStartAddressSymbolColor = Colors::of(Colors::eMarkStart, Colors::eLight);
    QColor bookmarkSymbolColor = Colors::of(Colors::eMarkBookmark, Colors::eLight);
    QFont stdFont;
    QTextCharFormat fontFormats[fontContextCount];
};

} // namespace nsModEditor
