#pragma once

#include "EditorConfig.h"
#include "ModConfigPagePluginIf.h"

#include <QWidget>

class MyColorSelector;
class MyFontTable;
class MyPageLayout;
class QCheckBox;
class QComboBox;
class QFontComboBox;
class QSpinBox;

namespace nsModEditor {

/// The settings page of the editor.
class EditorConfigPage : public QWidget, public nsModConfig::ModConfigPagePluginIf
{
    Q_OBJECT

public:
    explicit EditorConfigPage(QWidget* parent = nullptr);

    /// Fills the controls.
    void setConfig(const EditorConfig* config);
    /// Shows another width of a tab, in characters from 1 to 64; all else stays as the user left it.
    void setTabIndent(int indent);
    /// Takes the values of the controls.
    void config(EditorConfig* config) const;

    // ModConfigPagePluginIf
    QWidget* pageWidget() override { return this; }
    QIcon pageIcon() override;
    QString pageTitle() override;
    QString pageHelpRef() override;
    void setPrjConfigEnabled(bool) override {}
    bool pageIsEnabled() override { return true; }
    void setFocus(bool) override {}
    void setDefaultConfig() override;
    bool checkConfig() override { return true; }

private slots:
    void hndlFontFamilySel(const QFont& font);
    void hndlFontSizeSel(const QString& size);

private:
    void addFormating(MyPageLayout* layout);
    void addTextCompletion(MyPageLayout* layout);
    void addHighlighting(MyPageLayout* layout);
    void addLeftMargin(MyPageLayout* layout);
    void addFonts(MyPageLayout* layout);
    QCheckBox* addCheck(MyPageLayout* layout, const char* name, const QString& title, const QString& toolTip);
    QSpinBox* addNumber(MyPageLayout* layout, const char* name, const QString& title, const QString& toolTip,
                        const QString& unit, int max);
    MyColorSelector* addColor(MyPageLayout* layout, const char* name, const QString& title);

    /// Of the fields of sEditorComfort_t.
    struct sComfortControls_t
    {
        QCheckBox* indentWithBlanks = nullptr;
        QCheckBox* smartHomeEn = nullptr;
        QCheckBox* trimOnSaveEn = nullptr;
        QCheckBox* showBlanksEn = nullptr;
        QSpinBox* rulerColumn = nullptr;
        QCheckBox* marksFollowTextEn = nullptr;
        QCheckBox* keepMarksEn = nullptr;
    };
    void setComfort(const sEditorComfort_t& comfort);
    sEditorComfort_t comfort() const;

    QSpinBox* m_tabIndent = nullptr;
    QCheckBox* m_dynamicLineWrapEn = nullptr;
    QCheckBox* m_autoReturnIndentEn = nullptr;
    QCheckBox* m_textCompletionEn = nullptr;
    QSpinBox* m_textCompleterPrefixLength = nullptr;
    QSpinBox* m_textCompleterItemCount = nullptr;
    QCheckBox* m_highlightSelectionEn = nullptr;
    QCheckBox* m_reloadKeepsUndo = nullptr;
    MyColorSelector* m_cursorBgColor = nullptr;
    MyColorSelector* m_highlightBgColor = nullptr;
    QCheckBox* m_lineNumberEn = nullptr;
    QComboBox* m_memPageAddrEn = nullptr;
    MyColorSelector* m_leftMarginBgColor = nullptr;
    MyColorSelector* m_leftMarginFgColor = nullptr;
    MyColorSelector* m_simBreakpointSymbolColor = nullptr;
    MyColorSelector* m_simStartAddressSymbolColor = nullptr;
    MyColorSelector* m_bookmarkSymbolColor = nullptr;
    sComfortControls_t m_comfort;
    QFontComboBox* m_fontFamily = nullptr;
    QComboBox* m_fontSize = nullptr;
    MyFontTable* m_fontTable = nullptr;
    QFont m_stdFont; ///< keeps the properties that the two boxes do not show
};

} // namespace nsModEditor
