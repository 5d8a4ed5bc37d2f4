// Actions and their state, settings, the project's memory of documents, marks in all documents.

#include "EditorModuleTest.h"

#include "EditorMemPageAddrMap.h"
#include "EditorStatusBar.h"
#include "EditorWidgetLeftMargin.h"
#include "ModEditorPluginIf.h"

#include <QCompleter>
#include <QStringListModel>
#include <QTextBlock>

#include <limits>

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
    for (const char* text :
         {"Save all", "Save", "Save as...", "Reload all", "Reload", "Print...", "Close", "Close all"})
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
    // What the window sends when its centre has become empty: there is no area that no page stands in.
    editor.setFocus(ModGuiHookIf::eLocationNone, nullptr, nullptr);
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
    EXPECT_EQ(keys.size(), 25 + 3 * EditorConfig::fontContextCount);
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

TEST_F(State, revisionOfBreakpointsGoesWithEachChangeOfThem)
{
    open("b.psm", "0\n1\n2\n");
    auto* widget = open("a.psm", "0\n1\n2\n");
    QMap<QString, QList<int>> known = editor.simBreakpoints();
    int revision = editor.simBreakpointsRevision();
    const auto isNoticed = [&] {
        const bool isOther = editor.simBreakpoints() != known;
        const bool isTold = editor.simBreakpointsRevision() != revision;
        known = editor.simBreakpoints();
        revision = editor.simBreakpointsRevision();
        return isOther && isTold;
    };
    widget->setSimBreakpoint(2);
    EXPECT_TRUE(isNoticed());
    widget->setSimBreakpoint(2);
    EXPECT_TRUE(isNoticed());
    widget->setSimBreakpoint(1);
    EXPECT_TRUE(isNoticed());
    ASSERT_TRUE(editor.saveFileAs(path("c.psm")));
    EXPECT_TRUE(isNoticed());
    emit widget->clearAllBreakpoints();
    EXPECT_TRUE(isNoticed());
    widget->setSimBreakpoint(0);
    EXPECT_TRUE(isNoticed());
    editor.closeFile();
    EXPECT_TRUE(isNoticed());
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

/// Pixels of the margin's address column that are not of its ground: how much stands in the first line.
int inkOfAddress(EditorWidget* widget)
{
    widget->resize(500, 300);
    const QImage image = widget->leftMargin()->grab().toImage();
    const QColor ground = image.pixelColor(1, image.height() - 1);
    int ink = 0;
    for (int x = widget->symbolMarginWidth() + 1; x < widget->symbolMarginWidth() + widget->memPageAddrMarginWidth();
         ++x) {
        for (int y = 0; y < widget->fontMetrics().height(); ++y)
            ink += image.pixelColor(x, y) != ground ? 1 : 0;
    }
    return ink;
}

TEST_F(State, addressMapReachesTheDocumentsAndDiesWithTheProject)
{
    editor.memPageAddrEn = EditorConfig::memPageAddrOn;
    editor.lineNumberEn = false;
    EditorWidget* first = open("a.psm", "NOP\n");
    EditorWidget* second = open("b.psm", "NOP\n");
    EditorWidget* stranger = open("c.psm", "NOP\n");
    const int width = stranger->memPageAddrMarginWidth();
    ASSERT_GT(width, 0);
    QStringList files = {path("a.psm"), path("b.psm")};
    auto* map = new nsModEditor::EditorMemPageAddrMap(&files);
    ASSERT_TRUE(map->addItem(0, 0, 0x12));
    ASSERT_TRUE(map->addItem(1, 0, 0x34));
    EXPECT_EQ(inkOfAddress(first), 0);
    editor.setMemPageAddrMap(map);
    EXPECT_GT(inkOfAddress(first), 0);
    EXPECT_GT(inkOfAddress(second), 0);
    EXPECT_EQ(inkOfAddress(stranger), 0);
    EXPECT_EQ(stranger->memPageAddrMarginWidth(), width);
    // A line more in one of them makes the addresses of all stale.
    EXPECT_TRUE(map->valid);
    type(second, "x");
    EXPECT_TRUE(map->valid);
    QTest::keyClick(second, Qt::Key_Return);
    EXPECT_FALSE(map->valid);
    second->clearModified();

    editor.setMemPageAddrMap(nullptr);
    EXPECT_EQ(inkOfAddress(first), 0);
    EXPECT_EQ(inkOfAddress(second), 0);
    editor.prjClose();
    EXPECT_TRUE(editor.editorWidgets().isEmpty());
}

TEST_F(State, aDocumentOpenedAfterTheRunHasNoAddressesUntilTheNext)
{
    editor.memPageAddrEn = EditorConfig::memPageAddrOn;
    editor.lineNumberEn = false;
    write("late.psm", "NOP\n");
    const auto map = [this] {
        QStringList files = {path("late.psm")};
        auto* made = new nsModEditor::EditorMemPageAddrMap(&files);
        EXPECT_TRUE(made->addItem(0, 0, 0x12));
        return made;
    };
    editor.setMemPageAddrMap(map());
    EXPECT_TRUE(editor.openFile(path("late.psm")));
    EditorWidget* late = document("late.psm");
    ASSERT_NE(late, nullptr);
    EXPECT_GT(late->memPageAddrMarginWidth(), 0);
    EXPECT_EQ(inkOfAddress(late), 0);
    editor.setMemPageAddrMap(map());
    EXPECT_GT(inkOfAddress(late), 0);
}

TEST_F(State, theAddressColumnFollowsSettingAndSimulator)
{
    EditorWidget* widget = open("a.psm", "NOP\n");
    const auto shown = [&](int setting, bool simulator) {
        editor.memPageAddrEn = setting;
        editor.simEn(simulator);
        return widget->memPageAddrMarginWidth() > 0;
    };
    EXPECT_FALSE(shown(EditorConfig::memPageAddrOff, false));
    EXPECT_FALSE(shown(EditorConfig::memPageAddrOff, true));
    EXPECT_TRUE(shown(EditorConfig::memPageAddrOn, false));
    EXPECT_TRUE(shown(EditorConfig::memPageAddrOn, true));
    EXPECT_FALSE(shown(EditorConfig::memPageAddrSimOnly, false));
    EXPECT_TRUE(shown(EditorConfig::memPageAddrSimOnly, true));
}

TEST_F(State, theSettingsReachTheDocuments)
{
    EditorWidget* widget = open("a.psm", "  word word\n");
    QTextCursor word = widget->textCursor();
    word.setPosition(2);
    word.setPosition(6, QTextCursor::KeepAnchor);
    const auto marks = [widget] {
        int count = 0;
        for (const QTextLayout::FormatRange& range : widget->document()->firstBlock().layout()->formats())
            count += range.format.background().color() == QColor(Qt::yellow) ? 1 : 0;
        return count;
    };
    for (const bool on : {true, false, true}) {
        SCOPED_TRACE(on);
        editor.dynamicLineWrapEn = on;
        editor.lineNumberEn = on;
        editor.autoReturnIndentEn = on;
        editor.highlightSelectionEn = on;
        editor.textCompleterItemCount = on ? 7 : 8;
        editor.setTabIndent(on ? 3 : 5);
        EXPECT_EQ(widget->lineWrapMode(), on ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
        EXPECT_EQ(widget->lineNumberMarginWidth() > 0, on);
        EXPECT_EQ(widget->findChild<QCompleter*>()->maxVisibleItems(), on ? 7 : 8);
        EXPECT_EQ(widget->tabStopDistance(), QFontMetricsF(widget->font()).horizontalAdvance(QString(on ? 3 : 5, 'x')));
        widget->setTextCursor(word);
        EXPECT_EQ(marks(), on ? 2 : 0);
        widget->moveCursor(QTextCursor::EndOfBlock);
        EXPECT_EQ(marks(), 0);
        QTest::keyClick(widget, Qt::Key_Return);
        EXPECT_EQ(widget->textCursor().positionInBlock(), on ? 2 : 0);
        widget->undo();
    }
}

TEST_F(State, changedRulesReachTheDocumentsWithTheNextSettings)
{
    EditorWidget* widget = open("a.psm", "LOAD\n");
    editor.configHighlighterAddRegExp(ModEditorHookIf::eHighlightRuleCmd, QRegExp("\\bLOAD\\b"));
    EXPECT_TRUE(widget->document()->firstBlock().layout()->formats().isEmpty());
    editor.setTabIndent(4);
    EXPECT_FALSE(widget->document()->firstBlock().layout()->formats().isEmpty());
    editor.clearHighlighter();
    editor.setTabIndent(4);
    EXPECT_TRUE(widget->document()->firstBlock().layout()->formats().isEmpty());
}

TEST_F(State, theZoomOutlivesSimulatorAndSettings)
{
    EditorWidget* widget = open("a.psm");
    EditorWidget* other = open("b.psm");
    focus(widget);
    const QPointF at(widget->viewport()->rect().center());
    for (int step = 0; step < 4; ++step) {
        QWheelEvent wheel(at, widget->viewport()->mapToGlobal(at.toPoint()), QPoint(), QPoint(0, 120), Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget->viewport(), &wheel);
    }
    EXPECT_EQ(widget->fontSize(), 13);
    editor.simEn(true);
    EXPECT_EQ(widget->fontSize(), 13);
    editor.setTabIndent(5);
    editor.rdAppCfg();
    EXPECT_EQ(widget->fontSize(), 13);
    EXPECT_EQ(other->fontSize(), 9);
    QAction* reset = action(ModActionHookIf::eActionClassEdit, "Reset zoom");
    ASSERT_NE(reset, nullptr);
    EXPECT_TRUE(reset->isEnabled());
    EXPECT_EQ(reset->shortcut(), QKeySequence("Ctrl+0"));
    reset->trigger();
    EXPECT_EQ(widget->fontSize(), 9);
}

TEST_F(State, numbersOutOfRangeAreCut)
{
    const auto read = [this](const QString& key, int value) {
        cfg.tree.set(key, value);
        editor.rdAppCfg();
    };
    const int max = std::numeric_limits<int>::max();
    const int min = std::numeric_limits<int>::min();
    for (const int value : {max, 20000000, min, -1, 0}) {
        SCOPED_TRACE(value);
        read("ModEditor/tabIndent", value);
        EXPECT_EQ(editor.tabIndent, value > 0 ? EditorConfig::maxTabIndent : 1);
        read("ModEditor/textCompleterPrefixLength", value);
        EXPECT_EQ(editor.textCompleterPrefixLength, value > 0 ? EditorConfig::maxPrefixLength : 1);
        read("ModEditor/textCompleterItemCount", value);
        EXPECT_EQ(editor.textCompleterItemCount, value > 0 ? EditorConfig::maxItemCount : 1);
        read("ModEditor/memPageAddrEn", value);
        EXPECT_EQ(editor.memPageAddrEn, value == 0 ? 0 : int(EditorConfig::memPageAddrSimOnly));
        cfg.tree.set("ModEditor/memPageAddrEn", 2);
        read("ModEditor/font/cmd/weight", value);
        EXPECT_GE(editor.formatOfRule(ModEditorHookIf::eHighlightRuleCmd)->fontWeight(), 0);
        EXPECT_LE(editor.formatOfRule(ModEditorHookIf::eHighlightRuleCmd)->fontWeight(), 99);
        prj.tree.set("ModEditor/tabIndent", value);
        editor.prjOpen();
        EXPECT_EQ(editor.tabIndent, value > 0 ? EditorConfig::maxTabIndent : 1);
        editor.setTabIndent(value);
        EXPECT_EQ(editor.tabIndent, value > 0 ? EditorConfig::maxTabIndent : 1);
        EditorWidget* widget = open("a.psm", "one\ntwo");
        editor.setCursorToLine(QUrl(widget->filePath() + '#' + QString::number(value)));
        EXPECT_EQ(widget->cursorLine(), value > 0 ? 1 : 0);
        editor.setLineHighlighted(widget->filePath(), value);
        EXPECT_EQ(widget->cursorLine(), value > 0 ? 1 : 0);
    }
    cfg.tree.set("ModEditor/stdFont", QString("DejaVu Sans Mono,20000000,-1,7,50,0,0,0,0,0"));
    editor.rdAppCfg();
    EXPECT_EQ(editor.stdFont.pointSize(), EditorConfig::maxFontSize);
    cfg.tree.set("ModEditor/stdFont", QString("DejaVu Sans Mono,-1,20000000,7,50,0,0,0,0,0"));
    editor.rdAppCfg();
    EXPECT_GE(editor.stdFont.pointSize(), EditorConfig::minFontSize);
    EXPECT_LE(editor.stdFont.pointSize(), EditorConfig::maxFontSize);
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
    // One list for all documents, whenever they were opened.
    auto* model = qobject_cast<QStringListModel*>(open("a.psm")->findChild<QCompleter*>()->model());
    ASSERT_NE(model, nullptr);
    EXPECT_EQ(open("b.psm")->findChild<QCompleter*>()->model(), model);
    EXPECT_EQ(model->stringList(), QStringList({"C", "a", "b"}));
    words = QStringList({"z", "y"});
    editor.setTextCompletionList(words);
    EXPECT_EQ(model->stringList(), QStringList({"y", "z"}));
    words.clear();
    editor.setTextCompletionList(words);
    EXPECT_EQ(model->rowCount(), 0);
}

template <class Plugin>
void checkStrangers(ModEditorHookIf* hook)
{
    Plugin known;
    Plugin stranger;
    stranger.modEditorHook = hook;
    hook->registerPlugin(static_cast<Plugin*>(nullptr));
    hook->unregisterPlugin(static_cast<Plugin*>(nullptr));
    hook->unregisterPlugin(&stranger);
    EXPECT_EQ(stranger.modEditorHook, hook) << "with nobody registered";
    hook->registerPlugin(&known);
    EXPECT_EQ(known.modEditorHook, hook);
    hook->registerPlugin(static_cast<Plugin*>(nullptr));
    hook->unregisterPlugin(static_cast<Plugin*>(nullptr));
    hook->unregisterPlugin(&stranger);
    EXPECT_EQ(stranger.modEditorHook, hook);
    EXPECT_EQ(known.modEditorHook, hook);
    hook->unregisterPlugin(&known);
    EXPECT_EQ(known.modEditorHook, nullptr);
    // It is a stranger from now on.
    known.modEditorHook = hook;
    hook->unregisterPlugin(&known);
    EXPECT_EQ(known.modEditorHook, hook);
}

TEST_F(State, nullAndStrangersThatLeaveChangeNothing)
{
    checkStrangers<ModEditorPluginIf>(&editor);
    checkStrangers<ModEditorPluginIfAssembler>(&editor);
    checkStrangers<ModEditorPluginIfSimulator>(&editor);
    editor.registerPlugin(static_cast<ModEditorPluginIfInterMod*>(nullptr));
    editor.unregisterPlugin(static_cast<ModEditorPluginIfInterMod*>(nullptr));
}

} // namespace
