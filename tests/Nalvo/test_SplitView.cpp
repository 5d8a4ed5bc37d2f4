// Two views of one document in the whole window, by real keys and the mouse.

#include "MainWindowFixture.h"
#include "ModalHelper.h"

#include "AsmProject.h"
#include "DocumentViews.h"
#include "EditorWidget.h"
#include "EditorWidgetLeftMargin.h"
#include "Folding.h"
#include "ModEditor.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"
#include "SecondView.h"
#include "TextOverlay.h"

#include <QAction>
#include <QClipboard>
#include <QJsonDocument>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBlock>
#include <QWheelEvent>

using nsModEditor::EditorWidget;
using nsModEditor::SecondView;

namespace {

const int lineCount = 200;
const Qt::KeyboardModifiers ctrlShift = Qt::ControlModifier | Qt::ShiftModifier;

class SplitView : public MainWindowFixture
{
protected:
    SplitView()
    {
        AsmProject project;
        project.sources = QStringList{"a.psm", "b.psm"};
        projectFile = writeFile("p.nalvo", project.text());
        QByteArray text = "#NAMESPACE n\nhidden: LOAD s0, 1\n#ENDNAMESPACE\n";
        for (int line = 3; line < lineCount; ++line)
            text += "line" + QByteArray::number(line) + ": LOAD s1, " + QByteArray::number(line) + "\n";
        writeFile("a.psm", text);
        writeFile("b.psm", "other: LOAD s0, 2\n");
        writeSetting("ModGui/width", "1600");
        writeSetting("ModGui/height", "800");
    }
    ~SplitView() override { forgetChanges(); }

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
    nsModEditor::ModEditor* editor() const { return module<nsModEditor::ModEditor>(); }
    QTabWidget* tabs() const { return window->findChild<QTabWidget*>("widgetAreaTabs"); }
    EditorWidget* current() const
    {
        return qobject_cast<EditorWidget*>(module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs));
    }
    EditorWidget* open(const QString& name = "a.psm")
    {
        EXPECT_TRUE(editor()->openFile(projectDir() + '/' + name));
        current()->setFocus();
        EXPECT_TRUE(QTest::qWaitFor([&] { return current()->hasFocus(); }, 60000));
        settleLayout();
        return current();
    }
    /// The document of a.psm with its page split by the key.
    EditorWidget* openSplit(Qt::Key direction = Qt::Key_L)
    {
        openProject();
        EditorWidget* widget = open();
        key(direction, ctrlShift);
        settleLayout();
        EXPECT_NE(widget->views()->second(), nullptr);
        return widget;
    }
    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), code, modifiers);
    }
    void type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    static QSplitter* splitter(EditorWidget* widget) { return qobject_cast<QSplitter*>(widget->parentWidget()); }
    /// A click into a line of the second view, before its first character.
    static void click(SecondView* view, int line)
    {
        const QTextBlock block = view->document()->findBlockByNumber(line);
        const QRect rect = view->cursorRect(QTextCursor(block));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, rect.center());
    }
    static int topLine(const nsModEditor::SourceEdit* view) { return view->firstVisibleBlock().blockNumber(); }
    static QString line(EditorWidget* widget, int number)
    {
        return widget->document()->findBlockByNumber(number).text();
    }

    QString projectFile;
};

TEST_F(SplitView, keysSplitAndUnsplitThePageInItsTab)
{
    openProject();
    EditorWidget* widget = open();
    const int tab = tabs()->currentIndex();
    const QString name = tabs()->tabText(tab);
    const int count = tabs()->count();
    key(Qt::Key_L, ctrlShift);
    settleLayout();
    ASSERT_NE(widget->views()->second(), nullptr);
    SecondView* second = widget->views()->second();
    ASSERT_NE(splitter(widget), nullptr);
    EXPECT_EQ(splitter(widget)->orientation(), Qt::Horizontal);
    EXPECT_TRUE(widget->isVisible() && second->isVisible());
    EXPECT_TRUE(widget->hasFocus());
    EXPECT_LE(qAbs(widget->width() - second->width()), 2);
    // For all others the page is the one of before.
    EXPECT_EQ(current(), widget);
    EXPECT_EQ(tabs()->count(), count);
    EXPECT_EQ(tabs()->currentIndex(), tab);
    EXPECT_EQ(tabs()->tabText(tab), name);
    key(Qt::Key_T, ctrlShift);
    EXPECT_EQ(widget->views()->second(), second);
    EXPECT_EQ(splitter(widget)->orientation(), Qt::Vertical);
    key(Qt::Key_X, ctrlShift);
    EXPECT_EQ(widget->views()->second(), nullptr);
    EXPECT_EQ(current(), widget);
    EXPECT_EQ(tabs()->indexOf(widget), tab);
    EXPECT_EQ(tabs()->count(), count);
    EXPECT_EQ(tabs()->tabText(tab), name);
    EXPECT_TRUE(widget->isVisible() && widget->hasFocus());
}

TEST_F(SplitView, eachViewHasItsPlaceAndBothShowEachEdit)
{
    EditorWidget* widget = openSplit();
    SecondView* second = widget->views()->second();
    key(Qt::Key_End, Qt::ControlModifier);
    settleLayout();
    EXPECT_EQ(topLine(second), 0);
    EXPECT_GT(topLine(widget), 50);
    type("; typed");
    EXPECT_EQ(second->toPlainText(), widget->toPlainText());
    EXPECT_TRUE(widget->isModified());
    EXPECT_EQ(topLine(second), 0);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(second->toPlainText().contains("; typed"));
}

TEST_F(SplitView, aClickInTheOtherViewGoesOnThere)
{
    EditorWidget* widget = openSplit();
    SecondView* second = widget->views()->second();
    key(Qt::Key_End, Qt::ControlModifier);
    settleLayout();
    const int end = widget->cursorPos();
    const int top = topLine(widget);
    const QRect otherPlace = second->geometry();
    click(second, 5);
    // It is the same widget that the user works in, now where the other one was.
    EXPECT_EQ(widget->geometry(), otherPlace);
    EXPECT_TRUE(widget->hasFocus());
    EXPECT_EQ(widget->cursorLine(), 5);
    EXPECT_EQ(topLine(widget), 0);
    EXPECT_EQ(topLine(second), top);
    EXPECT_EQ(second->textCursor().position(), end);
    type("x");
    EXPECT_EQ(line(widget, 5), "xline5: LOAD s1, 5");
    EXPECT_EQ(topLine(second), top);
}

TEST_F(SplitView, theMouseSelectsInTheOtherViewFromTheFirstPress)
{
    EditorWidget* widget = openSplit();
    SecondView* second = widget->views()->second();
    key(Qt::Key_End, Qt::ControlModifier);
    settleLayout();
    const QPoint from = second->cursorRect(QTextCursor(second->document()->findBlockByNumber(4))).center();
    const QPoint to = second->cursorRect(QTextCursor(second->document()->findBlockByNumber(7))).center();
    // The window goes on to hand the moves to the widget that was pressed.
    QTest::mousePress(second->viewport(), Qt::LeftButton, Qt::NoModifier, from);
    const QPoint shift = widget->viewport()->mapToGlobal(QPoint(0, 0)) - second->viewport()->mapToGlobal(QPoint(0, 0));
    QMouseEvent move(QEvent::MouseMove, to + shift, second->viewport()->mapToGlobal(to + shift), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(second->viewport(), &move);
    QTest::mouseRelease(second->viewport(), Qt::LeftButton, Qt::NoModifier, to + shift);
    EXPECT_EQ(widget->textCursor().selectedText().count("line"), 3);
    EXPECT_FALSE(second->textCursor().hasSelection());
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith("line4"));
}

TEST_F(SplitView, theKeyGoesToTheOtherViewAndBack)
{
    EditorWidget* widget = openSplit(Qt::Key_T);
    key(Qt::Key_End, Qt::ControlModifier);
    settleLayout();
    const int end = widget->cursorPos();
    const QRect place = widget->geometry();
    key(Qt::Key_O, ctrlShift);
    EXPECT_EQ(widget->cursorPos(), 0);
    EXPECT_NE(widget->geometry(), place);
    EXPECT_TRUE(widget->hasFocus());
    key(Qt::Key_O, ctrlShift);
    EXPECT_EQ(widget->cursorPos(), end);
    EXPECT_EQ(widget->geometry(), place);
}

TEST_F(SplitView, linesThatComeAboveDoNotMoveTheOtherView)
{
    EditorWidget* widget = openSplit();
    SecondView* second = widget->views()->second();
    second->verticalScrollBar()->setValue(100);
    EXPECT_EQ(topLine(second), 100);
    const QString top = second->firstVisibleBlock().text();
    key(Qt::Key_Home, Qt::ControlModifier);
    key(Qt::Key_Return);
    key(Qt::Key_Return);
    settleLayout();
    EXPECT_EQ(second->firstVisibleBlock().text(), top);
    EXPECT_EQ(topLine(second), 102);
    key(Qt::Key_Z, Qt::ControlModifier);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(second->firstVisibleBlock().text(), top);
}

TEST_F(SplitView, marksMessagesAndTheFlaggedLineStandInBothViews)
{
    EditorWidget* widget = openSplit();
    SecondView* second = widget->views()->second();
    const auto redPixels = [](QWidget* part) {
        const QImage image = part->grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == QColor(Qt::red);
        }
        return count;
    };
    EXPECT_EQ(redPixels(second->leftMargin()), 0);
    // In the margin of the second view, without going there.
    const QRect lineRect = second->cursorRect(QTextCursor(second->document()->findBlockByNumber(4)));
    QTest::mouseClick(second->leftMargin(), Qt::LeftButton, Qt::NoModifier, QPoint(8, lineRect.center().y()));
    EXPECT_EQ(widget->simBreakpoints(), QList<int>{4});
    EXPECT_GT(redPixels(second->leftMargin()), 0);
    EXPECT_EQ(redPixels(second->leftMargin()), redPixels(widget->leftMargin()));
    const QImage before = second->viewport()->grab().toImage();
    widget->setMessageMarks({{nsModEditor::sMessageMark::gradeError, 5, 0, 6, "bad"}});
    const QImage marked = second->viewport()->grab().toImage();
    EXPECT_NE(before, marked);
    editor()->markLine(widget->filePath(), 8);
    const QImage flagged = second->viewport()->grab().toImage();
    EXPECT_NE(flagged, marked);
    editor()->clearLineHighlited();
    EXPECT_EQ(second->viewport()->grab().toImage(), marked);
}

TEST_F(SplitView, foldedLinesAreHiddenInBothViews)
{
    EditorWidget* widget = openSplit();
    SecondView* second = widget->views()->second();
    // The cursor of the second view is in the lines that are hidden.
    QTextCursor inside(widget->document()->findBlockByNumber(1));
    second->setTextCursor(inside);
    key(Qt::Key_M, ctrlShift);
    settleLayout();
    EXPECT_TRUE(second->folding()->hasHidden());
    const QRect below = second->cursorRect(QTextCursor(widget->document()->findBlockByNumber(3)));
    const QRect header = second->cursorRect(QTextCursor(widget->document()->findBlockByNumber(0)));
    EXPECT_LT(below.top() - header.top(), 2 * header.height());
    key(Qt::Key_End, Qt::ControlModifier);
    type("x");
    EXPECT_TRUE(widget->folding()->hasHidden());
    // Whoever goes there sees what is there.
    key(Qt::Key_O, ctrlShift);
    EXPECT_EQ(widget->cursorLine(), 1);
    EXPECT_FALSE(widget->folding()->hasHidden());
}

TEST_F(SplitView, zoomWrapAndHitsOfTheSearchAreThoseOfTheDocument)
{
    EditorWidget* widget = openSplit();
    SecondView* second = widget->views()->second();
    const QFont font = second->font();
    const QPoint middle = second->viewport()->rect().center();
    QWheelEvent wheel(middle, second->viewport()->mapToGlobal(middle), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(second->viewport(), &wheel);
    EXPECT_EQ(widget->zoom(), 1);
    EXPECT_EQ(second->font().pointSize(), font.pointSize() + 1);
    EXPECT_EQ(second->font(), widget->font());
    EXPECT_EQ(second->lineWrapMode(), widget->lineWrapMode());
    EXPECT_EQ(widget->lineWrapMode(), QPlainTextEdit::NoWrap);
    key(Qt::Key_F, Qt::ControlModifier);
    auto* field = window->findChild<QLineEdit*>("editFind");
    ASSERT_NE(field, nullptr);
    QTest::keyClicks(field, "line12");
    EXPECT_TRUE(QTest::qWaitFor([&] { return second->overlay()->hits().text.contains("line12"); }, 60000));
    key(Qt::Key_Escape);
    EXPECT_TRUE(second->overlay()->hits().text.isEmpty());
}

TEST_F(SplitView, aReloadKeepsThePlaceOfBothViews)
{
    EditorWidget* widget = openSplit();
    SecondView* second = widget->views()->second();
    second->verticalScrollBar()->setValue(120);
    key(Qt::Key_F5);
    settleLayout();
    EXPECT_EQ(widget->views()->second(), second);
    EXPECT_EQ(topLine(second), 120);
    EXPECT_EQ(second->toPlainText(), widget->toPlainText());
}

TEST_F(SplitView, closingAPageTakesBothViewsAlong)
{
    EditorWidget* widget = openSplit();
    QPointer<SecondView> second(widget->views()->second());
    const QPointer<EditorWidget> page(widget);
    const int count = tabs()->count();
    editor()->closeFile();
    EXPECT_TRUE(page.isNull());
    EXPECT_TRUE(second.isNull());
    EXPECT_EQ(tabs()->count(), count - 1);
    EXPECT_TRUE(tabs()->findChildren<QSplitter*>().isEmpty());
    // Also by the button of the tab, with another page in front, and with the whole window.
    widget = open();
    key(Qt::Key_T, ctrlShift);
    second = widget->views()->second();
    ASSERT_FALSE(second.isNull());
    const int tab = tabs()->currentIndex();
    EditorWidget* other = open("b.psm");
    key(Qt::Key_L, ctrlShift);
    emit tabs()->tabCloseRequested(tab);
    EXPECT_TRUE(second.isNull());
    EXPECT_EQ(current(), other);
    second = other->views()->second();
    ASSERT_FALSE(second.isNull());
    window.reset();
    EXPECT_TRUE(second.isNull());
}

TEST_F(SplitView, pagesChangeByKeysAsBefore)
{
    EditorWidget* a = openSplit();
    EditorWidget* b = open("b.psm");
    key(Qt::Key_T, ctrlShift);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Control);
    EXPECT_EQ(current(), a);
    EXPECT_TRUE(a->hasFocus());
    key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(current(), b);
    EXPECT_TRUE(b->hasFocus());
    editor()->setCursorToLine(a->filePath(), 40);
    EXPECT_EQ(current(), a);
    EXPECT_EQ(a->cursorLine(), 40);
}

TEST_F(SplitView, entriesOfTheMenuAreThereForASplitPageOnly)
{
    openProject();
    EditorWidget* widget = open();
    QMenu* menu = nullptr;
    for (QMenu* candidate : window->findChildren<QMenu*>())
        menu = candidate->title() == "Split view" ? candidate : menu;
    for (QAction* top : window->menuBar()->actions()) {
        for (QAction* entry : top->menu()->actions()) {
            if (entry->menu() != nullptr && entry->text() == "Split view")
                menu = entry->menu();
        }
    }
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 4);
    QAction* unsplit = menu->actions().at(3);
    EXPECT_FALSE(unsplit->isEnabled());
    menu->actions().at(1)->trigger();
    ASSERT_NE(widget->views()->second(), nullptr);
    EXPECT_TRUE(unsplit->isEnabled());
    open("b.psm");
    EXPECT_FALSE(unsplit->isEnabled());
    open();
    EXPECT_TRUE(unsplit->isEnabled());
    unsplit->trigger();
    EXPECT_FALSE(unsplit->isEnabled());
    EXPECT_EQ(widget->views()->second(), nullptr);
}

TEST_F(SplitView, theSplitIsThereAgainWithTheProject)
{
    EditorWidget* widget = openSplit(Qt::Key_T);
    key(Qt::Key_End, Qt::ControlModifier);
    key(Qt::Key_O, ctrlShift);
    splitter(widget)->setSizes({300, 100});
    settleLayout();
    const QList<int> sizes = splitter(widget)->sizes();
    EditorWidget* other = open("b.psm");
    key(Qt::Key_L, ctrlShift);
    EXPECT_EQ(current(), other);
    EXPECT_TRUE(module<nsModPrj::ModPrj>()->closePrj());
    EXPECT_TRUE(closeWindow());
    openProject();
    settleLayout();
    for (EditorWidget* document : editor()->editorWidgets())
        widget = document->filePath().endsWith("a.psm") ? document : widget;
    editor()->openFile(projectDir() + "/a.psm");
    settleLayout();
    ASSERT_NE(widget->views()->second(), nullptr);
    ASSERT_NE(splitter(widget), nullptr);
    EXPECT_EQ(splitter(widget)->orientation(), Qt::Vertical);
    // The user was in the lower view, after the key.
    EXPECT_EQ(splitter(widget)->indexOf(widget), 1);
    EXPECT_EQ(widget->cursorPos(), 0);
    EXPECT_EQ(widget->views()->second()->textCursor().position(), widget->document()->characterCount() - 1);
    EXPECT_GT(topLine(widget->views()->second()), 50);
    EXPECT_NEAR(splitter(widget)->sizes().at(0), sizes.at(0), 3);
    EXPECT_NE(open("b.psm")->views()->second(), nullptr);
}

TEST_F(SplitView, aDamagedSessionSplitsNothingOrWithinBounds)
{
    openProject();
    open();
    EXPECT_TRUE(module<nsModPrj::ModPrj>()->closePrj());
    for (const char* split :
         {"{\"share\":-7,\"top\":1e300,\"cursor\":-5,\"anchor\":99999999}", "[1]", "{}", "7", "{\"beside\":\"x\"}"}) {
        SCOPED_TRACE(split);
        window.reset();
        writeFile("p.nalvo.user",
                  QByteArray("{\"nalvoSession\":1,\"documents\":[{\"file\":\"a.psm\",\"split\":") + split + "}]}");
        openProject();
        settleLayout();
        ASSERT_EQ(editor()->editorWidgets().size(), 1);
        const EditorWidget* widget = editor()->editorWidgets().first();
        EXPECT_EQ(widget->views()->second() != nullptr, QByteArray(split).startsWith("{\""));
    }
}

TEST_F(SplitView, picture)
{
    EditorWidget* widget = openSplit();
    editor()->markLine(widget->filePath(), 6);
    widget->setSimBreakpoint(5);
    key(Qt::Key_End, Qt::ControlModifier);
    screenshot("split-beside");
    key(Qt::Key_T, ctrlShift);
    EXPECT_TRUE(widget->viewport()->rect().contains(widget->cursorRect()));
    screenshot("split-below");
}

} // namespace
