#pragma once

#include <QColor>
#include <QFont>
#include <QTextCharFormat>

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
    /// The font that a new user gets.
    static QFont getNominalFont();

    int tabIndent = 4; ///< characters
    bool dynamicLineWrapEn = false;
    bool lineNumberEn = true;
    bool autoReturnIndentEn = true;
    bool textCompletionEn = true;
    int textCompleterPrefixLength = 3; ///< characters
    int textCompleterItemCount = 10;
    bool highlightSelectionEn = true;
    sEditorComfort_t comfort;
    int memPageAddrEn = memPageAddrSimOnly;
    QColor cursorBgColor = QColor(0xE3EBF3);
    QColor highlightBgColor = QColor(0xF5CACA);
    QColor leftMarginBgColor = QColor(0xEAE9E8);
    QColor leftMarginFgColor = Qt::black;
    QColor simBreakpointSymbolColor = Qt::red;
    QColor simStartAddressSymbolColor = Qt::green;
    QColor bookmarkSymbolColor = Qt::darkYellow;
    QFont stdFont;
    QTextCharFormat fontFormats[fontContextCount];
};

} // namespace nsModEditor
