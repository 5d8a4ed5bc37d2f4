// F1 and the help button in modal dialogs, in front of which the page is shown.

#include "MainWindowFixture.h"
#include "ModalAnswers.h"

#include "ConsentQuestion.h"
#include "HelpRef.h"
#include "HlpDialogWindow.h"
#include "HlpWidget.h"
#include "ModGuiHookIf.h"
#include "QtPrinters.h"
#include "TextCompareDialog.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWebView>
#include <QWhatsThisClickedEvent>

using nsModHlp::HlpDialogWindow;

namespace {

class HelpInDialogs : public MainWindowFixture
{
protected:
    HelpInDialogs()
    {
        writeSetting("ModHlp/showGettingStarted", "0");
        makeWindow();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
    }

    static HlpDialogWindow* helpOf(QDialog* dialog)
    {
        for (auto* help : dialog->findChildren<HlpDialogWindow*>()) {
            if (help->isVisible())
                return help;
        }
        return nullptr;
    }
    /// The page in front of the dialog.
    static QString pageOf(QDialog* dialog)
    {
        const HlpDialogWindow* help = helpOf(dialog);
        return help == nullptr ? "no page"
                               : help->page()->source().fileName() + '#' + help->page()->source().fragment();
    }
    static void pressF1In(QWidget* field) { QTest::keyClick(field, Qt::Key_F1); }
    static QWidget* fieldOf(QDialog* dialog)
    {
        return dialog->focusWidget() != nullptr ? dialog->focusWidget() : dialog;
    }
    static void closeHelp(QDialog* dialog)
    {
        const QPointer<HlpDialogWindow> help(helpOf(dialog));
        ASSERT_NE(help, nullptr);
        QTest::keyClick(help->page()->view(), Qt::Key_Escape);
        EXPECT_TRUE(QTest::qWaitFor([&] { return help == nullptr; }, 60000));
        EXPECT_TRUE(dialog->isVisible());
    }
    bool isCentreLeftAlone() const
    {
        for (QWidget* widget : module<ModGuiHookIf>()->centerWidgetList()) {
            if (qobject_cast<nsModHlp::HlpWidget*>(widget) != nullptr)
                return false;
        }
        return true;
    }
};

TEST_F(HelpInDialogs, aQuestionOfConsent)
{
    QString byKey;
    QString byButton;
    ModalAnswers answers({[&](QDialog* dialog) {
        pressF1In(fieldOf(dialog));
        byKey = pageOf(dialog);
        const QWebView* view = helpOf(dialog)->page()->view();
        EXPECT_TRUE(QTest::qWaitFor([&] { return view->title() == "External programs"; }, 60000));
        EXPECT_EQ(helpOf(dialog)->windowTitle(), "External programs");
        // Once it is painted.
        settleLayout();
        const auto isPainted = [&] {
            const QImage image = helpOf(dialog)->page()->grab().toImage();
            const QRgb first = image.pixel(0, 0);
            int others = 0;
            for (int x = 0; x < image.width(); ++x)
                others += image.pixel(x, image.height() / 4) != first;
            return others > 40;
        };
        EXPECT_TRUE(QTest::qWaitFor(isPainted, 60000));
        screenshot("help_in_dialog", helpOf(dialog));
        closeHelp(dialog);
        QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Help), Qt::LeftButton);
        byButton = pageOf(dialog);
        screenshot("consent_with_help", dialog);
        // The page goes with its dialog.
        QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Yes), Qt::LeftButton);
    }});
    EXPECT_EQ(ConsentQuestion::ask("Title", "Text", "act", "pageId://externalPrograms#consent"),
              ConsentQuestion::answerYes);
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_EQ(byKey, "externalprograms.html#consent");
    EXPECT_EQ(byButton, "externalprograms.html#consent");
    EXPECT_TRUE(isCentreLeftAlone());
}

TEST_F(HelpInDialogs, theListOfKeptTexts)
{
    QString page;
    QAction* recover = nullptr;
    for (QAction* action : window->findChildren<QAction*>()) {
        if (action->text().startsWith("Recover text"))
            recover = action;
    }
    ASSERT_NE(recover, nullptr);
    ModalAnswers answers({[&](QDialog* dialog) {
        pressF1In(fieldOf(dialog));
        page = pageOf(dialog);
    }});
    recover->trigger();
    EXPECT_EQ(page, "recovery.html#list");
}

TEST_F(HelpInDialogs, theComparison)
{
    QString compared;
    ModalAnswers answers({[&](QDialog* dialog) {
        pressF1In(fieldOf(dialog));
        compared = pageOf(dialog);
    }});
    TextCompareDialog compare(window.get());
    compare.setTexts("left", "a\n", "right", "b\n");
    compare.exec();
    EXPECT_EQ(compared, "recovery.html#compare");
}

TEST_F(HelpInDialogs, dialogsOnTopOfOneAnother)
{
    QDialog first(window.get());
    auto* box = new QVBoxLayout(&first);
    auto* field = new QLineEdit;
    box->addWidget(field);
    HelpRef::setWhatsThis(field, "A field", "pageId://langNumbers");
    HelpRef::set(&first, "pageId://langNames");
    int steps = 0;
    const auto inSecond = [&](QDialog* dialog) {
        // The page of the first dialog is locked as the dialog is.
        EXPECT_EQ(pageOf(&first), "langnames.html#");
        pressF1In(dialog);
        EXPECT_EQ(pageOf(dialog), "langstrings.html#");
        EXPECT_EQ(pageOf(&first), "langstrings.html#") << "it is a child of the first, too";
        EXPECT_EQ(first.findChildren<HlpDialogWindow*>().size(), 1);
        ++steps;
    };
    ModalAnswers answers({[&](QDialog* dialog) {
        ASSERT_EQ(dialog, &first);
        pressF1In(field);
        EXPECT_EQ(pageOf(&first), "langnumbers.html#");
        // At once again, before the closed one is deleted.
        helpOf(&first)->close();
        QWhatsThisClickedEvent link("pageId://langNames");
        QApplication::sendEvent(field, &link);
        EXPECT_EQ(pageOf(&first), "langnames.html#");
        // Modifiers make it another key.
        QTest::keyClick(field, Qt::Key_F1, Qt::ControlModifier);
        EXPECT_EQ(pageOf(&first), "langnames.html#");
        ++steps;
        QMessageBox question(QMessageBox::Question, "Second", "Text", QMessageBox::Ok, &first);
        HelpRef::set(&question, "pageId://langStrings");
        ModalAnswers inner({inSecond});
        question.exec();
    }});
    first.exec();
    EXPECT_EQ(steps, 2);
    EXPECT_TRUE(isCentreLeftAlone());
    // Without a dialog, the key is the window's again.
    module<ModGuiHookIf>()->setCurrentWidget(messageView());
    messageView()->setFocus();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
    QTest::keyClick(messageView(), Qt::Key_F1);
    EXPECT_FALSE(isCentreLeftAlone());
}

TEST_F(HelpInDialogs, aDialogThatLocksNothingLeavesThePageToTheCentre)
{
    QAction* import = nullptr;
    for (QAction* action : window->findChildren<QAction*>()) {
        if (action->text().startsWith("Import program"))
            import = action;
    }
    ASSERT_NE(import, nullptr);
    import->trigger();
    auto* dialog = window->findChild<QDialog*>("importProgramDialog");
    ASSERT_NE(dialog, nullptr);
    dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return dialog->isActiveWindow(); }, 60000));
    pressF1In(fieldOf(dialog));
    EXPECT_EQ(helpOf(dialog), nullptr);
    auto* page = qobject_cast<nsModHlp::HlpWidget*>(module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs));
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->source().fileName() + '#' + page->source().fragment(), "filesimport.html#program");
}

TEST_F(HelpInDialogs, theProgramEndsUnderThePage)
{
    QPointer<HlpDialogWindow> help;
    ModalAnswers answers({[&](QDialog* dialog) {
        pressF1In(fieldOf(dialog));
        help = helpOf(dialog);
        ASSERT_NE(help, nullptr);
        // The question belongs to the window and goes with it.
        window.reset();
    }});
    EXPECT_EQ(ConsentQuestion::ask("Title", "Text", "act", "pageId://configPageAsmFe#outside"),
              ConsentQuestion::answerNo);
    EXPECT_EQ(help, nullptr);
    QApplication::processEvents();
}

} // namespace
