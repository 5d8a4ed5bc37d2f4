// The ways into the help in the whole window, by keys and mouse.

#include "MainWindowFixture.h"

#include "EditorWidget.h"
#include "HlpWidget.h"
#include "ModConfigHookIf.h"
#include "ModEditor.h"
#include "ModGuiHookIf.h"
#include "ModHlpHookIf.h"
#include "ModPrj.h"
#include "ModProcessor.h"
#include "ProcShell.h"
#include "ProcSimEdtBit.h"
#include "ProcSimEdtInterrupt.h"
#include "QtPrinters.h"

#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QMetaObject>
#include <QPushButton>
#include <QWhatsThis>
#include <QWhatsThisClickedEvent>

using nsModEditor::EditorWidget;

namespace {

const char* const project = "<project version=\"3\"><sources><srcFiles>main.psm</srcFiles></sources>"
                            "<ModProcessor><processor>Xilinx PicoBlaze 6</processor></ModProcessor></project>";
const char* const mainText = "start: LOAD s0, 1\n#EQU number, 1\nJUMP nowhere\n";

class HelpInWindow : public MainWindowFixture
{
protected:
    HelpInWindow()
    {
        writeSetting("ModGui/width", "1400");
        writeSetting("ModGui/height", "900");
        writeSetting("ModHlp/showGettingStarted", "0");
        writeFile("main.psm", mainText);
        writeFile("help.nalvo", project);
        makeWindow();
        EXPECT_TRUE(module<nsModPrj::ModPrj>()->openPrj(projectDir() + "/help.nalvo"));
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
    }

    ModGuiHookIf* gui() const { return module<ModGuiHookIf>(); }
    QWidget* page() const { return gui()->currentWidget(ModGuiHookIf::eLocationTabs); }
    EditorWidget* open(const QString& name)
    {
        EXPECT_TRUE(module<nsModEditor::ModEditor>()->openFile(projectDir() + '/' + name));
        auto* widget = qobject_cast<EditorWidget*>(page());
        EXPECT_NE(widget, nullptr);
        widget->setFocus();
        return widget;
    }
    static void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    }
    /// The pages of the help that are open.
    QStringList openPages() const
    {
        QStringList names;
        for (QWidget* widget : gui()->centerWidgetList()) {
            if (const auto* page = qobject_cast<nsModHlp::HlpWidget*>(widget))
                names.append(page->source().fileName() + '#' + page->source().fragment());
        }
        return names;
    }
    /// The page that F1 opens with the focus where it is. It takes the place of the one before.
    QString pressF1()
    {
        press(Qt::Key_F1);
        return openPages().join(',');
    }
    /// The same with the focus in this widget, or in the first one in it that takes it.
    QString f1In(QWidget* widget)
    {
        if (widget == nullptr)
            return "no such widget";
        gui()->setCurrentWidget(widget);
        QWidget* field = widget;
        for (QWidget* child : widget->findChildren<QWidget*>()) {
            if (field->focusPolicy() == Qt::NoFocus && child->focusPolicy() != Qt::NoFocus && child->isVisible())
                field = child;
        }
        field->setFocus();
        return field->hasFocus() ? pressF1() : "no focus";
    }
    template <class Widget = QWidget>
    Widget* named(const QString& name) const
    {
        return window->findChild<Widget*>(name);
    }
    void startSimulator()
    {
        writeFile("main.psm", "start: LOAD s0, 1\nJUMP start\n");
        EditorWidget* document = open("main.psm");
        ASSERT_NE(document, nullptr);
        for (QAction* candidate : window->findChildren<QAction*>()) {
            if (candidate->text() == "Save all")
                candidate->trigger();
        }
        auto* shell = dynamic_cast<nsProc::ProcShell*>(module<nsModProcessor::ModProcessor>()->currentProcessor());
        ASSERT_NE(shell, nullptr);
        shell->actionsSim()->actions().first()->trigger();
        ASSERT_NE(named("procSimCore"), nullptr);
        settleLayout();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
    }
    /// The platform of the tests gives a window no activity back when a popup closes.
    void closeShortText() const
    {
        ASSERT_NE(shortText(), nullptr);
        QTest::keyClick(shortText(), Qt::Key_Escape);
        EXPECT_TRUE(QTest::qWaitFor([] { return shortText() == nullptr; }, 60000));
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
    }
    static QWidget* shortText()
    {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (top->inherits("QWhatsThat"))
                return top;
        }
        return nullptr;
    }
};

TEST_F(HelpInWindow, f1InTheEditorExplainsTheWord)
{
    EditorWidget* document = open("main.psm");
    const struct
    {
        int position;
        const char* title;
    } rows[] = {{8, "instrxpblze6.html#LOAD"},
                {19, "langdirectives.html#EQU"},
                {25, "langnames.html#"},
                {2, "langnames.html#"}};
    for (const auto& row : rows) {
        gui()->setCurrentWidget(document);
        document->setFocus();
        QTextCursor cursor = document->textCursor();
        cursor.setPosition(row.position);
        document->setTextCursor(cursor);
        EXPECT_EQ(pressF1(), row.title) << row.position;
    }
    // The key of a message, as in a comment.
    gui()->setCurrentWidget(document);
    document->setFocus();
    document->moveCursor(QTextCursor::End);
    QTest::keyClicks(document, "; errSyntax");
    EXPECT_EQ(pressF1(), "asmfemessages.html#errSyntax");
    document->clearModified();
}

TEST_F(HelpInWindow, f1InAPanelOpensItsPage)
{
    open("main.psm");
    EXPECT_EQ(f1In(named("naviWidget")), "navigator.html#");
    EXPECT_EQ(f1In(named("equListView")->parentWidget()), "equlist.html#");
    press(Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(named("editFind")->hasFocus());
    EXPECT_EQ(pressF1(), "editorfindreplace.html#");
    // The help itself.
    module<ModHlpHookIf>()->showHlp(QUrl("pageId://about"));
    page()->setFocus();
    press(Qt::Key_F1);
    EXPECT_EQ(openPages(), QStringList{"gettingstarted.html#"});
}

TEST_F(HelpInWindow, f1InAMessageOpensItsEntry)
{
    open("main.psm");
    QTreeWidget* view = messageView();
    ASSERT_TRUE(QTest::qWaitFor([&] { return view->topLevelItemCount() > 0; }, 60000));
    gui()->setCurrentWidget(view);
    view->setFocus();
    view->setCurrentItem(nullptr);
    EXPECT_EQ(pressF1(), "messageview.html#");
    QTreeWidgetItem* withLink = nullptr;
    for (QTreeWidgetItemIterator it(view); *it != nullptr; ++it) {
        if ((*it)->text(0).contains("nowhere"))
            withLink = *it;
    }
    ASSERT_NE(withLink, nullptr) << qPrintable(messageTexts().join('\n'));
    EXPECT_EQ(withLink->text(1), "Show help page");
    const QString key = withLink->data(1, Qt::UserRole).toUrl().fragment();
    EXPECT_TRUE(key.startsWith("err"));
    view->setCurrentItem(withLink);
    view->setFocus();
    EXPECT_EQ(pressF1(), "asmfemessages.html#" + key);

    // The link does the same.
    closeHelpPages();
    view->scrollToItem(withLink);
    settleAnimations();
    const QModelIndex link = view->currentIndex().sibling(view->currentIndex().row(), 1);
    view->scrollTo(link);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->visualRect(link).center());
    EXPECT_EQ(openPages(), QStringList{"asmfemessages.html#" + key});
}

TEST_F(HelpInWindow, helpInTheSettings)
{
    module<ModConfigHookIf>()->openDialog("Editor");
    QWidget* dialog = named("configDialog");
    ASSERT_NE(dialog, nullptr);
    const auto isBeside = [&](const QString& file) {
        auto* help = qobject_cast<nsModHlp::HlpWidget*>(gui()->currentWidget(ModGuiHookIf::eLocationDockRight));
        return help != nullptr && help->source().fileName() == file;
    };
    const auto isShown = [&] { return gui()->widgetVisible(ModGuiHookIf::eLocationDockRight); };
    dialog->findChild<QListWidget*>("configList")->setFocus();
    EXPECT_EQ(pressF1(), "");
    EXPECT_TRUE(isBeside("configpageeditor.html") && isShown());
    gui()->setWidgetVisible(ModGuiHookIf::eLocationDockRight, false);
    QPushButton* help = nullptr;
    for (QPushButton* button : dialog->findChildren<QPushButton*>()) {
        if (button->text() == "Help")
            help = button;
    }
    ASSERT_NE(help, nullptr);
    QTest::mouseClick(help, Qt::LeftButton);
    EXPECT_TRUE(isBeside("configpageeditor.html") && isShown());
    // It follows the page, and goes with the dialog.
    module<ModConfigHookIf>()->selectDialogPageByTitle("Network");
    EXPECT_TRUE(isBeside("configpagenetwork.html"));
    screenshot("help_settings");
    module<ModConfigHookIf>()->closeDialog(false);
    EXPECT_TRUE(QTest::qWaitFor([&] { return named("hlpDialogPage") == nullptr; }, 60000));
}

TEST_F(HelpInWindow, whatsThisOnTheFieldsOfTheSimulator)
{
    startSimulator();
    QWidget* core = named("procSimCore");
    gui()->setCurrentWidget(core);
    auto* carry = core->findChild<nsProc::ProcSimEdtBit*>();
    ASSERT_NE(carry, nullptr);
    carry->setFocus();
    ASSERT_TRUE(carry->hasFocus());
    press(Qt::Key_F1, Qt::ShiftModifier);
    ASSERT_NE(shortText(), nullptr);
    EXPECT_TRUE(carry->whatsThis().contains("carry flag"));
    closeShortText();

    // A register has the text of all registers.
    QWidget* reg = nullptr;
    for (QLineEdit* field : core->findChildren<QLineEdit*>()) {
        if (field->toolTip() == "Register s1")
            reg = field;
    }
    ASSERT_NE(reg, nullptr);
    reg->setFocus();
    press(Qt::Key_F1, Qt::ShiftModifier);
    closeShortText();

    // Its link goes up to the window.
    QWhatsThisClickedEvent link("pageId://simulatorState#flags");
    QApplication::sendEvent(carry, &link);
    EXPECT_EQ(openPages(), QStringList{"simulatorstate.html#flags"});

    for (const char* name : {"procSimCore", "procSimIO", "procSimCallStack", "procSimScrpd"})
        EXPECT_FALSE(named(name)->whatsThis().isEmpty()) << name;
}

TEST_F(HelpInWindow, f1InAPanelOfTheSimulator)
{
    startSimulator();
    gui()->setCurrentWidget(named("procSimCore"));
    named("procSimCore")->findChild<nsProc::ProcSimEdtBit*>()->setFocus();
    EXPECT_EQ(pressF1(), "simulatorstate.html#flags");
}

TEST_F(HelpInWindow, whatsThisWithoutATextLetsTheNextClickChoose)
{
    messageView()->setFocus();
    press(Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_TRUE(QWhatsThis::inWhatsThisMode());
    QWhatsThis::leaveWhatsThisMode();
}

TEST_F(HelpInWindow, theProjectKeepsThePagesOverAStart)
{
    module<ModHlpHookIf>()->showHlp(QUrl("pageId://langNumbers"));
    EXPECT_EQ(openPages(), QStringList{"langnumbers.html#"});
    ASSERT_TRUE(closeWindow());
    keepsFirstHelpPage = true;
    makeWindow();
    EXPECT_EQ(openPages(), QStringList());
    EXPECT_TRUE(module<nsModPrj::ModPrj>()->openPrj(projectDir() + "/help.nalvo"));
    EXPECT_EQ(openPages(), QStringList{"langnumbers.html#"});
    EXPECT_EQ(page()->objectName(), "hlpPage");
}

TEST_F(HelpInWindow, theWindowClosesAtEachMoment)
{
    for (int turns = 0; turns < 10; turns += 3) {
        makeWindow();
        module<ModHlpHookIf>()->showHlp(QUrl("pageId://asmFeMessages#errSyntax"));
        module<ModConfigHookIf>()->openDialog("Help");
        for (int turn = 0; turn < turns; ++turn)
            QApplication::processEvents();
        EXPECT_TRUE(closeWindow());
        window.reset();
        QApplication::processEvents();
    }
    // Without a close.
    for (int turns = 0; turns < 10; turns += 3) {
        makeWindow();
        module<ModHlpHookIf>()->showHlp(QUrl("pageId://asmFeMessages#errSyntax"));
        module<ModConfigHookIf>()->openDialog("Help");
        for (int turn = 0; turn < turns; ++turn)
            QApplication::processEvents();
        window.reset();
        QApplication::processEvents();
    }
}

} // namespace
