// The end of the program and of a project with documents that are not saved, in the whole window.

#include "MainWindowFixture.h"
#include "ModalAnswers.h"

#include "EditorRecovery.h"
#include "EditorStatusBar.h"
#include "EditorWidget.h"
#include "ModEditor.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"
#include "ModSources.h"
#include "MyNoticeBar.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>

using nsModEditor::EditorWidget;

namespace {

const char* const project = "<project version=\"3\"><sources><srcFiles>a.psm</srcFiles></sources></project>\n";

class NothingLost : public MainWindowFixture
{
protected:
    NothingLost()
    {
        writeFile("a.psm", "; a\n");
        writeFile("p.nalvo", project);
        makeWindow();
    }
    ~NothingLost() override
    {
        // Nobody is asked any more.
        for (EditorWidget* widget : editor()->editorWidgets())
            widget->clearModified();
    }

    nsModEditor::ModEditor* editor() const { return module<nsModEditor::ModEditor>(); }
    nsModPrj::ModPrj* prj() const { return module<nsModPrj::ModPrj>(); }
    QString path(const char* name) const { return projectDir() + '/' + name; }
    void openProject()
    {
        ASSERT_TRUE(prj()->openPrj(path("p.nalvo")));
        window->activateWindow();
    }
    EditorWidget* current() const
    {
        return qobject_cast<EditorWidget*>(module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs));
    }
    void type(const char* text)
    {
        ASSERT_NE(current(), nullptr);
        current()->setFocus();
        QTest::keyClicks(current(), text);
    }
    static QByteArray content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QAction* action(const QString& text) const
    {
        for (QAction* candidate : window->findChildren<QAction*>()) {
            if (candidate->text() == text)
                return candidate;
        }
        return nullptr;
    }
    static std::function<void(QDialog*)> answer(QMessageBox::StandardButton button)
    {
        return [button](QDialog* dialog) {
            auto* box = qobject_cast<QMessageBox*>(dialog);
            ASSERT_NE(box, nullptr);
            box->button(button)->click();
        };
    }
    static std::function<void(QDialog*)> chooseFile(const QString& path)
    {
        return [path](QDialog* dialog) {
            auto* files = qobject_cast<QFileDialog*>(dialog);
            ASSERT_NE(files, nullptr);
            files->selectFile(path);
            static_cast<QDialog*>(files)->accept();
        };
    }
};

TEST_F(NothingLost, theQuestionAtTheEndComesWhileTheWindowIsWhole)
{
    openProject();
    ASSERT_TRUE(editor()->openFile(path("a.psm")));
    type("X");
    const QString title = window->windowTitle();
    {
        ModalAnswers answers({[&](QDialog* dialog) {
            auto* box = qobject_cast<QMessageBox*>(dialog);
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->windowTitle(), "File was modified");
            EXPECT_TRUE(box->defaultButton() == box->button(QMessageBox::No));
            EXPECT_TRUE(window->isVisible());
            EXPECT_EQ(window->windowTitle(), title);
            EXPECT_TRUE(prj()->isValid());
            EXPECT_NE(editor()->statusBar()->parentWidget(), nullptr);
            EXPECT_TRUE(module<ModGuiHookIf>()->hasWidget(ModGuiHookIf::eLocationStatusFirst, editor()->statusBar()));
            QTest::keyClick(dialog, Qt::Key_Escape);
        }});
        EXPECT_TRUE(closeWindow());
        EXPECT_EQ(answers.seen(), 1);
    }
    EXPECT_EQ(content(path("a.psm")), "; a\n");

    // The next start offers what Esc has dropped.
    makeWindow();
    auto* bar = window->findChild<MyNoticeBar*>();
    ASSERT_NE(bar, nullptr);
    EXPECT_TRUE(bar->isVisible());
    openProject();
    EXPECT_TRUE(bar->isVisible());
    screenshot("recoveryNotice");
    ModalAnswers restore({[&](QDialog* dialog) {
        screenshot("recoverDialog", dialog);
        dialog->findChild<QPushButton*>("recoverRestore")->click();
    }});
    static_cast<QPushButton*>(bar->firstControl())->click();
    EXPECT_EQ(restore.seen(), 1);
    ASSERT_NE(current(), nullptr);
    EXPECT_EQ(current()->text(), "X; a\n");
    EXPECT_TRUE(current()->isModified());
    EXPECT_EQ(window->focusWidget(), current());
    EXPECT_EQ(content(path("a.psm")), "; a\n");
}

TEST_F(NothingLost, aProjectThatCanNotBeSavedAtTheEndIsTriedAgain)
{
    openProject();
    prj()->setValue("ModX/key", QString("new"));
    QFile::rename(path("p.nalvo"), path("aside"));
    ASSERT_TRUE(QDir().mkpath(path("p.nalvo")));
    ModalAnswers answers({[&](QDialog* dialog) {
                              EXPECT_EQ(dialog->windowTitle(), "Project can not be saved");
                              EXPECT_TRUE(window->isVisible());
                              QTest::keyClick(dialog, Qt::Key_Escape);
                          },
                          [&](QDialog* dialog) {
                              EXPECT_EQ(dialog->windowTitle(), "Project can not be saved");
                              EXPECT_TRUE(QDir().rmdir(path("p.nalvo")));
                              QTest::keyClick(dialog, Qt::Key_Return);
                          }});
    EXPECT_TRUE(closeWindow());
    EXPECT_EQ(answers.seen(), 2);
    EXPECT_TRUE(content(path("p.nalvo")).contains("<key>new</key>"));
}

TEST_F(NothingLost, aClosedNoticeDoesNotComeAgain)
{
    openProject();
    ASSERT_TRUE(editor()->openFile(path("a.psm")));
    type("X");
    editor()->recovery()->writeChanged();
    editor()->recovery()->waitForDone();
    // The end of the window without a close: as after a kill.
    makeWindow();
    auto* bar = window->findChild<MyNoticeBar*>();
    ASSERT_NE(bar, nullptr);
    bar->findChild<QPushButton*>("noticeBarClose")->click();
    EXPECT_FALSE(module<ModGuiHookIf>()->widgetVisible(ModGuiHookIf::eLocationCenterBelow));
    EXPECT_TRUE(closeWindow());
    makeWindow();
    EXPECT_EQ(window->findChild<MyNoticeBar*>(), nullptr);
    // The text is there all the same.
    EXPECT_EQ(editor()->recovery()->store()->entries().size(), 1);
}

TEST_F(NothingLost, aNewDocumentThatIsSavedAtTheEndBecomesAMember)
{
    openProject();
    editor()->newFile("; new\n");
    ModalAnswers answers({answer(QMessageBox::Yes), chooseFile(path("new.psm")), answer(QMessageBox::Yes)});
    EXPECT_TRUE(closeWindow());
    EXPECT_EQ(answers.seen(), 3);
    EXPECT_EQ(content(path("new.psm")), "; new\n");
    makeWindow();
    openProject();
    EXPECT_EQ(module<nsModSources::ModSources>()->files(), QStringList({path("a.psm"), path("new.psm")}));
}

TEST_F(NothingLost, withoutAProjectMembershipIsNotAskedFor)
{
    editor()->newFile("; new\n");
    ModalAnswers answers({answer(QMessageBox::Yes), chooseFile(path("new.psm"))});
    EXPECT_TRUE(closeWindow());
    EXPECT_EQ(answers.seen(), 2);
    EXPECT_EQ(content(path("new.psm")), "; new\n");
}

TEST_F(NothingLost, closingTheProjectAsksWhileItIsOpen)
{
    openProject();
    ASSERT_TRUE(editor()->openFile(path("a.psm")));
    type("X");
    const QString title = window->windowTitle();
    ModalAnswers answers({[&](QDialog* dialog) {
        EXPECT_EQ(window->windowTitle(), title);
        EXPECT_TRUE(prj()->isValid());
        dialog->reject();
    }});
    action("Close project")->trigger();
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_FALSE(prj()->isValid());
    EXPECT_TRUE(messageTexts().contains("The unsaved text of a.psm is kept: File > Recover text..."))
        << messageTexts().join('\n').toStdString();
    // The user was told, so the next start has nothing to say.
    makeWindow();
    EXPECT_EQ(window->findChild<MyNoticeBar*>(), nullptr);
    EXPECT_EQ(editor()->recovery()->store()->entries().size(), 1);
}

TEST_F(NothingLost, theOpenDocumentsOfAKilledProgramComeBack)
{
    writeFile("b.psm", "; b\n");
    openProject();
    ModalAnswers answers({answer(QMessageBox::No)});
    ASSERT_TRUE(editor()->openFile(path("b.psm")));
    editor()->recovery()->writeChanged();
    editor()->recovery()->waitForDone();
    makeWindow();
    ModalAnswers again({answer(QMessageBox::No)});
    openProject();
    ASSERT_NE(current(), nullptr);
    EXPECT_EQ(current()->filePath(), path("b.psm"));
}

} // namespace
