// What the user has typed and not saved: kept while it is typed, kept when a close drops it, and given back.

#include "EditorModuleTest.h"

#include "EditorRecovery.h"
#include "EditorStatusBar.h"
#include "FullDisk.h"
#include "ModalAnswers.h"
#include "RecoverDialog.h"
#include "TextCompareDialog.h"
#include "TextCompareSide.h"

#include <QFileDialog>
#include <QLabel>
#include <QSignalSpy>
#include <QTreeWidget>

using nsModEditor::EditorRecovery;
using nsModEditor::EditorWidget;
using nsModEditor::ModEditor;

namespace {

class Recovery : public EditorModuleTest
{
protected:
    /// What the timer does some seconds after a change.
    void look()
    {
        editor.recovery()->writeChanged();
        editor.recovery()->waitForDone();
    }
    /// Paths and texts of the entries that lie on the disk, whosoever they are.
    static QMap<QString, QByteArray> onDisk()
    {
        QMap<QString, QByteArray> result;
        const RecoveryStore store;
        const QDir folder(RecoveryStore::defaultFolder());
        for (const QFileInfo& info : folder.entryInfoList({"*.new", "*.seen"}, QDir::Files)) {
            RecoveryStore::Entry entry;
            QByteArray text;
            EXPECT_TRUE(store.read(info.completeBaseName(), &entry, &text));
            result.insert(entry.path, text);
        }
        return result;
    }
    QMap<QString, QByteArray> kept(const QString& name, const QByteArray& text) const
    {
        return {{name.isEmpty() ? QString() : path(name), text}};
    }
    QList<RecoveryStore::Entry> entries() { return editor.recovery()->store()->entries(); }

    /// A program that is killed while its documents are open. @param work what its user does before
    void killed(const std::function<void(ModEditor*)>& work)
    {
        ModEditor other;
        msg.attach(static_cast<ModMsgPluginIf*>(&other));
        gui.registerPlugin(static_cast<ModGuiPluginIf*>(&other));
        sources.registerPlugin(&other);
        other.modPrjHook = &prj;
        other.modCfgAppHook = &cfg;
        other.modInit();
        other.modInitIntermod();
        other.prjOpen();
        work(&other);
        other.recovery()->writeChanged();
        other.recovery()->waitForDone();
        sources.unregisterPlugin(&other);
        for (EditorWidget* widget : other.editorWidgets())
            gui.removeWidget(widget);
        gui.removeWidget(other.statusBar());
    }
    QAction* recoverAction() { return action(ModActionHookIf::eActionClassFile, "Recover text..."); }
    static void press(QDialog* dialog, const char* name)
    {
        auto* button = dialog->findChild<QPushButton*>(name);
        ASSERT_NE(button, nullptr) << name;
        EXPECT_TRUE(button->isEnabled()) << name;
        button->click();
    }
    /// The same for a button that opens a further dialog: the timer that leads here must not stand below that one.
    static void pressSoon(QDialog* dialog, const char* name)
    {
        QTimer::singleShot(0, dialog, [dialog, name] { press(dialog, name); });
    }
};

TEST_F(Recovery, aChangedTextIsKeptUntilItIsSaved)
{
    EditorWidget* widget = open("a.psm", "NOP");
    look();
    EXPECT_TRUE(onDisk().isEmpty());
    type(widget, "X");
    look();
    EXPECT_EQ(onDisk(), kept("a.psm", "XNOP"));
    type(widget, "Y");
    look();
    EXPECT_EQ(onDisk(), kept("a.psm", "XYNOP"));
    EXPECT_TRUE(editor.saveFile());
    editor.recovery()->waitForDone();
    EXPECT_TRUE(onDisk().isEmpty());
}

TEST_F(Recovery, theTimerDoesIt)
{
    type(open("a.psm", "NOP"), "X");
    editor.recovery()->setDelay(1);
    QSignalSpy looks(editor.recovery(), &EditorRecovery::looking);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !looks.isEmpty(); }, 60000));
    editor.recovery()->waitForDone();
    EXPECT_EQ(onDisk(), kept("a.psm", "XNOP"));
}

TEST_F(Recovery, anUndoneChangeIsNoChange)
{
    EditorWidget* widget = open("a.psm", "NOP");
    type(widget, "X");
    look();
    widget->undo();
    ASSERT_FALSE(widget->isModified());
    look();
    EXPECT_TRUE(onDisk().isEmpty());
}

TEST_F(Recovery, aChangeInAnOpenUndoStepIsKept)
{
    EditorWidget* widget = open("a.psm", "NOP");
    type(widget, "X");
    look();
    // On the first line this leaves the step open.
    widget->moveLineUp();
    type(widget, "Y");
    look();
    EXPECT_EQ(onDisk().value(path("a.psm")), widget->text().toUtf8());
    EXPECT_TRUE(widget->text().contains('Y'));
}

TEST_F(Recovery, theRightsOfKeptTextsAreThoseOfTheirUserAlone)
{
    type(open("a.psm", "NOP"), "X");
    look();
    struct stat status = {};
    ASSERT_EQ(stat(RecoveryStore::defaultFolder().toLocal8Bit().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700u);
}

TEST_F(Recovery, noAndEscKeepTheText)
{
    for (const bool esc : {false, true}) {
        type(open("a.psm", "NOP"), esc ? "E" : "N");
        msg.reset();
        ModalHelper helper([esc](QDialog* dialog) {
            if (esc)
                QTest::keyClick(dialog, Qt::Key_Escape);
            else
                answer(QMessageBox::No)(dialog);
        });
        editor.closeFile();
        EXPECT_TRUE(editor.editorWidgets().isEmpty());
        EXPECT_EQ(read("a.psm"), "NOP");
        ASSERT_EQ(entries().size(), esc ? 2 : 1);
        EXPECT_EQ(entries().first().kind, RecoveryStore::eKindDropped);
        EXPECT_TRUE(onDisk().values().contains(esc ? "ENOP" : "NNOP"));
        EXPECT_EQ(msg.infos(), QStringList({"The unsaved text of a.psm is kept: File > Recover text..."}));
    }
}

TEST_F(Recovery, aCancelledFileDialogWhileClosingKeepsTheText)
{
    editor.newFile("untitled");
    ModalAnswers answers({answer(QMessageBox::Yes), [](QDialog* dialog) { dialog->reject(); }});
    editor.closeFile();
    EXPECT_EQ(answers.seen(), 2);
    EXPECT_EQ(onDisk(), kept(QString(), "untitled"));
    EXPECT_EQ(msg.infos(), QStringList({"The unsaved text of Untitled is kept: File > Recover text..."}));
}

TEST_F(Recovery, aFailedSaveAtTheEndKeepsTheText)
{
    type(open("a.psm", "NOP"), "X");
    QFile::remove(path("a.psm"));
    ASSERT_TRUE(QDir(dir.path()).mkdir("a.psm"));
    ModalHelper helper(answer(QMessageBox::Yes));
    EXPECT_TRUE(editor.modExitRequest());
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(onDisk(), kept("a.psm", "XNOP"));
    ASSERT_EQ(entries().size(), 1);
    // Nobody can read the message any more: the next start reports it.
    EXPECT_TRUE(entries().first().isNew);
}

TEST_F(Recovery, aTextThatWasChangedAfterTheAnswerIsAskedForAgain)
{
    EditorWidget* widget = open("a.psm", "NOP");
    type(widget, "X");
    ModalAnswers answers({answer(QMessageBox::No), answer(QMessageBox::No)});
    EXPECT_TRUE(editor.modExitRequest());
    type(widget, "Y");
    editor.closeFile();
    EXPECT_EQ(answers.seen(), 2);
    EXPECT_EQ(onDisk(), kept("a.psm", "XYNOP"));
}

TEST_F(Recovery, reloadingKeepsWhatItOverwrites)
{
    EditorWidget* widget = open("a.psm", "NOP");
    type(widget, "X");
    ModalHelper helper(answer(QMessageBox::Yes));
    editor.reloadFile();
    EXPECT_EQ(widget->toPlainText(), "NOP");
    EXPECT_EQ(onDisk(), kept("a.psm", "XNOP"));
    look();
    EXPECT_EQ(onDisk(), kept("a.psm", "XNOP"));
}

TEST_F(Recovery, withoutRoomAnywhereTheTextIsNotGivenUpByEsc)
{
    type(open("a.psm", "NOP"), "X");
    {
        const FullDisk disk(0);
        ModalAnswers answers({answer(QMessageBox::No), [](QDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); },
                              [](QDialog* dialog) {
                                  EXPECT_NE(qobject_cast<QFileDialog*>(dialog), nullptr);
                                  dialog->reject();
                              },
                              [](QDialog* dialog) {
                                  auto* box = qobject_cast<QMessageBox*>(dialog);
                                  ASSERT_NE(box, nullptr);
                                  EXPECT_EQ(box->windowTitle(), "Text can not be kept");
                                  box->button(QMessageBox::Yes)->click();
                              }});
        editor.closeFile();
        EXPECT_EQ(answers.seen(), 4);
    }
    EXPECT_EQ(msg.errors().filter("The unsaved text of a.psm can not be kept: ").size(), 2);
    EXPECT_EQ(read("a.psm"), "NOP");
}

TEST_F(Recovery, thatNothingCanBeKeptIsReportedOnceAndTriedAgain)
{
    EditorWidget* widget = open("a.psm", "NOP");
    type(widget, "X");
    QSignalSpy failures(editor.recovery(), &EditorRecovery::failed);
    {
        const FullDisk disk(0);
        look();
        QCoreApplication::processEvents();
        look();
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(failures.size(), 1);
    EXPECT_EQ(msg.warnings().filter(qt_error_string(EFBIG)).size(), 1);
    look();
    EXPECT_EQ(onDisk(), kept("a.psm", "XNOP"));
}

TEST_F(Recovery, aKillLeavesTheTextsToTheNextStart)
{
    write("a.psm", "NOP");
    killed([this](ModEditor* other) {
        EXPECT_TRUE(other->openFile(path("a.psm")));
        type(other->editorWidgets().first(), "X");
        other->newFile("untitled");
        other->recovery()->writeChanged();
        other->recovery()->waitForDone();
        // They are not those of a program that is alive.
        EXPECT_TRUE(entries().isEmpty());
    });
    EXPECT_EQ(read("a.psm"), "NOP");
    ASSERT_EQ(entries().size(), 2);
    editor.modRun();
    auto* bar = gui.current.value(ModGuiHookIf::eLocationCenterBelow);
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->findChild<QLabel*>("noticeBarText")->text(),
              "2 texts were not saved when the program ended. They have been kept.");
}

TEST_F(Recovery, withoutLeftTextsThereIsNoNotice)
{
    editor.modRun();
    EXPECT_EQ(gui.current.value(ModGuiHookIf::eLocationCenterBelow), nullptr);
}

TEST_F(Recovery, aTextIsComparedAndRestored)
{
    write("a.psm", "NOP\n");
    killed([this](ModEditor* other) {
        EXPECT_TRUE(other->openFile(path("a.psm")));
        type(other->editorWidgets().first(), "X");
    });
    ModalAnswers answers({[&](QDialog* dialog) {
        auto* list = dialog->findChild<QTreeWidget*>("recoverList");
        ASSERT_EQ(list->topLevelItemCount(), 1);
        EXPECT_EQ(list->topLevelItem(0)->text(0), "a.psm");
        press(dialog, "recoverRestore");
        EXPECT_EQ(list->topLevelItemCount(), 0);
    }});
    recoverAction()->trigger();
    EXPECT_EQ(answers.seen(), 1);
    EditorWidget* widget = document("a.psm");
    ASSERT_NE(widget, nullptr);
    EXPECT_EQ(widget->text(), "XNOP\n");
    EXPECT_TRUE(widget->isModified());
    EXPECT_EQ(read("a.psm"), "NOP\n");
    // It is safe until it is saved, and can be taken back.
    EXPECT_EQ(onDisk(), kept("a.psm", "XNOP\n"));
    widget->undo();
    EXPECT_EQ(widget->text(), "NOP\n");
    widget->redo();
    EXPECT_TRUE(editor.saveFile());
    editor.recovery()->waitForDone();
    EXPECT_TRUE(onDisk().isEmpty());
}

TEST_F(Recovery, comparingShowsTheKeptTextBesideTheFile)
{
    write("a.psm", "NOP\n");
    killed([this](ModEditor* other) {
        EXPECT_TRUE(other->openFile(path("a.psm")));
        type(other->editorWidgets().first(), "X");
    });
    int differences = -1;
    bool isPressed = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (auto* compare = qobject_cast<TextCompareDialog*>(modal)) {
            differences = compare->differenceCount();
            compare->done(2);
        } else if (auto* dialog = qobject_cast<nsModEditor::RecoverDialog*>(modal)) {
            if (!isPressed)
                pressSoon(dialog, "recoverCompare");
            else if (differences >= 0)
                dialog->reject();
            isPressed = true;
        }
    });
    timer.start(1);
    recoverAction()->trigger();
    EXPECT_EQ(differences, 1);
    ASSERT_NE(document("a.psm"), nullptr);
    EXPECT_EQ(document("a.psm")->text(), "XNOP\n");
}

TEST_F(Recovery, aTextIsNotRestoredIntoAFileThatCanNotBeEdited)
{
    write("a.psm", "NOP\n");
    killed([this](ModEditor* other) {
        EXPECT_TRUE(other->openFile(path("a.psm")));
        type(other->editorWidgets().first(), "X");
    });
    write("a.psm", QByteArray(8, '\0'));
    ModalAnswers answers({[](QDialog* dialog) { press(dialog, "recoverRestore"); }});
    recoverAction()->trigger();
    EXPECT_EQ(answers.seen(), 1);
    ASSERT_FALSE(editor.editorWidgets().isEmpty());
    EditorWidget* widget = editor.editorWidgets().last();
    EXPECT_TRUE(widget->filePath().isEmpty());
    EXPECT_EQ(widget->text(), "XNOP\n");
    look();
    EXPECT_TRUE(onDisk().values().contains("XNOP\n"));
    EXPECT_EQ(read("a.psm"), QByteArray(8, '\0'));
}

TEST_F(Recovery, takingAFileThatCanNotBeShownKeepsTheText)
{
    EditorWidget* widget = open("a.psm", "NOP\n");
    type(widget, "X");
    write("a.psm", QByteArray("\xff\xfeN\0O\0", 6));
    ModalAnswers answers({[](QDialog* dialog) {
        for (QAbstractButton* button : dialog->findChildren<QAbstractButton*>()) {
            if (button->text() == "Take the file")
                button->click();
        }
    }});
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_TRUE(widget->isReadOnly());
    look();
    EXPECT_EQ(onDisk(), kept("a.psm", "XNOP\n"));
}

TEST_F(Recovery, theTextOfAFileThatWasRemovedOutsideIsKeptWhenItCloses)
{
    open("a.psm", "NOP\n");
    QFile::remove(path("a.psm"));
    editor.closeFile();
    EXPECT_EQ(document("a.psm"), nullptr);
    look();
    EXPECT_EQ(onDisk(), kept("a.psm", "NOP\n"));
}

TEST_F(Recovery, aKeptTextDiffersFromAFileWithOtherLineEndsByItsChangesAlone)
{
    write("a.psm", "\xEF\xBB\xBFNOP\r\nRET\r\n");
    killed([this](ModEditor* other) {
        EXPECT_TRUE(other->openFile(path("a.psm")));
        type(other->editorWidgets().first(), "X");
    });
    int differences = -1;
    bool isPressed = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (auto* compare = qobject_cast<TextCompareDialog*>(modal)) {
            differences = compare->differenceCount();
            EXPECT_EQ(compare->findChildren<TextCompareSide*>().size(), 2);
            compare->done(0);
        } else if (auto* dialog = qobject_cast<nsModEditor::RecoverDialog*>(modal)) {
            if (!isPressed)
                pressSoon(dialog, "recoverCompare");
            else if (differences >= 0)
                dialog->reject();
            isPressed = true;
        }
    });
    timer.start(1);
    recoverAction()->trigger();
    EXPECT_EQ(differences, 1);
}

TEST_F(Recovery, aTextWithoutAFileComesBackWithoutOne)
{
    killed([](ModEditor* other) { other->newFile("untitled"); });
    ModalAnswers answers({[&](QDialog* dialog) { press(dialog, "recoverRestore"); }});
    recoverAction()->trigger();
    ASSERT_EQ(editor.editorWidgets().size(), 1);
    EXPECT_EQ(editor.editorWidgets().first()->text(), "untitled");
    EXPECT_EQ(editor.editorWidgets().first()->filePath(), QString());
    EXPECT_TRUE(editor.editorWidgets().first()->isModified());
}

TEST_F(Recovery, aTextWhoseFileHasVanishedComesBackUnderItsName)
{
    write("a.psm", "NOP");
    killed([this](ModEditor* other) {
        EXPECT_TRUE(other->openFile(path("a.psm")));
        type(other->editorWidgets().first(), "X");
    });
    QFile::remove(path("a.psm"));
    ModalAnswers answers({[&](QDialog* dialog) { press(dialog, "recoverRestore"); }});
    recoverAction()->trigger();
    ASSERT_NE(document("a.psm"), nullptr);
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(read("a.psm"), "XNOP");
}

TEST_F(Recovery, withoutAProjectATextCanBeReadButNotRestored)
{
    killed([](ModEditor* other) { other->newFile("untitled"); });
    editor.prjClose();
    prj.path.clear();
    ModalAnswers answers({[&](QDialog* dialog) {
        EXPECT_FALSE(dialog->findChild<QPushButton*>("recoverRestore")->isEnabled());
        EXPECT_TRUE(dialog->findChild<QPushButton*>("recoverCompare")->isEnabled());
    }});
    EXPECT_TRUE(recoverAction()->isEnabled());
    recoverAction()->trigger();
    EXPECT_EQ(answers.seen(), 1);
}

TEST_F(Recovery, deletingAsksFirst)
{
    killed([](ModEditor* other) { other->newFile("untitled"); });
    QList<QMessageBox::StandardButton> replies{QMessageBox::No, QMessageBox::Yes};
    int pressed = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (auto* box = qobject_cast<QMessageBox*>(modal)) {
            EXPECT_TRUE(box->defaultButton() == box->button(QMessageBox::No));
            EXPECT_EQ(onDisk().size(), 1);
            box->button(replies.takeFirst())->click();
        } else if (auto* dialog = qobject_cast<nsModEditor::RecoverDialog*>(modal)) {
            if (replies.isEmpty())
                dialog->reject();
            else if (pressed == 2 - replies.size() && ++pressed > 0)
                pressSoon(dialog, "recoverDelete");
        }
    });
    timer.start(1);
    recoverAction()->trigger();
    EXPECT_TRUE(onDisk().isEmpty());
}

TEST_F(Recovery, theListOfOpenDocumentsSurvivesAKill)
{
    editor.prjClose();
    write("a.psm", "0\n1\n2\n");
    write("b.psm", "NOP");
    write("c.psm", "NOP");
    prj.setValue("ModEditor/openFiles", QStringList({"c.psm"}));
    killed([this](ModEditor* other) {
        other->closeAllFiles();
        EXPECT_TRUE(other->openFile(path("b.psm")));
        EXPECT_TRUE(other->openFile(path("a.psm")));
        other->editorWidgets().last()->setCursorPos(3);
    });
    editor.prjOpen();
    EXPECT_EQ(editor.editorWidgets().size(), 2);
    ASSERT_NE(document("a.psm"), nullptr);
    EXPECT_NE(document("b.psm"), nullptr);
    EXPECT_EQ(gui.currentWidget(ModGuiHookIf::eLocationTabs), document("a.psm"));
    EXPECT_EQ(document("a.psm")->cursorPos(), 3);
    // A close in good order leaves the word to the project file.
    look();
    editor.prjClose();
    editor.recovery()->waitForDone();
    editor.prjOpen();
    EXPECT_EQ(editor.editorWidgets().size(), 1);
    EXPECT_NE(document("c.psm"), nullptr);
}

} // namespace
