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
    QRgb color;
};

/// Indexed by eFontContext_t.
const sFontContext_t fontContexts[EditorConfig::fontContextCount] = {
    {ModEditorHookIf::eHighlightRuleCmd, "cmd", QFont::Bold, 0x000000},
    {ModEditorHookIf::eHighlightRuleDirective, "directive", QFont::Bold, 0x008000},
    {ModEditorHookIf::eHighlightRuleHw, "hw", QFont::Bold, 0x000080},
    {ModEditorHookIf::eHighlightRuleHexNumber, "hexNumber", QFont::Bold, 0x800080},
    {ModEditorHookIf::eHighlightRuleDecNumber, "decNumber", QFont::Bold, 0x0000ff},
    {ModEditorHookIf::eHighlightRuleOctNumber, "octNumber", QFont::Bold, 0x808000},
    {ModEditorHookIf::eHighlightRuleBinNumber, "binNumber", QFont::Bold, 0xF56D05},
    {ModEditorHookIf::eHighlightRuleComment, "comment", 0, 0x808080},
    {ModEditorHookIf::eHighlightRuleSeparator, "separator", 0, 0x800000},
    {ModEditorHookIf::eHighlightRuleLabel, "label", QFont::Bold, 0x000000},
    {ModEditorHookIf::eHighlightRuleDoc, "doc", 0, 0x800000},
    {ModEditorHookIf::eHighlightRuleNaviCmd, "naviCmd", QFont::Bold, 0x808080},
    {ModEditorHookIf::eHighlightRuleAttr, "attr", weightUnset, 0xC18A46},
    {ModEditorHookIf::eHighlightRuleString, "string", weightUnset, 0x800000},
    {ModEditorHookIf::eHighlightRuleKeyWords, "keyWords", QFont::Bold, 0x000000},
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
        fontFormats[i].setForeground(QColor(fontContexts[i].color));
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

} // namespace nsModEditor
