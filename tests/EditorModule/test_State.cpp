// Actions and their state, settings, the project's memory of documents, marks in all documents.

#include "EditorModuleTest.h"

#include "EditorMemPageAddrMap.h"
#include "EditorStatusBar.h"

using nsModEditor::EditorConfig;
using nsModEditor::EditorWidget;

namespace {

using State = EditorModuleTest;

TEST_F(State, withoutAProjectEverythingIsOff)
{
    prj.path.clear();
    editor.prjClose();
    for (const auto actionClass : {ModActionHookIf::eActionClassFile, ModActionHookIf::eActionClassEdit,
                                   ModActionHookIf::eActionClassSimulator}) {
        for (const QAction* entry : editor.menuActions(actionClass)) {
            // Lost texts can be looked at at any time.
            EXPECT_EQ(!entry->isSeparator() && entry->menu() == nullptr && entry->isEnabled(),
                      entry->text() == "Recover text...")
                << entry->text().toStdString();
        }
    }
}

TEST_F(State, withAProjectAndNoDocumentOnlyNewAndOpenAreOn)
{
    EXPECT_TRUE(enabled("New..."));
    EXPECT_TRUE(enabled("Open..."));
    for (const char* text : {"Save all", "Save", "Save as...", "Reload all", "Reload", "Print...", "Close", "Close all",
                             "Close all other documents"})
        EXPECT_FALSE(enabled(text)) << text;
}

TEST_F(State, aDocumentTurnsItsActionsOn)
{
    EditorWidget* a = open("a.psm");
    focus(a);
    for (const char* text : {"Save all", "Save", "Save as...", "Reload all", "Reload", "Print...", "Close", "Close all"})
        EXPECT_TRUE(enabled(text)) << text;
    EXPECT_FALSE(enabled("Close all other documents"));
    open("b.psm");
    focus(a);
    EXPECT_TRUE(enabled("Close all other documents"));
    EXPECT_TRUE(clipboard.enabled & ModClipboardHookIf::eClipboardFeaturePaste);
}

TEST_F(State, closingTheLastDocumentTurnsThemOffAgain)
{
    focus(open("a.psm"));
    editor.closeFile();
    editor.setFocus(ModGuiHookIf::eLocationTabs, nullptr, nullptr);
    for (const char* text : {"Save all", "Reload all", "Close all", "Save"})
        EXPECT_FALSE(enabled(text)) << text;
    EXPECT_TRUE(enabled("New..."));
}

TEST_F(State, undoFollowsTheDocument)
{
    EditorWidget* widget = open("a.psm", "NOP");
    focus(widget);
    QAction* undo = action(ModActionHookIf::eActionClassEdit, "Undo...");
    EXPECT_FALSE(undo->isEnabled());
    type(widget, "X");
    EXPECT_TRUE(undo->isEnabled());
    EXPECT_FALSE(gui.widgets.value(widget).icon.isNull());
    undo->trigger();
    EXPECT_EQ(widget->toPlainText(), "NOP");
}

TEST_F(State, selectionTurnsCutAndCopyOn)
{
    EditorWidget* widget = open("a.psm", "NOP");
    focus(widget);
    const int cutAndCopy = ModClipboardHookIf::eClipboardFeatureCut | ModClipboardHookIf::eClipboardFeatureCopy;
    EXPECT_EQ(clipboard.enabled & cutAndCopy, 0);
    widget->selectAll();
    EXPECT_EQ(clipboard.enabled & cutAndCopy, cutAndCopy);
}

TEST_F(State, settingsRoundTripEveryKey)
{
    editor.wrAppCfg();
    const QStringList keys = cfg.tree.values.keys();
    EXPECT_EQ(keys.size(), 17 + 3 * EditorConfig::fontContextCount);
    for (const char* key : {"ModEditor/tabIndent", "ModEditor/memPageAddrEn", "ModEditor/stdFont",
                               "ModEditor/font/cmd/weight", "ModEditor/font/keyWords/color", "ModEditor/font/doc/italic"})
        EXPECT_TRUE(keys.contains(key)) << key;
    editor.tabIndent = 8;
    editor.memPageAddrEn = 1;
    editor.cursorBgColor = QColor("#123456");
    editor.fontFormats[EditorConfig::fontComment].setFontItalic(true);
    editor.fontFormats[EditorConfig::fontComment].setForeground(QColor("#654321"));
    editor.wrAppCfg();
    static_cast<EditorConfig&>(editor) = EditorConfig();
    editor.rdAppCfg();
    EXPECT_EQ(editor.tabIndent, 8);
    EXPECT_EQ(editor.memPageAddrEn, 1);
    EXPECT_EQ(editor.cursorBgColor, QColor("#123456"));
    EXPECT_TRUE(editor.fontFormats[EditorConfig::fontComment].fontItalic());
    EXPECT_EQ(editor.fontFormats[EditorConfig::fontComment].foreground().color(), QColor("#654321"));
}

TEST_F(State, defaultsOfANewUser)
{
    const EditorConfig config;
    EXPECT_EQ(config.tabIndent, 4);
    EXPECT_FALSE(config.dynamicLineWrapEn);
    EXPECT_TRUE(config.lineNumberEn);
    EXPECT_TRUE(config.autoReturnIndentEn);
    EXPECT_EQ(config.textCompleterPrefixLength, 3);
    EXPECT_EQ(config.textCompleterItemCount, 10);
    EXPECT_EQ(config.memPageAddrEn, 2);
    EXPECT_EQ(config.cursorBgColor, QColor(0xE3EBF3));
    EXPECT_EQ(config.stdFont.family(), "DejaVu Sans Mono");
    EXPECT_EQ(config.stdFont.pointSize(), 9);
    EXPECT_EQ(config.formatOfRule(ModEditorHookIf::eHighlightRuleBinNumber)->foreground().color(), QColor(0xF56D05));
    EXPECT_EQ(config.formatOfRule(ModEditorHookIf::eHighlightRuleCmd)->fontWeight(), 75);
}

TEST_F(State, weightOfANormalFontIsStoredAs50)
{
    editor.wrAppCfg();
    EXPECT_EQ(cfg.value("ModEditor/font/comment/weight", 0), 50);
    editor.rdAppCfg();
    EXPECT_EQ(editor.fontFormats[EditorConfig::fontComment].fontWeight(), 0);
}

TEST_F(State, projectRemembersItsDocumentsAndTheCursor)
{
    open("a.psm", "0\n1\n2\n");
    open("b.psm", "0\n1\n2\n");
    editor.newFile(QString());
    focus(document("a.psm"));
    document("a.psm")->setCursorPos(3);
    editor.prjSave();
    EXPECT_EQ(prj.value("ModEditor/openFiles", QStringList()), QStringList({"b.psm", "a.psm"}));
    EXPECT_EQ(prj.value("ModEditor/lastFile", QString()), "a.psm");
    EXPECT_EQ(prj.value("ModEditor/lastCursorPos", 0), 3);

    editor.prjClose();
    editor.prjOpen();
    EXPECT_EQ(editor.editorWidgets().size(), 2);
    EXPECT_EQ(gui.currentWidget(ModGuiHookIf::eLocationTabs), document("a.psm"));
    EXPECT_EQ(document("a.psm")->cursorPos(), 3);
}

TEST_F(State, vanishedDocumentIsReportedAndTheOthersOpen)
{
    editor.prjClose();
    write("b.psm", "NOP");
    prj.setValue("ModEditor/openFiles", QStringList({"gone.psm", "b.psm"}));
    editor.prjOpen();
    EXPECT_EQ(msg.errors(), QStringList({"File does not exist: " + path("gone.psm")}));
    EXPECT_NE(document("b.psm"), nullptr);
}

TEST_F(State, tabIndentOfTheProjectWinsOverThatOfTheUser)
{
    editor.prjClose();
    prj.setValue("ModEditor/tabIndent", 2);
    editor.prjOpen();
    EXPECT_EQ(editor.tabIndent, 2);
}

TEST_F(State, cursorLineTellsWhatIsMissing)
{
    QString file;
    int line = 0;
    EXPECT_FALSE(editor.cursorLine(&file, &line));
    EXPECT_EQ(msg.errors().last(), "Please select a text file to get the cursor line!");
    editor.newFile("text");
    EXPECT_FALSE(editor.cursorLine(&file, &line));
    EXPECT_EQ(msg.errors().last(), "The current text file is not saved!");
    open("a.psm", "0\n1\n")->setCursorToLine(1);
    EXPECT_TRUE(editor.cursorLine(&file, &line));
    EXPECT_EQ(file, path("a.psm"));
    EXPECT_EQ(line, 1);
}

TEST_F(State, breakpointsOfAllDocumentsByPath)
{
    open("a.psm", "0\n1\n2\n")->setSimBreakpoint(2);
    open("b.psm");
    editor.newFile("untitled");
    const QMap<QString, QList<int>> breakpoints = editor.simBreakpoints();
    EXPECT_EQ(breakpoints.keys(), QStringList({path("a.psm"), path("b.psm")}));
    EXPECT_EQ(breakpoints.value(path("a.psm")), QList<int>({2}));
    EXPECT_TRUE(breakpoints.value(path("b.psm")).isEmpty());
}

TEST_F(State, changedFlagOfBreakpointsStays)
{
    EXPECT_FALSE(editor.simBreakpointsChanged());
    open("a.psm")->setSimBreakpoint(0);
    EXPECT_TRUE(editor.simBreakpointsChanged());
    EXPECT_TRUE(editor.simBreakpointsChanged());
    editor.prjClose();
    EXPECT_TRUE(editor.simBreakpointsChanged());
}

TEST_F(State, startMarkStandsInOneDocumentOnly)
{
    EditorWidget* a = open("a.psm", "0\n1\n");
    EditorWidget* b = open("b.psm", "0\n1\n");
    QString file;
    int line = 0;
    EXPECT_FALSE(editor.simStartPointer(&file, &line));
    a->setSimStartPointer(1);
    b->setSimStartPointer(0);
    EXPECT_TRUE(editor.simStartPointer(&file, &line));
    EXPECT_EQ(file, path("b.psm"));
    EXPECT_EQ(line, 0);
    action(ModActionHookIf::eActionClassSimulator, "Set simulator start address to zero")->trigger();
    EXPECT_FALSE(editor.simStartPointer(&file, &line));
}

TEST_F(State, addressMapReachesTheDocumentsAndDiesWithTheProject)
{
    open("a.psm", "NOP\n");
    QStringList files = {path("a.psm")};
    auto* map = new nsModEditor::EditorMemPageAddrMap(&files);
    map->addItem(0, 0, 0x12);
    editor.setMemPageAddrMap(map);
    document("a.psm")->setMemPageAddrEn(true);
    document("a.psm")->grab();
    editor.prjClose();
}

TEST_F(State, unknownHighlightingRuleIsAnInternalError)
{
    editor.configHighlighterAddRegExp(ModEditorHookIf::eHighlightRule_t(99), QRegExp("x"));
    EXPECT_EQ(msg.errors(), QStringList({"Internal error: Can not resolf TextCharFormat for HighlightingRule!"}));
}

TEST_F(State, completionListIsSortedAndCanBeEmptied)
{
    QStringList words = {"b", "a", "C"};
    editor.setTextCompletionList(words);
    words.clear();
    editor.setTextCompletionList(words);
}

} // namespace
