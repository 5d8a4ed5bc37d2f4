#include "EditorConfigPage.h"

#include "Colors.h"
#include "MyColorSelector.h"
#include "MyFontTable.h"
#include "MyPageLayout.h"
#include "SchemeIcons.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontComboBox>
#include <QFontDatabase>
#include <QFontInfo>
#include <QSpinBox>

#include <algorithm>

namespace nsModEditor {

namespace {

/// Indexed by eFontContext_t.
QStringList fontContextNames()
{
    const auto tr = [](const char* text) { return EditorConfigPage::tr(text); };
    return {tr("Instruction"),   tr("Directive"),     tr("Hardware"),  tr("Hexadecimal"), tr("Decimal number"),
            tr("Octal number"),  tr("Binary number"), tr("Comment"),   tr("Separator"),   tr("Label"),
            tr("Documentation"), tr("Navi command"),  tr("Attribute"), tr("String"),      tr("Key words")};
}

} // namespace

EditorConfigPage::EditorConfigPage(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("configPage"));
    auto* layout = new MyPageLayout(this, tr("Editor configuration"));
    addFormating(layout);
    addTextCompletion(layout);
    addHighlighting(layout);
    addLeftMargin(layout);
    addFonts(layout);
    setDefaultConfig();
    connect(Colors::instance(), &Colors::changed, this, [this] {
        EditorConfig shown;
        config(&shown);
        setConfig(&shown);
    });
}

void EditorConfigPage::addFormating(MyPageLayout* layout)
{
    layout->addSection(tr("Formating"));
    m_tabIndent = addNumber(layout, "tabIndent", tr("Tab indent:"), tr("Width of a tab; an open project has its own"),
                            tr(" characters"), EditorConfig::maxTabIndent);
    m_dynamicLineWrapEn = addCheck(layout, "dynamicLineWrapEn", tr("Dynamic word wrap:"),
                                   tr("Lines longer than the window go on in the next row"));
    m_autoReturnIndentEn = addCheck(layout, "autoReturnIndentEn", tr("Auto return indent:"),
                                    tr("A new line starts below the start of the one before"));
    m_comfort.indentWithBlanks = addCheck(layout, "indentWithBlanks", tr("Indent with blanks:"),
                                          tr("Tab inserts blanks up to the next tab stop; Backspace removes them"));
    m_comfort.smartHomeEn =
        addCheck(layout, "smartHomeEn", tr("Home key to first word:"),
                 tr("The key Home goes to the first word of the line, and pressed again to its start"));
    m_comfort.trimOnSaveEn = addCheck(layout, "trimOnSaveEn", tr("Remove trailing blanks on save:"),
                                      tr("A save removes the blanks at the end of all lines"));
    m_comfort.showBlanksEn =
        addCheck(layout, "showBlanksEn", tr("Show blanks and tabs:"), tr("Each blank is a dot, each tab an arrow"));
    m_comfort.rulerColumn =
        addNumber(layout, "rulerColumn", tr("Ruler at column:"), tr("A line behind so many characters"),
                  tr(" characters"), sEditorComfort_t::maxRulerColumn);
    m_comfort.rulerColumn->setMinimum(0);
    m_comfort.rulerColumn->setSpecialValueText(tr("none"));
}

void EditorConfigPage::addTextCompletion(MyPageLayout* layout)
{
    layout->addSection(tr("Text completion"));
    m_textCompletionEn =
        addCheck(layout, "textCompletionEn", tr("Text completion enable:"),
                 tr("Off: the list of words does not come while you type, whatever the menu Edit says"));
    m_textCompleterPrefixLength = addNumber(layout, "textCompleterPrefixLength", tr("Text completion prefix length:"),
                                            tr("How many typed characters the list of words begins with"),
                                            tr(" characters"), EditorConfig::maxPrefixLength);
    m_textCompleterItemCount =
        addNumber(layout, "textCompleterItemCount", tr("Completion list proposal count:"),
                  tr("How many words of the list are seen at once"), QString(), EditorConfig::maxItemCount);
}

void EditorConfigPage::addHighlighting(MyPageLayout* layout)
{
    layout->addSection(tr("Highlighting"));
    m_highlightSelectionEn = addCheck(layout, "highlightSelectionEn", tr("Highlght selection enable:"),
                                      tr("All places of the selected word are marked"));
    m_reloadKeepsUndo =
        addCheck(layout, "reloadKeepsUndo", tr("Reload keeps undo:"),
                 tr("Reload becomes a step that can be undone; otherwise it forgets all steps and goes to the start"));
    m_cursorBgColor = addColor(layout, "cursorBgColor", tr("Cursor line background color:"));
    m_highlightBgColor = addColor(layout, "highlightBgColor", tr("Line highlighting background color:"));
}

void EditorConfigPage::addLeftMargin(MyPageLayout* layout)
{
    layout->addSection(tr("Left margin"));
    m_lineNumberEn =
        addCheck(layout, "lineNumberEn", tr("Line numbers enable:"), tr("The margin shows the numbers of the lines"));
    m_memPageAddrEn = new QComboBox(this);
    m_memPageAddrEn->setObjectName(QStringLiteral("memPageAddrEn"));
    m_memPageAddrEn->addItem(tr("Disable"), EditorConfig::memPageAddrOff);
    m_memPageAddrEn->addItem(tr("Enable"), EditorConfig::memPageAddrOn);
    m_memPageAddrEn->addItem(tr("Enable during simulation only"), EditorConfig::memPageAddrSimOnly);
    layout->addField(tr("Memory page addresses:"), m_memPageAddrEn,
                     tr("The margin shows the address of each instruction"));
    m_leftMarginBgColor = addColor(layout, "leftMarginBgColor", tr("Left margin background color:"));
    m_leftMarginFgColor = addColor(layout, "leftMarginFgColor", tr("Left margin text color:"));
    m_simBreakpointSymbolColor = addColor(layout, "simBreakpointSymbolColor", tr("Simulator breakpoint symbol color:"));
    m_simStartAddressSymbolColor =
        addColor(layout, "simStartAddressSymbolColor", tr("Simulator start address symbol color:"));
    m_bookmarkSymbolColor = addColor(layout, "bookmarkSymbolColor", tr("Bookmark symbol color:"));
    m_comfort.marksFollowTextEn =
        addCheck(layout, "marksFollowTextEn", tr("Marks move with the text:"),
                 tr("Breakpoints, bookmarks and the start mark stay on their text when lines come and go above"));
    m_comfort.keepMarksEn =
        addCheck(layout, "keepMarksEn", tr("Keep marks and zoom:"),
                 tr("Marks and zoom of the documents are there again when the project is opened the next time"));
}

void EditorConfigPage::addFonts(MyPageLayout* layout)
{
    layout->addSection(tr("Fonts"));
    m_fontFamily = new QFontComboBox(this);
    m_fontFamily->setObjectName(QStringLiteral("fontFamily"));
    m_fontFamily->setEditable(false);
    m_fontFamily->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    layout->addField(tr("Font:"), m_fontFamily, tr("Font of all text; one of fixed width keeps columns aligned"));
    m_fontSize = new QComboBox(this);
    m_fontSize->setObjectName(QStringLiteral("fontSize"));
    m_fontSize->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    layout->addField(tr("Font size:"), m_fontSize, tr("Size of all text in points"));
    m_fontTable = new MyFontTable(this);
    m_fontTable->setContexts(fontContextNames());
    layout->addWide(m_fontTable);
    connect(m_fontFamily, &QFontComboBox::currentFontChanged, this, &EditorConfigPage::hndlFontFamilySel);
    connect(m_fontSize, &QComboBox::currentTextChanged, this, &EditorConfigPage::hndlFontSizeSel);
}

QCheckBox* EditorConfigPage::addCheck(MyPageLayout* layout, const char* name, const QString& title,
                                      const QString& toolTip)
{
    auto* box = new QCheckBox(this);
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(title);
    layout->addField(title, box, toolTip);
    return box;
}

QSpinBox* EditorConfigPage::addNumber(MyPageLayout* layout, const char* name, const QString& title,
                                      const QString& toolTip, const QString& unit, int max)
{
    auto* box = new QSpinBox(this);
    box->setObjectName(QLatin1String(name));
    box->setRange(1, max);
    box->setSuffix(unit);
    box->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    layout->addField(title, box, toolTip);
    return box;
}

MyColorSelector* EditorConfigPage::addColor(MyPageLayout* layout, const char* name, const QString& title)
{
    auto* selector = new MyColorSelector(this);
    // The style sheet selects colour fields by this property.
    selector->setProperty("setting", QLatin1String(name));
    selector->setAccessibleName(title);
    layout->addField(title, selector);
    return selector;
}

void EditorConfigPage::setConfig(const EditorConfig* config)
{
    m_tabIndent->setValue(config->tabIndent);
    m_dynamicLineWrapEn->setChecked(config->dynamicLineWrapEn);
    m_autoReturnIndentEn->setChecked(config->autoReturnIndentEn);
    m_textCompletionEn->setChecked(config->textCompletionEn);
    m_textCompleterPrefixLength->setValue(config->textCompleterPrefixLength);
    m_textCompleterItemCount->setValue(config->textCompleterItemCount);
    m_highlightSelectionEn->setChecked(config->highlightSelectionEn);
    m_reloadKeepsUndo->setChecked(config->reloadKeepsUndo);
    m_cursorBgColor->setColor(Colors::shown(Colors::eEditorCursorLine, config->cursorBgColor));
    m_highlightBgColor->setColor(Colors::shown(Colors::eEditorFlaggedLine, config->highlightBgColor));
    m_lineNumberEn->setChecked(config->lineNumberEn);
    m_memPageAddrEn->setCurrentIndex(m_memPageAddrEn->findData(config->memPageAddrEn));
    m_leftMarginBgColor->setColor(Colors::shown(Colors::eMarginGround, config->leftMarginBgColor));
    m_leftMarginFgColor->setColor(Colors::shown(Colors::eMarginText, config->leftMarginFgColor));
    m_simBreakpointSymbolColor->setColor(Colors::shown(Colors::eMarkBreakpoint, config->simBreakpointSymbolColor));
    m_simStartAddressSymbolColor->setColor(Colors::shown(Colors::eMarkStart, config->simStartAddressSymbolColor));
    m_bookmarkSymbolColor->setColor(Colors::shown(Colors::eMarkBookmark, config->bookmarkSymbolColor));
    setComfort(config->comfort);

    // A family that is not installed is shown as its substitute, but stays in the settings.
    m_stdFont = config->stdFont;
    const QSignalBlocker familyBlocker(m_fontFamily);
    const QSignalBlocker sizeBlocker(m_fontSize);
    m_fontFamily->setCurrentFont(QFontInfo(m_stdFont).family());
    QList<int> sizes = QFontDatabase::standardSizes();
    sizes.append(QFontInfo(m_stdFont).pointSize());
    std::sort(sizes.begin(), sizes.end());
    sizes.erase(std::unique(sizes.begin(), sizes.end()), sizes.end());
    m_fontSize->clear();
    for (int size : qAsConst(sizes))
        m_fontSize->addItem(QString::number(size));
    m_fontSize->setCurrentText(QString::number(QFontInfo(m_stdFont).pointSize()));
    m_fontTable->setSampleFamily(m_stdFont.family());
    for (int i = 0; i < EditorConfig::fontContextCount; ++i)
        m_fontTable->setFormat(
            i, Colors::shown(EditorConfig::colorOf(EditorConfig::eFontContext_t(i)), config->fontFormats[i]));
}

void EditorConfigPage::setComfort(const sEditorComfort_t& comfort)
{
    m_comfort.indentWithBlanks->setChecked(comfort.indentWithBlanks);
    m_comfort.smartHomeEn->setChecked(comfort.smartHomeEn);
    m_comfort.trimOnSaveEn->setChecked(comfort.trimOnSaveEn);
    m_comfort.showBlanksEn->setChecked(comfort.showBlanksEn);
    m_comfort.rulerColumn->setValue(comfort.rulerColumn);
    m_comfort.marksFollowTextEn->setChecked(comfort.marksFollowTextEn);
    m_comfort.keepMarksEn->setChecked(comfort.keepMarksEn);
}

sEditorComfort_t EditorConfigPage::comfort() const
{
    sEditorComfort_t comfort;
    comfort.indentWithBlanks = m_comfort.indentWithBlanks->isChecked();
    comfort.smartHomeEn = m_comfort.smartHomeEn->isChecked();
    comfort.trimOnSaveEn = m_comfort.trimOnSaveEn->isChecked();
    comfort.showBlanksEn = m_comfort.showBlanksEn->isChecked();
    comfort.rulerColumn = m_comfort.rulerColumn->value();
    comfort.marksFollowTextEn = m_comfort.marksFollowTextEn->isChecked();
    comfort.keepMarksEn = m_comfort.keepMarksEn->isChecked();
    return comfort;
}

void EditorConfigPage::setTabIndent(int indent)
{
    m_tabIndent->setValue(indent);
}

void EditorConfigPage::config(EditorConfig* config) const
{
    config->tabIndent = m_tabIndent->value();
    config->dynamicLineWrapEn = m_dynamicLineWrapEn->isChecked();
    config->autoReturnIndentEn = m_autoReturnIndentEn->isChecked();
    config->textCompletionEn = m_textCompletionEn->isChecked();
    config->textCompleterPrefixLength = m_textCompleterPrefixLength->value();
    config->textCompleterItemCount = m_textCompleterItemCount->value();
    config->highlightSelectionEn = m_highlightSelectionEn->isChecked();
    config->reloadKeepsUndo = m_reloadKeepsUndo->isChecked();
    config->cursorBgColor = Colors::stored(Colors::eEditorCursorLine, m_cursorBgColor->color());
    config->highlightBgColor = Colors::stored(Colors::eEditorFlaggedLine, m_highlightBgColor->color());
    config->lineNumberEn = m_lineNumberEn->isChecked();
    if (m_memPageAddrEn->currentIndex() >= 0)
        config->memPageAddrEn = m_memPageAddrEn->currentData().toInt();
    config->leftMarginBgColor = Colors::stored(Colors::eMarginGround, m_leftMarginBgColor->color());
    config->leftMarginFgColor = Colors::stored(Colors::eMarginText, m_leftMarginFgColor->color());
    config->simBreakpointSymbolColor = Colors::stored(Colors::eMarkBreakpoint, m_simBreakpointSymbolColor->color());
    config->simStartAddressSymbolColor = Colors::stored(Colors::eMarkStart, m_simStartAddressSymbolColor->color());
    config->bookmarkSymbolColor = Colors::stored(Colors::eMarkBookmark, m_bookmarkSymbolColor->color());
    config->comfort = comfort();
    config->stdFont = m_stdFont;
    for (int i = 0; i < EditorConfig::fontContextCount; ++i)
        config->fontFormats[i] =
            Colors::stored(EditorConfig::colorOf(EditorConfig::eFontContext_t(i)), m_fontTable->format(i));
}

void EditorConfigPage::setDefaultConfig()
{
    const EditorConfig defaults;
    setConfig(&defaults);
}

QIcon EditorConfigPage::pageIcon()
{
    return SchemeIcons::of(QStringLiteral(":/ModEditor/img/configPage/configPageEditor.png"));
}

QString EditorConfigPage::pageTitle()
{
    return tr("Editor");
}

QString EditorConfigPage::pageHelpRef()
{
    return QStringLiteral("pageId://configPageEditor");
}

void EditorConfigPage::hndlFontFamilySel(const QFont& font)
{
    m_stdFont.setFamily(font.family());
    m_fontTable->setSampleFamily(font.family());
}

void EditorConfigPage::hndlFontSizeSel(const QString& size)
{
    const int points = size.toInt();
    if (points >= EditorConfig::minFontSize && points <= EditorConfig::maxFontSize)
        m_stdFont.setPointSize(points);
}

} // namespace nsModEditor
