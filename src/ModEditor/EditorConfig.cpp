#include "EditorConfig.h"

#include "EditorKeys.h"

#include "CfgLookItems.h"
#include "ModCfgAppHookIf.h"

namespace nsModEditor {

namespace {

const int weightUnset = -1;

struct sFontContext_t
{
    ModEditorHookIf::eHighlightRule_t rule;
    const char* key; ///< last component of the settings key
    int weight;
    Colors::eRole_t color;
};

/// Indexed by eFontContext_t.
const sFontContext_t fontContexts[EditorConfig::fontContextCount] = {
    {ModEditorHookIf::eHighlightRuleCmd, "cmd", QFont::Bold, Colors::eFormatCmd},
    {ModEditorHookIf::eHighlightRuleDirective, "directive", QFont::Bold, Colors::eFormatDirective},
    {ModEditorHookIf::eHighlightRuleHw, "hw", QFont::Bold, Colors::eFormatHw},
    {ModEditorHookIf::eHighlightRuleHexNumber, "hexNumber", QFont::Bold, Colors::eFormatHex},
    {ModEditorHookIf::eHighlightRuleDecNumber, "decNumber", QFont::Bold, Colors::eFormatDec},
    {ModEditorHookIf::eHighlightRuleOctNumber, "octNumber", QFont::Bold, Colors::eFormatOct},
    {ModEditorHookIf::eHighlightRuleBinNumber, "binNumber", QFont::Bold, Colors::eFormatBin},
    {ModEditorHookIf::eHighlightRuleComment, "comment", 0, Colors::eFormatComment},
    {ModEditorHookIf::eHighlightRuleSeparator, "separator", 0, Colors::eFormatSeparator},
    {ModEditorHookIf::eHighlightRuleLabel, "label", QFont::Bold, Colors::eFormatLabel},
    {ModEditorHookIf::eHighlightRuleDoc, "doc", 0, Colors::eFormatDoc},
    {ModEditorHookIf::eHighlightRuleNaviCmd, "naviCmd", QFont::Bold, Colors::eFormatNaviCmd},
    {ModEditorHookIf::eHighlightRuleAttr, "attr", weightUnset, Colors::eFormatAttr},
    {ModEditorHookIf::eHighlightRuleString, "string", weightUnset, Colors::eFormatString},
    {ModEditorHookIf::eHighlightRuleKeyWords, "keyWords", QFont::Bold, Colors::eFormatKeyWords},
};

template <class Items, class Config>
void allItems(Items items, Config& config)
{
    items.item(editorKeys::tabIndent, config.tabIndent, 1, EditorConfig::maxTabIndent);
    items.item(editorKeys::dynamicLineWrapEn, config.dynamicLineWrapEn);
    items.item(editorKeys::lineNumberEn, config.lineNumberEn);
    items.item(editorKeys::autoReturnIndentEn, config.autoReturnIndentEn);
    items.item(editorKeys::textCompletionEn, config.textCompletionEn);
    items.item(editorKeys::textCompleterPrefixLength, config.textCompleterPrefixLength, 1,
               EditorConfig::maxPrefixLength);
    items.item(editorKeys::textCompleterItemCount, config.textCompleterItemCount, 1, EditorConfig::maxItemCount);
    items.item(editorKeys::reloadKeepsUndo, config.reloadKeepsUndo);
    items.item(editorKeys::highlightSelectionEn, config.highlightSelectionEn);
    items.item(editorKeys::indentWithBlanks, config.comfort.indentWithBlanks);
    items.item(editorKeys::smartHomeEn, config.comfort.smartHomeEn);
    items.item(editorKeys::trimOnSaveEn, config.comfort.trimOnSaveEn);
    items.item(editorKeys::showBlanksEn, config.comfort.showBlanksEn);
    items.item(editorKeys::rulerColumn, config.comfort.rulerColumn, 0, sEditorComfort_t::maxRulerColumn);
    items.item(editorKeys::marksFollowTextEn, config.comfort.marksFollowTextEn);
    items.item(editorKeys::keepMarksEn, config.comfort.keepMarksEn);
    items.choice(editorKeys::memPageAddrEn, config.memPageAddrEn, EditorConfig::memPageAddrSimOnly);
    items.item(editorKeys::cursorBgColor, config.cursorBgColor);
    items.item(editorKeys::highlightBgColor, config.highlightBgColor);
    items.item(editorKeys::leftMarginBgColor, config.leftMarginBgColor);
    items.item(editorKeys::leftMarginFgColor, config.leftMarginFgColor);
    items.item(editorKeys::simBreakpointSymbolColor, config.simBreakpointSymbolColor);
    items.item(editorKeys::simStartAddressSymbolColor, config.simStartAddressSymbolColor);
    items.item(editorKeys::bookmarkSymbolColor, config.bookmarkSymbolColor);
    items.item(editorKeys::stdFont, config.stdFont);
    for (int i = 0; i < EditorConfig::fontContextCount; ++i)
        items.item(editorKeys::fontFormats + QLatin1String(fontContexts[i].key), config.fontFormats[i]);
}

} // namespace

EditorConfig::EditorConfig()
    : stdFont(getNominalFont())
{
    for (int i = 0; i < fontContextCount; ++i) {
        fontFormats[i].setForeground(Colors::of(fontContexts[i].color, Colors::eLight));
        if (fontContexts[i].weight != weightUnset)
            fontFormats[i].setFontWeight(fontContexts[i].weight);
    }
}

QFont EditorConfig::getNominalFont()
{
    QFont font("DejaVu Sans Mono", 9, QFont::Normal, false);
    // If the family is not installed, another one of fixed width is used.
    font.setStyleHint(QFont::Monospace);
    return font;
}

void EditorConfig::rdEditorConfig(ModCfgAppHookIf* cfg)
{
    allItems(CfgLookReader<ModCfgAppHookIf>(cfg), *this);
    // A font can be stored in pixels; documents have points.
    const int size = stdFont.pointSize() > 0 ? stdFont.pointSize() : getNominalFont().pointSize();
    stdFont.setPointSize(qBound(minFontSize, size, maxFontSize));
}

void EditorConfig::wrEditorConfig(ModCfgAppHookIf* cfg) const
{
    allItems(CfgLookWriter<ModCfgAppHookIf>(cfg), *this);
}

const QTextCharFormat* EditorConfig::formatOfRule(ModEditorHookIf::eHighlightRule_t rule) const
{
    for (int i = 0; i < fontContextCount; ++i) {
        if (fontContexts[i].rule == rule)
            return &fontFormats[i];
    }
    return nullptr;
}

QTextCharFormat EditorConfig::shownFormatOfRule(ModEditorHookIf::eHighlightRule_t rule) const
{
    for (int i = 0; i < fontContextCount; ++i) {
        if (fontContexts[i].rule == rule)
            return Colors::shown(fontContexts[i].color, fontFormats[i]);
    }
    return {};
}

Colors::eRole_t EditorConfig::colorOf(eFontContext_t context)
{
    return fontContexts[context].color;
}

} // namespace nsModEditor
