#include "EditorConfig.h"

#include "ModCfgAppHookIf.h"

#include <QBrush>

namespace nsModEditor {

namespace {

const int weightUnset = -1;
const int maxWeight = 99; ///< of a font

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

// Reading and writing use one list of fields, so that no key can be forgotten on one side.

struct Reader
{
    ModCfgAppHookIf* cfg;

    void item(const QString& key, int& field, int first, int last)
    {
        field = qBound(first, cfg->value(key, field), last);
    }
    /// One of several values: any other value leaves the field unchanged.
    void choice(const QString& key, int& field, int last)
    {
        const int value = cfg->value(key, field);
        if (value >= 0 && value <= last)
            field = value;
    }
    void item(const QString& key, bool& field) { field = cfg->value(key, int(field)) != 0; }
    void item(const QString& key, QColor& field)
    {
        const QColor color = cfg->value(key, field);
        if (color.isValid())
            field = color;
    }
    void item(const QString& key, QFont& field)
    {
        field = cfg->font(key, field);
        // A font can be stored in pixels; documents have points.
        const int size = field.pointSize() > 0 ? field.pointSize() : EditorConfig::getNominalFont().pointSize();
        field.setPointSize(qBound(EditorConfig::minFontSize, size, EditorConfig::maxFontSize));
    }
};

struct Writer
{
    ModCfgAppHookIf* cfg;

    void item(const QString& key, int field, int, int) { cfg->setValue(key, field); }
    void choice(const QString& key, int field, int) { cfg->setValue(key, field); }
    void item(const QString& key, bool field) { cfg->setValue(key, int(field)); }
    void item(const QString& key, const QColor& field) { cfg->setValue(key, field); }
    void item(const QString& key, const QFont& field) { cfg->setFont(key, field); }
};

template <class Access, class Config>
void allItems(Access access, Config& config)
{
    access.item("ModEditor/tabIndent", config.tabIndent, 1, EditorConfig::maxTabIndent);
    access.item("ModEditor/dynamicLineWrapEn", config.dynamicLineWrapEn);
    access.item("ModEditor/lineNumberEn", config.lineNumberEn);
    access.item("ModEditor/autoReturnIndentEn", config.autoReturnIndentEn);
    access.item("ModEditor/textCompletionEn", config.textCompletionEn);
    access.item("ModEditor/textCompleterPrefixLength", config.textCompleterPrefixLength, 1,
                EditorConfig::maxPrefixLength);
    access.item("ModEditor/textCompleterItemCount", config.textCompleterItemCount, 1, EditorConfig::maxItemCount);
    access.item("ModEditor/highlightSelectionEn", config.highlightSelectionEn);
    access.choice("ModEditor/memPageAddrEn", config.memPageAddrEn, EditorConfig::memPageAddrSimOnly);
    access.item("ModEditor/cursorBgColor", config.cursorBgColor);
    access.item("ModEditor/highlightBgColor", config.highlightBgColor);
    access.item("ModEditor/leftMarginBgColor", config.leftMarginBgColor);
    access.item("ModEditor/leftMarginFgColor", config.leftMarginFgColor);
    access.item("ModEditor/simBreakpointSymbolColor", config.simBreakpointSymbolColor);
    access.item("ModEditor/simStartAddressSymbolColor", config.simStartAddressSymbolColor);
    access.item("ModEditor/bookmarkSymbolColor", config.bookmarkSymbolColor);
    access.item("ModEditor/stdFont", config.stdFont);
}

/// A weight of 0 is stored as the weight of a normal font.
int storedWeight(const QTextCharFormat& format)
{
    return format.fontWeight() == 0 ? int(QFont::Normal) : format.fontWeight();
}

void rdAppCfgFontFormat(ModCfgAppHookIf* cfg, const QString& context, QTextCharFormat* format)
{
    const QString key = "ModEditor/font/" + context;
    int weight = storedWeight(*format);
    Reader{cfg}.choice(key + "/weight", weight, maxWeight);
    format->setFontWeight(weight == QFont::Normal ? 0 : weight);
    format->setFontItalic(cfg->value(key + "/italic", int(format->fontItalic())) != 0);
    const QColor color = cfg->value(key + "/color", format->foreground().color());
    if (color.isValid())
        format->setForeground(color);
}

void wrAppCfgFontFormat(ModCfgAppHookIf* cfg, const QString& context, const QTextCharFormat& format)
{
    const QString key = "ModEditor/font/" + context;
    cfg->setValue(key + "/weight", storedWeight(format));
    cfg->setValue(key + "/italic", int(format.fontItalic()));
    cfg->setValue(key + "/color", format.foreground().color());
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
    allItems(Reader{cfg}, *this);
    for (int i = 0; i < fontContextCount; ++i)
        rdAppCfgFontFormat(cfg, fontContexts[i].key, &fontFormats[i]);
}

void EditorConfig::wrEditorConfig(ModCfgAppHookIf* cfg) const
{
    allItems(Writer{cfg}, *this);
    for (int i = 0; i < fontContextCount; ++i)
        wrAppCfgFontFormat(cfg, fontContexts[i].key, fontFormats[i]);
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
