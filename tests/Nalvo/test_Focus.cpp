// Where the keyboard is when an action of the user has ended: in the page of the centre, and after a jump in the
// source.

#include "ExampleFolder.h"
#include "MainWindowFixture.h"
#include "ModalAnswers.h"

#include "EditorWidget.h"
#include "ModConfig.h"
#include "ModEditor.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

using nsModEditor::EditorWidget;

namespace {

class Focus : public MainWindowFixture
{
protected:
    Focus()
    {
        copyFolder(NALVO_SOURCE_DIR "/examples", projectDir());
        writeSetting("ModGui/width", "1400");
        writeSetting("ModGui/height", "860");
        makeWindow();
        EXPECT_TRUE(module<nsModPrj::ModPrj>()->openPrj(projectDir() + "/uart_monitor/uart_monitor.nalvo"));
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
    }
    ~Focus() override
    {
        for (EditorWidget* widget : editor()->editorWidgets())
            widget->clearModified();
    }

    QString source(const QString& name) const { return projectDir() + "/uart_monitor/src/" + name; }
    nsModEditor::ModEditor* editor() const { return module<nsModEditor::ModEditor>(); }
    nsModConfig::ModConfig* config() const { return module<nsModConfig::ModConfig>(); }
    QWidget* page() const { return module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs); }
    EditorWidget* open(const QString& name)
    {
        EXPECT_TRUE(editor()->openFile(source(name)));
        page()->setFocus();
        return qobject_cast<EditorWidget*>(page());
    }
    QTabWidget* tabs() const { return window->findChild<QTabWidget*>("widgetAreaTabs"); }
    QTreeWidget* navigator() const { return window->findChild<QTreeWidget*>("codeNavi"); }
    QPushButton* dialogButton(const QString& text) const
    {
        for (QPushButton* button : window->findChild<QWidget*>("configDialog")->findChildren<QPushButton*>()) {
            if (button->text() == text)
                return button;
        }
        return nullptr;
    }
    static bool isIn(const QWidget* widget, const QWidget* focus)
    {
        return widget != nullptr && focus != nullptr && (focus == widget || widget->isAncestorOf(focus));
    }
    /// Does a key that is pressed now reach the page of the centre?
    bool isInPage() const { return isIn(page(), QApplication::focusWidget()); }
    std::string where() const
    {
        const QWidget* focus = QApplication::focusWidget();
        return focus == nullptr ? "nowhere"
                                : focus->metaObject()->className() + (' ' + focus->objectName().toStdString());
    }
    static void clickItem(QTreeWidget* tree, QTreeWidgetItem* item, bool twice)
    {
        tree->scrollToItem(item);
        const QPoint pos = tree->visualItemRect(item).center();
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
        if (twice)
            QTest::mouseDClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    }
};

} // namespace

TEST_F(Focus, isInTheDocumentAfterTheSettings)
{
    EditorWidget* widget = open("main.psm");
    for (const char* text : {"Apply and close", "&Cancel"}) {
        config()->openDialog();
        EXPECT_TRUE(isInPage()) << where();
        QPushButton* button = dialogButton(text);
        ASSERT_NE(button, nullptr);
        QTest::mouseClick(button, Qt::LeftButton);
        ASSERT_EQ(page(), widget) << text;
        EXPECT_TRUE(isInPage()) << text << ": " << where();
        QTest::keyClicks(QApplication::focusWidget(), "; typed ");
        EXPECT_TRUE(widget->toPlainText().contains("; typed ")) << text;
    }
}

TEST_F(Focus, isInTheNextDocumentAfterOneIsClosed)
{
    open("main.psm");
    open("uart.psm");
    EditorWidget* closed = open("timer.psm");
    QTest::mouseClick(tabs()->findChild<QPushButton*>("buttonCloseTab"), Qt::LeftButton);
    ASSERT_NE(page(), closed);
    EXPECT_TRUE(isInPage()) << where();
    editor()->closeFile();
    EXPECT_TRUE(isInPage()) << where();
}

TEST_F(Focus, isInThePageWhoseTabIsClicked)
{
    EditorWidget* first = open("main.psm");
    open("uart.psm");
    messageView()->setFocus();
    ASSERT_FALSE(isInPage());
    QTest::mouseClick(tabs()->tabBar(), Qt::LeftButton, Qt::NoModifier,
                      tabs()->tabBar()->tabRect(tabs()->indexOf(first)).center());
    ASSERT_EQ(page(), first);
    EXPECT_TRUE(QTest::qWaitFor([this] { return isInPage(); }, 60000)) << where();
    // Also where it is in front already.
    messageView()->setFocus();
    ASSERT_FALSE(isInPage());
    QTest::mouseClick(tabs()->tabBar(), Qt::LeftButton, Qt::NoModifier,
                      tabs()->tabBar()->tabRect(tabs()->indexOf(first)).center());
    EXPECT_TRUE(QTest::qWaitFor([this] { return isInPage(); }, 60000)) << where();
}

TEST_F(Focus, isInTheSourceThatAMessageLeadsTo)
{
    EditorWidget* widget = open("main.psm");
    widget->moveCursor(QTextCursor::End);
    widget->insertText("        LOAD s0, not_there\n");
    editor()->saveAllFiles();
    QTreeWidgetItem* message = nullptr;
    for (QTreeWidgetItemIterator it(messageView()); *it != nullptr; ++it) {
        if ((*it)->text(0).startsWith("Unsupported argument: not_there"))
            message = *it;
    }
    ASSERT_NE(message, nullptr);
    clickItem(messageView(), message, false);
    ASSERT_EQ(page(), widget);
    EXPECT_TRUE(isInPage()) << where();
    messageView()->setFocus();
    messageView()->setCurrentItem(message);
    QTest::keyClick(messageView(), Qt::Key_Return);
    EXPECT_TRUE(isInPage()) << where();
}

TEST_F(Focus, isInTheSourceThatTheNavigatorLeadsTo)
{
    open("main.psm");
    const QList<QTreeWidgetItem*> items = navigator()->findItems("Scratchpad", Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_FALSE(items.isEmpty());
    // The first time another page comes up, the second time it is in front already.
    for (int round = 0; round < 2; ++round) {
        navigator()->setFocus();
        clickItem(navigator(), items.first(), true);
        EXPECT_TRUE(isInPage()) << where();
        EXPECT_NE(qobject_cast<EditorWidget*>(page()), nullptr);
    }
}

TEST_F(Focus, isInADocumentThatIsOpenedFromTheMenu)
{
    open("main.psm");
    messageView()->setFocus();
    const QString path = source("uart.psm");
    ModalAnswers answers({[&](QDialog* dialog) {
        dialog->findChild<QLineEdit*>()->setText(path);
        dialog->accept();
    }});
    for (QAction* candidate : window->findChildren<QAction*>()) {
        if (candidate->text() == "Open...")
            candidate->trigger();
    }
    EXPECT_EQ(answers.seen(), 1);
    ASSERT_EQ(qobject_cast<EditorWidget*>(page())->filePath(), path);
    // Here no window manager gives the window its place back after the dialog.
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
    EXPECT_TRUE(isInPage()) << where();
}

TEST_F(Focus, staysInADockWhenAPageChangesByItself)
{
    open("main.psm");
    navigator()->setFocus();
    editor()->setLineHighlighted(source("uart.psm"), 3);
    EXPECT_EQ(qobject_cast<EditorWidget*>(page())->filePath(), source("uart.psm"));
    EXPECT_TRUE(isIn(navigator(), QApplication::focusWidget())) << where();
}
