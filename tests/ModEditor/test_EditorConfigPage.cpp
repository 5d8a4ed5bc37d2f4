// The settings page of the editor, alone and as the dialog uses it.

#include "AppCfgOnDisk.h"
#include "ModalHelper.h"
#include "PageFixture.h"
#include "QtPrinters.h"

#include "EditorConfigPage.h"
#include "ModEditor.h"
#include "MyColorSelector.h"
#include "MyFontTable.h"

#include <QColorDialog>
#include <QFontComboBox>
#include <QHeaderView>
#include <QPointer>
#include <QStandardItemModel>

namespace {

using nsModEditor::EditorConfig;
using nsModEditor::EditorConfigPage;
using nsModEditor::ModEditor;

class EditorConfigPageTest : public PageFixture
{
protected:
    /// The page as the dialog gets it.
    EditorConfigPage* openPage()
    {
        page = dynamic_cast<EditorConfigPage*>(editor.configPage(0));
        editor.configPageSetConfig(page);
        show(page);
        table = page->findChild<MyFontTable*>();
        return page;
    }
    void closePage(bool accepted)
    {
        editor.configPageClose(accepted);
        EXPECT_TRUE(page.isNull());
    }
    QModelIndex cell(int row, int column) const { return table->model()->index(row, column); }
    void click(const QModelIndex& index)
    {
        area.ensureWidgetVisible(table);
        // The tick stands at the left of its cell.
        const QRect rect = table->visualRect(index);
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, QPoint(rect.left() + 12, rect.center().y()));
    }
    /// Answers the dialog that the action opens with a colour.
    template <class Action>
    void selectColor(const QColor& color, bool accept, Action action)
    {
        ModalHelper helper([&](QDialog* dialog) {
            auto* colors = qobject_cast<QColorDialog*>(dialog);
            ASSERT_NE(colors, nullptr);
            EXPECT_EQ(colors->windowTitle(), "Select color");
            colors->setCurrentColor(color);
            accept ? dialog->accept() : dialog->reject();
        });
        action();
        EXPECT_EQ(helper.seen(), 1);
    }

    ModEditor editor;
    QPointer<EditorConfigPage> page;
    MyFontTable* table = nullptr;
};

TEST_F(EditorConfigPageTest, FixedTexts)
{
    openPage();
    EXPECT_EQ(page->pageTitle(), "Editor");
    EXPECT_EQ(page->pageHelpRef(), "pageId://configPageEditor");
    EXPECT_FALSE(page->pageIcon().pixmap(48, 48).isNull());
    EXPECT_TRUE(page->checkConfig());
    EXPECT_TRUE(page->pageIsEnabled());
    page->setPrjConfigEnabled(false);
    EXPECT_TRUE(page->pageIsEnabled()) << "the settings are the user's, not the project's";
    const QStringList expected = {"Editor configuration",
                                  "Formating",
                                  "Tab indent:",
                                  "Dynamic word wrap:",
                                  "Auto return indent:",
                                  "Text completion",
                                  "Text completion enable:",
                                  "Text completion prefix length:",
                                  "Completion list proposal count:",
                                  "Highlighting",
                                  "Highlght selection enable:",
                                  "Cursor line background color:",
                                  "Line highlighting background color:",
                                  "Left margin",
                                  "Line numbers enable:",
                                  "Memory page addresses:",
                                  "Left margin background color:",
                                  "Left margin text color:",
                                  "Simulator breakpoint symbol color:",
                                  "Simulator start address symbol color:",
                                  "Bookmark symbol color:",
                                  "Fonts",
                                  "Font:",
                                  "Font size:"};
    QStringList shown;
    for (const QString& text : labels(page)) {
        if (expected.contains(text))
            shown.append(text);
    }
    shown.removeAll("Editor configuration");
    EXPECT_EQ(shown, expected.mid(1));
    EXPECT_TRUE(labels(page).contains("Editor configuration"));
    expectToolTips(page);
}

TEST_F(EditorConfigPageTest, TheTableHasARowForEachContext)
{
    openPage();
    ASSERT_EQ(table->model()->rowCount(), int(EditorConfig::fontContextCount));
    QStringList columns;
    for (int i = 0; i < table->model()->columnCount(); ++i)
        columns.append(table->model()->headerData(i, Qt::Horizontal).toString());
    EXPECT_EQ(columns, QStringList({"Font context", "Bold", "Italic"}));
    QStringList rows;
    for (int i = 0; i < table->model()->rowCount(); ++i)
        rows.append(cell(i, 0).data().toString());
    EXPECT_EQ(rows, QStringList({"Instruction", "Directive", "Hardware", "Hexadecimal", "Decimal number",
                                 "Octal number", "Binary number", "Comment", "Separator", "Label", "Documentation",
                                 "Navi command", "Attribute", "String", "Key words"}));
    EXPECT_EQ(cell(EditorConfig::fontCmd, 1).data(Qt::CheckStateRole).toInt(), Qt::Checked);
    EXPECT_EQ(cell(EditorConfig::fontComment, 1).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    EXPECT_EQ(cell(EditorConfig::fontHexNumber, 0).data(Qt::ForegroundRole).value<QBrush>().color(),
              QColor(Qt::darkMagenta));
    EXPECT_TRUE(cell(EditorConfig::fontCmd, 0).data(Qt::FontRole).value<QFont>().bold());
    for (int i = 0; i < table->model()->rowCount(); ++i)
        EXPECT_EQ(cell(i, 2).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
}

TEST_F(EditorConfigPageTest, AcceptingAnUntouchedPageChangesNothing)
{
    QStringList before;
    const auto all = [this] {
        QStringList values = {QString::number(editor.tabIndent), editor.stdFont.toString(), editor.cursorBgColor.name(),
                              QString::number(editor.memPageAddrEn)};
        for (const QTextCharFormat& format : editor.fontFormats)
            values << QString::number(format.fontWeight())
                   << QString::number(format.hasProperty(QTextFormat::FontWeight))
                   << format.foreground().color().name();
        return values;
    };
    editor.stdFont = QFont("A Font That Is Not Here", 13);
    before = all();
    openPage();
    closePage(true);
    EXPECT_EQ(all(), before);
}

TEST_F(EditorConfigPageTest, KeysAndMouseChangeEverySetting)
{
    openPage();
    type(field<QSpinBox>(page, "Tab indent:"), "8");
    type(field<QSpinBox>(page, "Text completion prefix length:"), "2");
    type(field<QSpinBox>(page, "Completion list proposal count:"), "17");
    for (const char* label : {"Dynamic word wrap:", "Auto return indent:", "Text completion enable:",
                              "Highlght selection enable:", "Line numbers enable:"}) {
        auto* box = field<QCheckBox>(page, label);
        ASSERT_NE(box, nullptr) << label;
        area.ensureWidgetVisible(box);
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(10, box->height() / 2));
    }
    choose(field<QComboBox>(page, "Memory page addresses:"), "Enable");
    choose(field<QComboBox>(page, "Font size:"), "14");
    int blue = 1;
    for (const char* label :
         {"Cursor line background color:", "Line highlighting background color:", "Left margin background color:",
          "Left margin text color:", "Simulator breakpoint symbol color:", "Simulator start address symbol color:",
          "Bookmark symbol color:"}) {
        auto* selector = field<MyColorSelector>(page, label);
        ASSERT_NE(selector, nullptr) << label;
        selectColor(QColor(10, 20, blue++), true, [&] { QTest::mouseClick(selector, Qt::LeftButton); });
    }
    EXPECT_EQ(editor.tabIndent, 4) << "not before the dialog is accepted";
    closePage(true);
    EXPECT_EQ(editor.tabIndent, 8);
    EXPECT_EQ(editor.textCompleterPrefixLength, 2);
    EXPECT_EQ(editor.textCompleterItemCount, 17);
    EXPECT_TRUE(editor.dynamicLineWrapEn);
    EXPECT_FALSE(editor.autoReturnIndentEn);
    EXPECT_FALSE(editor.textCompletionEn);
    EXPECT_FALSE(editor.highlightSelectionEn);
    EXPECT_FALSE(editor.lineNumberEn);
    EXPECT_EQ(editor.memPageAddrEn, 1);
    EXPECT_EQ(editor.stdFont.pointSize(), 14);
    EXPECT_EQ(editor.stdFont.family(), "DejaVu Sans Mono");
    EXPECT_EQ(editor.cursorBgColor, QColor(10, 20, 1));
    EXPECT_EQ(editor.highlightBgColor, QColor(10, 20, 2));
    EXPECT_EQ(editor.leftMarginBgColor, QColor(10, 20, 3));
    EXPECT_EQ(editor.leftMarginFgColor, QColor(10, 20, 4));
    EXPECT_EQ(editor.simBreakpointSymbolColor, QColor(10, 20, 5));
    EXPECT_EQ(editor.simStartAddressSymbolColor, QColor(10, 20, 6));
    EXPECT_EQ(editor.bookmarkSymbolColor, QColor(10, 20, 7));
}

TEST_F(EditorConfigPageTest, ChoosingAFamilyTakesThatFamilyAlone)
{
    editor.stdFont.setPointSize(13);
    openPage();
    EXPECT_EQ(field<QComboBox>(page, "Font size:")->currentText(), "13") << "a size that no list has";
    auto* family = page->findChild<QFontComboBox*>();
    family->setFocus();
    const QString before = family->currentFont().family();
    for (int i = 0; i < family->count() && family->currentFont().family() == before; ++i)
        QTest::keyClick(family, i == 0 ? Qt::Key_Home : Qt::Key_Down);
    const QString chosen = family->currentFont().family();
    closePage(true);
    EXPECT_EQ(editor.stdFont.family(), chosen);
    EXPECT_EQ(editor.stdFont.pointSize(), 13);
}

TEST_F(EditorConfigPageTest, TicksInTheTable)
{
    openPage();
    click(cell(EditorConfig::fontComment, MyFontTable::columnBold));
    click(cell(EditorConfig::fontComment, MyFontTable::columnItalic));
    click(cell(EditorConfig::fontCmd, MyFontTable::columnBold));
    EXPECT_TRUE(cell(EditorConfig::fontComment, 0).data(Qt::FontRole).value<QFont>().bold());
    EXPECT_TRUE(cell(EditorConfig::fontComment, 0).data(Qt::FontRole).value<QFont>().italic());
    // The same with keys: Space on the cell below.
    table->setFocus();
    table->setCurrentIndex(cell(EditorConfig::fontCmd, MyFontTable::columnItalic));
    QTest::keyClick(table, Qt::Key_Down);
    QTest::keyClick(table, Qt::Key_Space);
    closePage(true);
    EXPECT_EQ(editor.fontFormats[EditorConfig::fontComment].fontWeight(), int(QFont::Bold));
    EXPECT_TRUE(editor.fontFormats[EditorConfig::fontComment].fontItalic());
    EXPECT_EQ(editor.fontFormats[EditorConfig::fontCmd].fontWeight(), 0);
    EXPECT_TRUE(editor.fontFormats[EditorConfig::fontDirective].fontItalic());
    EXPECT_FALSE(editor.fontFormats[EditorConfig::fontCmd].fontItalic());
}

TEST_F(EditorConfigPageTest, ColoursInTheTable)
{
    openPage();
    const QModelIndex hex = cell(EditorConfig::fontHexNumber, 0);
    const QModelIndex label = cell(EditorConfig::fontLabel, 0);
    selectColor(QColor(1, 2, 3), true, [&] { click(hex); });
    EXPECT_EQ(hex.data(Qt::ForegroundRole).value<QBrush>().color(), QColor(1, 2, 3));
    selectColor(QColor(4, 5, 6), false, [&] { click(label); });
    EXPECT_EQ(label.data(Qt::ForegroundRole).value<QBrush>().color(), QColor(Qt::black));
    table->setFocus();
    table->setCurrentIndex(label);
    selectColor(QColor(7, 8, 9), true, [&] { QTest::keyClick(table, Qt::Key_Return); });
    closePage(true);
    EXPECT_EQ(editor.fontFormats[EditorConfig::fontHexNumber].foreground().color(), QColor(1, 2, 3));
    EXPECT_EQ(editor.fontFormats[EditorConfig::fontLabel].foreground().color(), QColor(7, 8, 9));
    EXPECT_EQ(editor.fontFormats[EditorConfig::fontLabel].fontWeight(), int(QFont::Bold));
}

TEST_F(EditorConfigPageTest, TheTableIsOneStepOfTheTabOrderAndDoesNotScroll)
{
    openPage();
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Tab);
    EXPECT_FALSE(table->hasFocus());
    const QRect last = table->visualRect(cell(EditorConfig::fontContextCount - 1, MyFontTable::columnItalic));
    EXPECT_TRUE(table->viewport()->rect().contains(last));
}

TEST_F(EditorConfigPageTest, CancelRestoreAndDefaults)
{
    editor.tabIndent = 6;
    openPage();
    auto* indent = field<QSpinBox>(page, "Tab indent:");
    type(indent, "8");
    editor.configPageSetConfig(page);
    EXPECT_EQ(indent->value(), 6);
    click(cell(EditorConfig::fontCmd, MyFontTable::columnBold));
    page->setDefaultConfig();
    EXPECT_EQ(indent->value(), 4);
    EXPECT_EQ(cell(EditorConfig::fontCmd, 1).data(Qt::CheckStateRole).toInt(), Qt::Checked);
    type(indent, "9");
    closePage(false);
    EXPECT_EQ(editor.tabIndent, 6);
    editor.configPageClose(true);
    EXPECT_EQ(editor.tabIndent, 6);
}

TEST_F(EditorConfigPageTest, TheSettingsSurviveARestart)
{
    AppCfgOnDisk disk;
    disk.start(&editor);
    openPage();
    type(field<QSpinBox>(page, "Tab indent:"), "8");
    choose(field<QComboBox>(page, "Memory page addresses:"), "Disable");
    click(cell(EditorConfig::fontComment, MyFontTable::columnItalic));
    selectColor(QColor(1, 2, 3), true, [&] { click(cell(EditorConfig::fontHexNumber, 0)); });
    closePage(true);
    disk.save();
    disk.end(&editor);
    EXPECT_EQ(disk.stored("ModEditor/tabIndent"), "8");
    EXPECT_EQ(disk.stored("ModEditor/memPageAddrEn"), "0");
    EXPECT_EQ(disk.stored("ModEditor/font/comment/italic"), "1");
    EXPECT_EQ(disk.stored("ModEditor/font/comment/weight"), "50");

    ModEditor next;
    disk.start(&next);
    EXPECT_EQ(next.tabIndent, 8);
    EXPECT_EQ(next.memPageAddrEn, 0);
    EXPECT_TRUE(next.fontFormats[EditorConfig::fontComment].fontItalic());
    EXPECT_EQ(next.fontFormats[EditorConfig::fontHexNumber].foreground().color(), QColor(1, 2, 3));
    disk.end(&next);
}

TEST_F(EditorConfigPageTest, Pictures)
{
    openPage();
    screenshot("configPageEditor1");
    pages.resize(720, page->sizeHint().height());
    screenshot("configPageEditorWhole");
}

} // namespace
