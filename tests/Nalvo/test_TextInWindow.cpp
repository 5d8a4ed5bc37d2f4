// Comfort of the text in the whole window, by real keys: lines, columns, formatting, marks, searching in all sources,
// and what is there again when the project is opened the next time.

#include "MainWindowFixture.h"
#include "ModalHelper.h"

#include "AsmProject.h"
#include "EditorWidget.h"
#include "ModEditor.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"

#include <QAction>
#include <QCheckBox>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>

using nsModEditor::EditorWidget;

namespace {

class TextInWindow : public MainWindowFixture
{
protected:
    TextInWindow()
    {
        AsmProject project;
        project.sources = QStringList{"a.psm", "b.psm", "c.psm"};
        projectFile = writeFile("p.nalvo", project.text());
        writeFile("a.psm", "start:\n  load s0, 1\n  jump start\n");
        writeFile("b.psm", "; load and s0\nother: load s0, 2\n");
        writeFile("c.psm", QByteArray("nothing: JUMP nothing\n").repeated(200));
    }
    ~TextInWindow() override { forgetChanges(); }

    void forgetChanges()
    {
        if (window == nullptr)
            return;
        for (EditorWidget* widget : editor()->editorWidgets())
            widget->clearModified();
    }
    void openProject()
    {
        makeWindow();
        ASSERT_TRUE(module<nsModPrj::ModPrj>()->openPrj(projectFile));
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
    }
    /// Closes the program as its user does and starts it again.
    void startAgain()
    {
        forgetChanges();
        EXPECT_TRUE(module<nsModPrj::ModPrj>()->closePrj());
        EXPECT_TRUE(closeWindow());
        openProject();
    }
    nsModEditor::ModEditor* editor() const { return module<nsModEditor::ModEditor>(); }
    EditorWidget* current() const
    {
        return qobject_cast<EditorWidget*>(module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs));
    }
    EditorWidget* open(const QString& name)
    {
        EXPECT_TRUE(editor()->openFile(projectDir() + '/' + name));
        EditorWidget* widget = current();
        widget->setFocus();
        EXPECT_TRUE(QTest::qWaitFor([&] { return widget->hasFocus(); }, 60000));
        return widget;
    }
    EditorWidget* documentOf(const QString& name) const
    {
        for (EditorWidget* widget : editor()->editorWidgets()) {
            if (widget->filePath() == projectDir() + '/' + name)
                return widget;
        }
        return nullptr;
    }
    static void moveTo(EditorWidget* widget, int line, int column = 0)
    {
        QTextCursor cursor(widget->document()->findBlockByNumber(line));
        cursor.setPosition(cursor.position() + column);
        widget->setTextCursor(cursor);
    }
    template <class Widget>
    Widget* find(const char* name) const
    {
        auto* widget = window->findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), code, modifiers);
    }
    static QString line(EditorWidget* widget, int number)
    {
        return widget->document()->findBlockByNumber(number).text();
    }

    QString projectFile;
};

TEST_F(TextInWindow, commandsForLinesByTheirKeys)
{
    openProject();
    EditorWidget* widget = open("a.psm");
    const QString before = widget->toPlainText();
    moveTo(widget, 1, 4);
    key(Qt::Key_Slash, Qt::ControlModifier);
    EXPECT_EQ(line(widget, 1), QString("  ; load s0, 1"));
    key(Qt::Key_Slash, Qt::ControlModifier);
    EXPECT_EQ(widget->toPlainText(), before);
    key(Qt::Key_J, Qt::ControlModifier);
    EXPECT_EQ(line(widget, 1), QString("  load s0, 1 jump start"));
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(widget->toPlainText(), before);
    moveTo(widget, 1, 4);
    key(Qt::Key_U, Qt::ControlModifier);
    EXPECT_EQ(line(widget, 1), QString("  LOAD s0, 1"));
    key(Qt::Key_U, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(line(widget, 1), QString("  load s0, 1"));
    key(Qt::Key_K, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(line(widget, 1), QString("  jump start"));
}

TEST_F(TextInWindow, formatIsOneStepAndKeepsTheCursor)
{
    openProject();
    EditorWidget* widget = open("a.psm");
    const QString before = widget->toPlainText();
    moveTo(widget, 2, 3);
    key(Qt::Key_I, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(widget->toPlainText(), QString("start:\n        LOAD    s0, 1\n        JUMP    start\n"));
    EXPECT_EQ(widget->cursorLine(), 2);
    EXPECT_EQ(widget->textCursor().positionInBlock(), 3);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(widget->toPlainText(), before);
    EXPECT_FALSE(widget->isUndoAvailable());
    // Of a selection its lines only.
    moveTo(widget, 2, 1);
    key(Qt::Key_End, Qt::ShiftModifier);
    key(Qt::Key_I, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(widget->toPlainText(), QString("start:\n  load s0, 1\n        JUMP    start\n"));
}

TEST_F(TextInWindow, aColumnIsTypedIntoAndCutByTheWindowsKeys)
{
    openProject();
    EditorWidget* widget = open("a.psm");
    moveTo(widget, 1, 2);
    key(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    QTest::keyClicks(widget, ";");
    EXPECT_EQ(widget->toPlainText(), QString("start:\n  ;load s0, 1\n  ;jump start\n"));
    key(Qt::Key_Left, Qt::AltModifier | Qt::ShiftModifier);
    screenshot("editor-column");
    key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(widget->toPlainText(), QString("start:\n  load s0, 1\n  jump start\n"));
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(widget->toPlainText(), QString("start:\n  ;load s0, 1\n  ;jump start\n"));
    key(Qt::Key_Z, Qt::ControlModifier);
    key(Qt::Key_Z, Qt::ControlModifier);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(widget->isModified());
}

TEST_F(TextInWindow, goToLineByItsKey)
{
    openProject();
    EditorWidget* widget = open("c.psm");
    key(Qt::Key_G, Qt::ControlModifier);
    auto* field = find<QLineEdit>("editGotoLine");
    ASSERT_NE(field, nullptr);
    EXPECT_TRUE(field->hasFocus());
    QTest::keyClicks(field, "150");
    screenshot("editor-goto-line");
    key(Qt::Key_Return);
    EXPECT_EQ(widget->cursorLine(), 149);
    EXPECT_TRUE(widget->hasFocus());
}

TEST_F(TextInWindow, closingADocumentWithItsFieldForTheLineOpen)
{
    openProject();
    open("c.psm");
    key(Qt::Key_G, Qt::ControlModifier);
    editor()->closeFile();
    QApplication::processEvents();
    EXPECT_EQ(documentOf("c.psm"), nullptr);
}

TEST_F(TextInWindow, bookmarksByKeysThroughAllDocuments)
{
    openProject();
    EditorWidget* a = open("a.psm");
    moveTo(a, 1);
    key(Qt::Key_M, Qt::ControlModifier);
    EXPECT_EQ(a->bookmarks(), QList<int>{1});
    EditorWidget* c = open("c.psm");
    for (const int number : {100, 10}) {
        moveTo(c, number);
        key(Qt::Key_M, Qt::ControlModifier);
    }
    moveTo(c, 50);
    key(Qt::Key_Period, Qt::ControlModifier);
    EXPECT_EQ(c->cursorLine(), 100);
    key(Qt::Key_Period, Qt::ControlModifier);
    EXPECT_EQ(current(), a);
    EXPECT_EQ(a->cursorLine(), 1);
    key(Qt::Key_Period, Qt::ControlModifier);
    EXPECT_EQ(current(), c);
    EXPECT_EQ(c->cursorLine(), 10);
    key(Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_EQ(current(), a);
    key(Qt::Key_M, Qt::ControlModifier);
    EXPECT_TRUE(a->bookmarks().isEmpty());
}

TEST_F(TextInWindow, trailingBlanksGoWithASaveIfTheUserWantsIt)
{
    writeSetting("ModEditor/trimOnSaveEn", "1");
    openProject();
    EditorWidget* widget = open("a.psm");
    widget->moveCursor(QTextCursor::End);
    QTest::keyClicks(widget, "x   ");
    key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(widget->isModified());
    QFile file(projectDir() + "/a.psm");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().endsWith("\nx"));
    widget->undo();
    EXPECT_TRUE(widget->toPlainText().endsWith("x   "));
}

TEST_F(TextInWindow, theBarCountsWhileItIsTypedInto)
{
    openProject();
    EditorWidget* widget = open("c.psm");
    key(Qt::Key_F, Qt::ControlModifier);
    auto* field = find<QLineEdit>("editFind");
    ASSERT_TRUE(QTest::qWaitFor([&] { return field->hasFocus(); }, 60000));
    QTest::keyClicks(field, "nothing");
    auto* result = find<QLabel>("labelResult");
    EXPECT_EQ(result->text(), QString("400 hits"));
    EXPECT_EQ(widget->cursorPos(), 0);
    key(Qt::Key_Return);
    EXPECT_EQ(result->text(), QString("1 of 400"));
    key(Qt::Key_Return);
    key(Qt::Key_Return);
    EXPECT_EQ(result->text(), QString("3 of 400"));
    screenshot("find-bar-hits");
    auto* expression = window->findChild<QAbstractButton*>("buttonRegExp");
    expression->click();
    field->selectAll();
    QTest::keyClicks(field, "^(\\w+):");
    EXPECT_EQ(result->text(), QString("200 hits"));
    // Each document has its own count.
    open("a.psm");
    EXPECT_TRUE(QTest::qWaitFor([&] { return result->text() == "1 hit"; }, 60000));
    // It follows the text.
    QTest::keyClicks(current(), "x:");
    key(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return result->text() == "2 hits"; }, 60000));
    field->setFocus();
    key(Qt::Key_Escape);
    EXPECT_TRUE(current()->hasFocus());
}

class SourcesInWindow : public TextInWindow
{
protected:
    void searchFor(const QString& text)
    {
        key(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
        auto* field = find<QLineEdit>("editSourceFind");
        ASSERT_NE(field, nullptr);
        ASSERT_TRUE(QTest::qWaitFor([&] { return field->hasFocus(); }, 60000));
        QTest::keyClicks(field, text);
        key(Qt::Key_Return);
        waitForEnd();
    }
    void waitForEnd() const
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return find<QPushButton>("buttonSourceFind")->text() == "Find"; }, 60000));
    }
    QTreeWidget* list() const { return find<QTreeWidget>("listSourceHits"); }
    QString status() const { return find<QLabel>("labelSourceStatus")->text(); }
    void setReplacement(const QString& text)
    {
        auto* field = find<QLineEdit>("editSourceReplace");
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
    }
};

TEST_F(SourcesInWindow, findsInFilesAndInUnsavedTexts)
{
    openProject();
    EditorWidget* a = open("a.psm");
    a->moveCursor(QTextCursor::End);
    QTest::keyClicks(a, "load unsaved");
    searchFor("load");
    EXPECT_EQ(status(), QString("4 hits in 2 files"));
    ASSERT_EQ(list()->topLevelItemCount(), 2);
    EXPECT_EQ(list()->topLevelItem(0)->text(0), QString("a.psm (2)"));
    EXPECT_EQ(list()->topLevelItem(1)->child(1)->text(0), QString("2: other: load s0, 2"));
    // A hit opens its document.
    EXPECT_EQ(documentOf("b.psm"), nullptr);
    list()->setCurrentItem(list()->topLevelItem(1)->child(1));
    list()->setFocus();
    key(Qt::Key_Return);
    ASSERT_NE(documentOf("b.psm"), nullptr);
    EXPECT_EQ(current(), documentOf("b.psm"));
    EXPECT_EQ(current()->textCursor().selectedText(), QString("load"));
    EXPECT_EQ(current()->cursorLine(), 1);
    EXPECT_TRUE(current()->hasFocus());
    forgetChanges();
}

TEST_F(SourcesInWindow, replacesWhatIsTickedAsOneStepADocument)
{
    openProject();
    open("c.psm");
    searchFor("s0");
    EXPECT_EQ(status(), QString("3 hits in 2 files"));
    setReplacement("s7");
    EXPECT_EQ(list()->topLevelItem(0)->child(0)->text(1), QString("load s7, 1"));
    screenshot("find-in-sources");
    list()->topLevelItem(1)->child(0)->setCheckState(0, Qt::Unchecked);
    find<QPushButton>("buttonSourceReplace")->click();
    EXPECT_EQ(status(), QString("Replaced: 2"));
    EXPECT_EQ(current(), documentOf("c.psm"));
    EditorWidget* a = documentOf("a.psm");
    EditorWidget* b = documentOf("b.psm");
    ASSERT_TRUE(a != nullptr && b != nullptr);
    EXPECT_EQ(a->toPlainText(), QString("start:\n  load s7, 1\n  jump start\n"));
    EXPECT_EQ(b->toPlainText(), QString("; load and s0\nother: load s7, 2\n"));
    EXPECT_TRUE(a->isModified());
    b->undo();
    EXPECT_FALSE(b->isUndoAvailable());
    EXPECT_EQ(b->toPlainText(), QString("; load and s0\nother: load s0, 2\n"));
    EXPECT_EQ(list()->topLevelItemCount(), 0);
    forgetChanges();
}

TEST_F(SourcesInWindow, linesThatHaveChangedAreNotReplaced)
{
    openProject();
    EditorWidget* a = open("a.psm");
    searchFor("load|jump");
    EXPECT_EQ(status(), QString("No hit"));
    find<QCheckBox>("checkSourceRegExp")->click();
    find<QPushButton>("buttonSourceFind")->click();
    waitForEnd();
    setReplacement("[\\0]");
    moveTo(a, 1, 0);
    a->setFocus();
    QTest::keyClicks(a, "x");
    // Another text to find: the list is not that of the fields.
    auto* field = find<QLineEdit>("editSourceFind");
    field->setText("other");
    EXPECT_FALSE(find<QPushButton>("buttonSourceReplace")->isEnabled());
    field->setText("load|jump");
    find<QPushButton>("buttonSourceReplace")->click();
    EXPECT_EQ(line(a, 1), QString("x  load s0, 1"));
    EXPECT_EQ(line(a, 2), QString("  [jump] start"));
    EXPECT_TRUE(status().contains("; left, as their lines have changed: 1")) << status().toStdString();
    EXPECT_TRUE(messageTexts().join('\n').contains(
        "Not replaced in a.psm, as the lines have changed or can not be changed: 1"));
    forgetChanges();
}

TEST_F(SourcesInWindow, theProjectGoesWhileItIsSearched)
{
    openProject();
    open("a.psm");
    key(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    auto* field = find<QLineEdit>("editSourceFind");
    QTest::keyClicks(field, "o");
    key(Qt::Key_Return);
    EXPECT_TRUE(module<nsModPrj::ModPrj>()->closePrj());
    EXPECT_EQ(list()->topLevelItemCount(), 0);
    QApplication::processEvents();
    EXPECT_EQ(list()->topLevelItemCount(), 0);
    // Without a project there is nothing to search.
    for (QAction* action : window->findChildren<QAction*>()) {
        if (action->text() == "Find in sources...") {
            EXPECT_FALSE(action->isEnabled());
        }
    }
    EXPECT_TRUE(closeWindow());
}

class SessionInWindow : public TextInWindow
{
protected:
    QString sessionFile() const { return projectFile + ".user"; }
    QByteArray sessionText() const
    {
        QFile file(sessionFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    int warnings() const
    {
        int count = 0;
        for (const QString& text : messageTexts())
            count += text.startsWith("The places of the last session can not be read: ") ? 1 : 0;
        return count;
    }
};

TEST_F(SessionInWindow, placesOfAllDocumentsAreThereAgain)
{
    openProject();
    EditorWidget* c = open("c.psm");
    moveTo(c, 120, 3);
    c->verticalScrollBar()->setValue(118);
    EditorWidget* a = open("a.psm");
    moveTo(a, 1, 2);
    key(Qt::Key_End, Qt::ShiftModifier);
    startAgain();
    ASSERT_NE(documentOf("c.psm"), nullptr);
    EXPECT_EQ(current(), documentOf("a.psm"));
    EXPECT_EQ(current()->textCursor().selectedText(), QString("load s0, 1"));
    EXPECT_EQ(documentOf("c.psm")->cursorLine(), 120);
    EXPECT_EQ(documentOf("c.psm")->textCursor().positionInBlock(), 3);
    editor()->selectFile(projectDir() + "/c.psm");
    QApplication::processEvents();
    EXPECT_EQ(documentOf("c.psm")->verticalScrollBar()->value(), 118);
    // Nothing of it is in the project.
    QFile project(projectFile);
    ASSERT_TRUE(project.open(QIODevice::ReadOnly));
    EXPECT_FALSE(project.readAll().contains("bookmark"));
}

TEST_F(SessionInWindow, marksAndZoomAreKeptWithTheirSettingOnly)
{
    const auto setMarks = [this] {
        EditorWidget* a = open("a.psm");
        a->setBookmark(2);
        a->setSimBreakpoint(1);
        a->setSimStartPointer(0);
        a->setZoom(3);
    };
    openProject();
    setMarks();
    startAgain();
    EXPECT_TRUE(documentOf("a.psm")->marks().isEmpty());
    EXPECT_EQ(documentOf("a.psm")->zoom(), 0);
    forgetChanges();
    EXPECT_TRUE(module<nsModPrj::ModPrj>()->closePrj());
    window.reset();
    writeSetting("ModEditor/keepMarksEn", "1");
    openProject();
    setMarks();
    startAgain();
    EditorWidget* a = documentOf("a.psm");
    ASSERT_NE(a, nullptr);
    EXPECT_EQ(a->bookmarks(), QList<int>{2});
    EXPECT_EQ(a->simBreakpoints(), QList<int>{1});
    int start = -1;
    EXPECT_TRUE(a->simStartPointer(&start));
    EXPECT_EQ(start, 0);
    EXPECT_EQ(a->zoom(), 3);
}

TEST_F(SessionInWindow, marksOfAClosedDocumentAreThereWhenItIsOpenedAgain)
{
    writeSetting("ModEditor/keepMarksEn", "1");
    openProject();
    EditorWidget* a = open("a.psm");
    a->setBookmark(2);
    a->setSimBreakpoint(1);
    open("b.psm")->setBookmark(0);
    open("c.psm");
    editor()->removeWidgetRequest(a); // before the project was ever saved
    EXPECT_EQ(open("a.psm")->bookmarks(), QList<int>{2});
    EXPECT_EQ(documentOf("a.psm")->simBreakpoints(), QList<int>{1});
    editor()->closeAllFiles();
    // Twice: what nobody opens is kept on.
    startAgain();
    startAgain();
    EXPECT_TRUE(editor()->editorWidgets().isEmpty());
    EXPECT_EQ(open("a.psm")->bookmarks(), QList<int>{2});
    EXPECT_EQ(documentOf("a.psm")->simBreakpoints(), QList<int>{1});
    EXPECT_EQ(open("b.psm")->bookmarks(), QList<int>{0});
    EXPECT_TRUE(open("c.psm")->marks().isEmpty());
    // All of them are cleared where the user says so, and those of a file that has become shorter go with their lines.
    editor()->removeWidgetRequest(documentOf("a.psm"));
    editor()->removeWidgetRequest(documentOf("b.psm"));
    emit documentOf("c.psm")->clearAllBreakpoints();
    writeFile("a.psm", "start: JUMP start");
    EXPECT_TRUE(open("a.psm")->marks().isEmpty());
    EXPECT_EQ(open("b.psm")->bookmarks(), QList<int>{0});
    editor()->removeWidgetRequest(documentOf("b.psm"));
    emit documentOf("c.psm")->clearAllBookmarks();
    EXPECT_TRUE(open("b.psm")->marks().isEmpty());
}

TEST_F(SessionInWindow, withoutTheSettingMarksGoWithTheirDocument)
{
    openProject();
    open("a.psm")->setBookmark(2);
    editor()->removeWidgetRequest(current());
    EXPECT_TRUE(open("a.psm")->marks().isEmpty());
    EXPECT_FALSE(sessionText().contains("bookmarks"));
}

TEST_F(SessionInWindow, aDamagedFileIsIgnoredWithOneMessage)
{
    openProject();
    open("a.psm");
    startAgain();
    const QByteArray good = sessionText();
    ASSERT_TRUE(good.contains("nalvoSession"));
    for (const QByteArray& bad :
         {QByteArray(), QByteArray("nonsense"), good.left(good.size() / 2), QByteArray("[]"),
          QByteArray("{\"nalvoSession\": 2, \"documents\": []}"), QByteArray("{\"nalvoSession\": 1}")}) {
        EXPECT_TRUE(module<nsModPrj::ModPrj>()->closePrj());
        window.reset();
        writeFile("p.nalvo.user", bad);
        openProject();
        EXPECT_EQ(warnings(), 1) << bad.constData();
        EXPECT_NE(documentOf("a.psm"), nullptr);
    }
}

TEST_F(SessionInWindow, onlyAFileOfItsOwnIsWrittenOver)
{
    const auto after = [this](const QByteArray& before) {
        writeFile("p.nalvo.user", before);
        openProject();
        open("b.psm");
        forgetChanges();
        EXPECT_TRUE(module<nsModPrj::ModPrj>()->closePrj());
        window.reset();
        return sessionText();
    };
    // Of a newer version, of another program, a text.
    for (const QByteArray& foreign :
         {QByteArray("{\"nalvoSession\": 2, \"documents\": [], \"more\": 1}"), QByteArray("{\"other\": true}"),
          QByteArray("[Settings]\nuser=me\n"), QByteArray("<user/>")})
        EXPECT_EQ(after(foreign), foreign);
    // Damaged ones of its own.
    for (const QByteArray& damaged : {QByteArray(), QByteArray("{\"nalvoSession\": 1, \"docum"),
                                      QByteArray("{\"nalvoSession\": 1, \"documents\": 7}")})
        EXPECT_TRUE(after(damaged).contains("b.psm")) << damaged.constData();
}

TEST_F(SessionInWindow, numbersOutOfRangeDoNoHarm)
{
    writeSetting("ModEditor/keepMarksEn", "1");
    openProject();
    open("a.psm");
    EXPECT_TRUE(module<nsModPrj::ModPrj>()->closePrj());
    window.reset();
    writeFile("p.nalvo.user",
              "{\"nalvoSession\": 1, \"documents\": [7, {}, {\"file\": \"a.psm\", \"cursor\": 1e300, \"anchor\": -5, "
              "\"top\": -1e9, \"zoom\": 99999, \"bookmarks\": [-1, 0, 0, 4000, \"x\", 1.5, 2147483647], "
              "\"breakpoints\": {}, \"start\": 900}]}");
    openProject();
    EditorWidget* a = documentOf("a.psm");
    ASSERT_NE(a, nullptr);
    EXPECT_EQ(a->bookmarks(), QList<int>{0});
    EXPECT_TRUE(a->simBreakpoints().isEmpty());
    int start = 0;
    EXPECT_FALSE(a->simStartPointer(&start));
    EXPECT_LE(a->fontSize(), 72);
    EXPECT_EQ(warnings(), 0);
    a->grab();
}

TEST_F(SessionInWindow, aFileThatCanNotBeWrittenIsNotInTheWay)
{
    openProject();
    open("a.psm");
    // In the place of the file is a folder.
    ASSERT_TRUE(QDir().mkpath(sessionFile()));
    const int before = messageTexts().size();
    module<nsModPrj::ModPrj>()->savePrjCfg();
    EXPECT_FALSE(messageTexts().mid(before).join('\n').contains(".user"));
    startAgain();
    EXPECT_NE(documentOf("a.psm"), nullptr);
    EXPECT_EQ(warnings(), 1);
}

TEST_F(SessionInWindow, aProjectWithoutDocumentsGetsNoFile)
{
    openProject();
    startAgain();
    EXPECT_FALSE(QFile::exists(sessionFile()));
}

} // namespace
