// Documents and their files: what is written back, what others change meanwhile, and what is never overwritten.

#include "EditorModuleTest.h"

#include "EditorStatusBar.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QTextBlock>
#include <QToolButton>

#include <sys/stat.h>
#include <unistd.h>

using nsModEditor::EditorWidget;

namespace {

const int generous = 60000; ///< milliseconds; never reached when all is well

class OnDisk : public EditorModuleTest
{
protected:
    /// Writes a file as another program does that replaces it.
    void replace(const QString& name, const QByteArray& content) const
    {
        write(name + ".new", content);
        QFile::remove(path(name));
        EXPECT_TRUE(QFile::rename(path(name + ".new"), path(name)));
    }
    /// The bar that stands at the upper edge, null for none.
    static QFrame* notice(EditorWidget* widget)
    {
        for (QFrame* bar : widget->findChildren<QFrame*>("noticeBar")) {
            if (!bar->isHidden())
                return bar;
        }
        return nullptr;
    }
    static bool hasNotice(EditorWidget* widget) { return notice(widget) != nullptr; }
    static QString noticeText(EditorWidget* widget)
    {
        return hasNotice(widget) ? notice(widget)->findChild<QLabel*>("noticeBarText")->text() : QString();
    }
    /// Presses a button of the bar of a document.
    static void press(EditorWidget* widget, const QString& text)
    {
        ASSERT_TRUE(hasNotice(widget));
        for (QAbstractButton* button : notice(widget)->findChildren<QAbstractButton*>()) {
            if (button->text().remove('&') == text) {
                button->click();
                return;
            }
        }
        ADD_FAILURE() << "there is no button " << text.toStdString();
    }
    QToolButton* formatButton() const { return editor.statusBar()->findChild<QToolButton*>("editorStatusBarFormat"); }
    void chooseFormat(const QString& text) const
    {
        ASSERT_NE(formatButton(), nullptr);
        for (QAction* candidate : formatButton()->menu()->actions()) {
            if (candidate->text().remove('&') == text) {
                candidate->trigger();
                return;
            }
        }
        ADD_FAILURE() << "there is no entry " << text.toStdString();
    }
};

/// Presses the button with this text in a question, "..." included.
std::function<void(QDialog*)> pressIn(const QString& text)
{
    return [text](QDialog* dialog) {
        for (QAbstractButton* button : dialog->findChildren<QAbstractButton*>()) {
            if (button->text().remove('&') == text) {
                button->click();
                return;
            }
        }
        ADD_FAILURE() << "there is no button " << text.toStdString();
    };
}

// --- two documents, one file ---

TEST_F(OnDisk, aNameOfAnotherOpenDocumentIsRefused)
{
    open("a.psm", "A");
    EditorWidget* second = open("b.psm", "B");
    ASSERT_TRUE(QFile::link(path("a.psm"), path("link.psm")));
    type(second, "X");
    for (const QString& name : {path("a.psm"), dir.path() + "/./a.psm", path("link.psm")}) {
        EXPECT_FALSE(editor.saveFileAs(name)) << name.toStdString();
        EXPECT_EQ(second->filePath(), path("b.psm"));
        EXPECT_EQ(read("a.psm"), "A");
        EXPECT_TRUE(second->isModified());
        EXPECT_EQ(msg.errors().last(), "Can not save under the name of another open document: " + name);
    }
    EXPECT_TRUE(sources.asked.filter("link").isEmpty());
    // Its own name is no other one.
    EXPECT_TRUE(editor.saveFileAs(path("b.psm")));
    EXPECT_EQ(read("b.psm"), "XB");
}

TEST_F(OnDisk, aNameOfAnotherOpenDocumentIsRefusedInTheDialogToo)
{
    open("a.psm", "A");
    EditorWidget* second = open("b.psm", "B");
    ModalHelper helper([this](QDialog* dialog) {
        auto* files = qobject_cast<QFileDialog*>(dialog);
        ASSERT_NE(files, nullptr);
        files->setOption(QFileDialog::DontConfirmOverwrite);
        files->selectFile(path("a.psm"));
        static_cast<QDialog*>(files)->accept();
    });
    EXPECT_FALSE(editor.saveFileAs());
    EXPECT_EQ(second->filePath(), path("b.psm"));
    EXPECT_EQ(read("a.psm"), "A");
    EXPECT_EQ(msg.errors().size(), 1);
}

// --- what is written back ---

struct sBytes_t
{
    const char* name;
    QByteArray bytes;
    QByteArray changed; ///< after an X was typed at the start
    const char* shown;  ///< in the status bar
};

void PrintTo(const sBytes_t& content, std::ostream* stream)
{
    *stream << content.name;
}

class Bytes : public OnDisk, public ::testing::WithParamInterface<sBytes_t>
{
};

TEST_P(Bytes, comeBackAsTheyWere)
{
    EditorWidget* widget = open("a.psm", GetParam().bytes);
    EXPECT_FALSE(widget->isReadOnly());
    EXPECT_FALSE(hasNotice(widget));
    ASSERT_NE(formatButton(), nullptr);
    EXPECT_EQ(formatButton()->text(), GetParam().shown);
    type(widget, "X");
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(read("a.psm"), GetParam().changed);
    widget->undo();
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(read("a.psm"), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(
    Contents, Bytes,
    ::testing::Values(sBytes_t{"lf", "NOP\nNOP\n", "XNOP\nNOP\n", "UTF-8, LF"},
                      sBytes_t{"crlf", "NOP\r\nNOP\r\n", "XNOP\r\nNOP\r\n", "UTF-8, CRLF"},
                      sBytes_t{"cr", "NOP\rNOP\r", "XNOP\rNOP\r", "UTF-8, CR"},
                      sBytes_t{"mixed", "a\r\nb\nc\rd\n\re\r\r\nf", "Xa\r\nb\nc\rd\n\re\r\r\nf", "UTF-8, mixed"},
                      sBytes_t{"mark", "\xEF\xBB\xBFNOP\n", "\xEF\xBB\xBFXNOP\n", "UTF-8 with mark, LF"},
                      sBytes_t{"markCrlf", "\xEF\xBB\xBF; \xC3\xA9\r\n", "\xEF\xBB\xBFX; \xC3\xA9\r\n",
                               "UTF-8 with mark, CRLF"},
                      sBytes_t{"markAlone", "\xEF\xBB\xBF", "\xEF\xBB\xBFX", "UTF-8 with mark, LF"},
                      sBytes_t{"latin1", "; caf\xE9\r\n\x80\r\n", "X; caf\xE9\r\n\x80\r\n", "ISO 8859-1, CRLF"},
                      sBytes_t{"empty", "", "X", "UTF-8, LF"},
                      sBytes_t{"controls", "a\x01\x0C\x1A\x7F\xC2\x85\xE2\x80\xA8z",
                               "Xa\x01\x0C\x1A\x7F\xC2\x85\xE2\x80\xA8z", "UTF-8, LF"}));

TEST_F(OnDisk, mixedLineEndsStayWithTheirLines)
{
    EditorWidget* widget = open("a.psm", "one\r\ntwo\nthree\rfour\r\nfive");
    widget->setCursorToLine(1);
    QTest::keyClicks(widget, "new");
    QTest::keyClick(widget, Qt::Key_Return);
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(read("a.psm"), "one\r\nnew\r\ntwo\nthree\rfour\r\nfive");
    // What was written is what the next change starts from.
    widget->setCursorToLine(0);
    QTest::keyClick(widget, Qt::Key_D, Qt::ControlModifier);
    widget->duplicateLine();
    EXPECT_TRUE(editor.saveFile());
    EXPECT_TRUE(read("a.psm").endsWith("new\r\ntwo\nthree\rfour\r\nfive"));
}

TEST_F(OnDisk, anUnchangedDocumentIsNotWritten)
{
    open("a.psm", "NOP\r\n");
    const QFileInfo before(path("a.psm"));
    // A file with a name of its own: a write would replace or change this one.
    ASSERT_EQ(::link(path("a.psm").toLocal8Bit().constData(), path("same.psm").toLocal8Bit().constData()), 0);
    ASSERT_TRUE(QFile::setPermissions(path("a.psm"), QFile::ReadOwner | QFile::WriteOwner));
    EXPECT_TRUE(editor.saveFile());
    editor.saveAllFiles();
    struct stat first = {};
    struct stat second = {};
    ASSERT_EQ(stat(path("a.psm").toLocal8Bit().constData(), &first), 0);
    ASSERT_EQ(stat(path("same.psm").toLocal8Bit().constData(), &second), 0);
    EXPECT_EQ(first.st_ino, second.st_ino);
    EXPECT_EQ(QFileInfo(path("a.psm")).lastModified(), before.lastModified());
}

TEST_F(OnDisk, lineEndsAndMarkAreChangedInTheStatusBar)
{
    EditorWidget* widget = open("a.psm", "a\r\nb\n");
    chooseFormat("CRLF (Windows)");
    EXPECT_TRUE(widget->isModified());
    EXPECT_EQ(formatButton()->text(), "UTF-8, CRLF");
    EXPECT_TRUE(editor.saveFile());
    EXPECT_FALSE(widget->isModified());
    EXPECT_EQ(read("a.psm"), "a\r\nb\r\n");
    chooseFormat("LF (Unix)");
    chooseFormat("Byte order mark");
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(read("a.psm"), "\xEF\xBB\xBF"
                             "a\nb\n");
    // There and back again is no change.
    chooseFormat("Byte order mark");
    EXPECT_TRUE(widget->isModified());
    chooseFormat("Byte order mark");
    EXPECT_FALSE(widget->isModified());
}

TEST_F(OnDisk, theStatusBarFollowsTheCurrentDocument)
{
    EditorWidget* first = open("a.psm", "a\r\n");
    open("b.psm", "b\n");
    ASSERT_NE(formatButton(), nullptr);
    EXPECT_EQ(formatButton()->text(), "UTF-8, LF");
    focus(first);
    EXPECT_EQ(formatButton()->text(), "UTF-8, CRLF");
    editor.closeAllFiles();
    focus(nullptr);
    EXPECT_FALSE(formatButton()->isEnabled());
}

// --- what can not be shown ---

struct sUnshown_t
{
    const char* name;
    QByteArray bytes;
    const char* reason; ///< part of the notice
};

void PrintTo(const sUnshown_t& content, std::ostream* stream)
{
    *stream << content.name;
}

class Unshown : public OnDisk, public ::testing::WithParamInterface<sUnshown_t>
{
};

TEST_P(Unshown, opensReadOnlyAndIsNeverWritten)
{
    EditorWidget* widget = open("a.psm", GetParam().bytes);
    ASSERT_NE(widget, nullptr);
    EXPECT_TRUE(widget->isReadOnly());
    EXPECT_TRUE(noticeText(widget).contains(GetParam().reason)) << noticeText(widget).toStdString();
    const QString shown = widget->text();
    type(widget, "X\t");
    widget->indent();
    widget->commentOut();
    widget->duplicateLine();
    widget->moveLineDown();
    widget->insertText("X");
    widget->replaceAll("N", "Y", true, false);
    editor.insertText("X");
    EXPECT_EQ(widget->text(), shown);
    EXPECT_FALSE(widget->isModified());
    EXPECT_TRUE(editor.saveFile());
    editor.saveAllFiles();
    EXPECT_FALSE(editor.saveFileAs(path("b.psm")));
    EXPECT_EQ(msg.errors(), QStringList({"Document is read-only and can not be saved: " + path("a.psm")}));
    EXPECT_FALSE(QFile::exists(path("b.psm")));
    EXPECT_EQ(widget->filePath(), path("a.psm"));
    EXPECT_EQ(read("a.psm"), GetParam().bytes);
    // Whoever mends the file gets a document that can be written.
    write("a.psm", "NOP\n");
    editor.reloadFile();
    EXPECT_FALSE(widget->isReadOnly());
    EXPECT_FALSE(hasNotice(widget));
    EXPECT_EQ(widget->text(), "NOP\n");
}

INSTANTIATE_TEST_SUITE_P(Contents, Unshown,
                         ::testing::Values(sUnshown_t{"nul", QByteArray("NOP\0rest", 8), "NUL"},
                                           sUnshown_t{"utf16", QByteArray("\xFF\xFEN\0O\0P\0\n\0", 10), "UTF-16"},
                                           sUnshown_t{"utf16BigEndian", QByteArray("\xFE\xFF\0N\0O\0P\0\n", 10),
                                                      "UTF-16"},
                                           sUnshown_t{"separator", "NOP\xE2\x80\xA9NOP\n", "characters"}));

// --- what others change ---

TEST_F(OnDisk, saveAllWritesWhatIsModifiedAlone)
{
    open("a.psm", "A");
    open("gone.psm", "G");
    EditorWidget* modified = open("b.psm", "B");
    type(modified, "X");
    write("a.psm", "changed outside");
    QFile::remove(path("gone.psm"));
    editor.saveAllFiles();
    EXPECT_EQ(read("a.psm"), "changed outside");
    EXPECT_FALSE(QFile::exists(path("gone.psm")));
    EXPECT_EQ(read("b.psm"), "XB");
    EXPECT_EQ(sources.contentChanges, 1);
}

TEST_F(OnDisk, aFileThatHasChangedIsNotOverwrittenWithoutAQuestion)
{
    EditorWidget* widget = open("a.psm", "NOP\n");
    type(widget, "X");
    write("a.psm", "theirs\n");
    {
        QString title;
        ModalHelper helper([&title](QDialog* dialog) {
            title = dialog->windowTitle();
            auto* box = qobject_cast<QMessageBox*>(dialog);
            ASSERT_NE(box, nullptr);
            // Neither Enter nor Esc may lose one of the texts.
            EXPECT_EQ(box->defaultButton()->text(), "Cancel");
            EXPECT_EQ(box->escapeButton()->text(), "Cancel");
            box->escapeButton()->click();
        });
        EXPECT_FALSE(editor.saveFile());
        EXPECT_EQ(helper.seen(), 1);
        EXPECT_EQ(title, "File was changed outside");
    }
    EXPECT_EQ(read("a.psm"), "theirs\n");
    EXPECT_EQ(widget->text(), "XNOP\n");
    EXPECT_TRUE(widget->isModified());

    ModalHelper helper(pressIn("Keep mine"));
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(read("a.psm"), "XNOP\n");
    EXPECT_FALSE(widget->isModified());
}

TEST_F(OnDisk, theOtherTextIsTakenAndMineComesBackByUndo)
{
    EditorWidget* widget = open("a.psm", "NOP\n");
    type(widget, "X");
    write("a.psm", "theirs\r\n");
    ModalHelper helper(pressIn("Take the file"));
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(read("a.psm"), "theirs\r\n");
    EXPECT_EQ(widget->text(), "theirs\n");
    EXPECT_FALSE(widget->isModified());
    widget->undo();
    EXPECT_EQ(widget->text(), "XNOP\n");
    EXPECT_TRUE(widget->isModified());
}

TEST_F(OnDisk, bothTextsCanBeComparedBeforeTheAnswer)
{
    EditorWidget* widget = open("a.psm", "NOP\n");
    type(widget, "X");
    write("a.psm", "theirs\n");
    QStringList seen;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible())
            return;
        seen.append(dialog->objectName());
        if (seen.size() == 1)
            pressIn("Compare...")(dialog);
        else if (dialog->objectName() == "textCompareDialog")
            pressIn("Keep mine")(dialog);
        else
            dialog->reject();
    });
    timer.start(1);
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(seen.size(), 2);
    EXPECT_EQ(seen.value(1), "textCompareDialog");
    EXPECT_EQ(read("a.psm"), "XNOP\n");
}

TEST_F(OnDisk, aVanishedFileIsWrittenAgainOnlyByAnAnswer)
{
    EditorWidget* widget = open("a.psm", "NOP\n");
    type(widget, "X");
    QFile::remove(path("a.psm"));
    {
        ModalHelper helper([](QDialog* dialog) { dialog->reject(); });
        EXPECT_FALSE(editor.saveFile());
        EXPECT_EQ(helper.seen(), 1);
    }
    EXPECT_FALSE(QFile::exists(path("a.psm")));
    EXPECT_TRUE(widget->isModified());
    ModalHelper helper(pressIn("Save again"));
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(read("a.psm"), "XNOP\n");
}

TEST_F(OnDisk, aTouchedFileWithTheSameContentAsksNothing)
{
    EditorWidget* widget = open("a.psm", "NOP\n");
    type(widget, "X");
    replace("a.psm", "NOP\n");
    ModalHelper helper(nullptr);
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(helper.seen(), 0);
    EXPECT_EQ(read("a.psm"), "XNOP\n");
}

TEST_F(OnDisk, anUnmodifiedDocumentFollowsItsFile)
{
    QStringList lines;
    for (int i = 0; i < 300; ++i)
        lines.append(QString("line %1").arg(i));
    EditorWidget* widget = open("a.psm", lines.join('\n').toUtf8());
    widget->resize(400, 300);
    widget->show();
    type(widget, "X");
    EXPECT_TRUE(editor.saveFile());
    widget->setSimBreakpoint(5);
    widget->setCursorToLine(200);
    const QString cursorText = widget->textCursor().block().text();
    const int scroll = widget->verticalScrollBar()->value();
    // Two lines more, far above of what is on the screen.
    lines.first().prepend('X');
    lines.insert(10, "new 1\nnew 2");
    write("a.psm", lines.join('\n').toUtf8());
    ASSERT_TRUE(QTest::qWaitFor([&] { return widget->blockCount() == 302; }, generous));
    EXPECT_EQ(widget->text(), lines.join('\n'));
    EXPECT_FALSE(widget->isModified());
    EXPECT_FALSE(hasNotice(widget));
    EXPECT_EQ(widget->textCursor().block().text(), cursorText);
    EXPECT_EQ(widget->verticalScrollBar()->value(), scroll + 2);
    EXPECT_EQ(widget->simBreakpoints(), QList<int>({5}));
    // One step back is the text before, one more takes back what was typed.
    widget->undo();
    EXPECT_EQ(widget->blockCount(), 300);
    EXPECT_TRUE(widget->isModified());
    widget->undo();
    EXPECT_TRUE(widget->text().startsWith("line 0\n"));
    widget->clearModified();
}

TEST_F(OnDisk, aFileThatIsReplacedIsFollowedAgainAndAgain)
{
    EditorWidget* widget = open("a.psm", "one\n");
    for (const char* text : {"two\n", "three\n", "four\n"}) {
        replace("a.psm", text);
        ASSERT_TRUE(QTest::qWaitFor([&] { return widget->text() == QString(text); }, generous));
    }
    write("a.psm", "in place\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return widget->text() == QString("in place\n"); }, generous));
}

TEST_F(OnDisk, aModifiedDocumentGetsANoticeAndKeepsItsText)
{
    EditorWidget* widget = open("a.psm", "NOP\n");
    type(widget, "X");
    write("a.psm", "theirs\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return hasNotice(widget); }, generous));
    EXPECT_EQ(widget->text(), "XNOP\n");
    press(widget, "Keep mine");
    EXPECT_FALSE(hasNotice(widget));
    ModalHelper helper(nullptr);
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(helper.seen(), 0);
    EXPECT_EQ(read("a.psm"), "XNOP\n");
}

TEST_F(OnDisk, theNoticeTakesTheFile)
{
    EditorWidget* widget = open("a.psm", "NOP\n");
    type(widget, "X");
    write("a.psm", "theirs\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return hasNotice(widget); }, generous));
    press(widget, "Take the file");
    EXPECT_FALSE(hasNotice(widget));
    EXPECT_EQ(widget->text(), "theirs\n");
    EXPECT_FALSE(widget->isModified());
}

TEST_F(OnDisk, aClosedNoticeLeavesTheQuestionForTheSave)
{
    EditorWidget* widget = open("a.psm", "NOP\n");
    type(widget, "X");
    write("a.psm", "theirs\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return hasNotice(widget); }, generous));
    QTest::keyClick(notice(widget), Qt::Key_Escape);
    EXPECT_FALSE(hasNotice(widget));
    ModalHelper helper([](QDialog* dialog) { dialog->reject(); });
    EXPECT_FALSE(editor.saveFile());
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(read("a.psm"), "theirs\n");
}

TEST_F(OnDisk, aVanishedFileIsReportedAndCanBeSavedAgain)
{
    EditorWidget* widget = open("a.psm", "NOP\n");
    QFile::remove(path("a.psm"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return hasNotice(widget); }, generous));
    EXPECT_EQ(widget->text(), "NOP\n");
    press(widget, "Save again");
    EXPECT_FALSE(hasNotice(widget));
    EXPECT_EQ(read("a.psm"), "NOP\n");
}

TEST_F(OnDisk, theNoticeGoesWhenTheFileIsAsItWas)
{
    EditorWidget* widget = open("a.psm", "NOP\n");
    type(widget, "X");
    write("a.psm", "theirs\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return hasNotice(widget); }, generous));
    write("a.psm", "NOP\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !hasNotice(widget); }, generous));
    QFile::remove(path("a.psm"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return hasNotice(widget); }, generous));
    write("a.psm", "NOP\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !hasNotice(widget); }, generous));
    EXPECT_EQ(widget->text(), "XNOP\n");
}

TEST_F(OnDisk, twoDocumentsOfOneFileDoNotOverwriteEachOther)
{
    EditorWidget* first = open("a.psm", "NOP\n");
    ASSERT_TRUE(editor.openFile(dir.path() + "/./a.psm"));
    EditorWidget* second = editor.editorWidgets().last();
    ASSERT_NE(first, second);
    type(second, "X");
    EXPECT_TRUE(editor.saveFile());
    ASSERT_TRUE(QTest::qWaitFor([&] { return first->text() == QString("XNOP\n"); }, generous));
    EXPECT_FALSE(first->isModified());
}

TEST_F(OnDisk, aDocumentThatIsSavedKeepsItsUndoSteps)
{
    EditorWidget* widget = open("a.psm", "NOP\n");
    EditorWidget* other = open("b.psm", "NOP\n");
    focus(widget);
    type(widget, "X");
    EXPECT_TRUE(editor.saveFile());
    // What the watch reports of the save itself has arrived when it reports something later.
    write("b.psm", "theirs\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return other->text() == QString("theirs\n"); }, generous));
    EXPECT_FALSE(hasNotice(widget));
    EXPECT_FALSE(widget->isModified());
    widget->undo();
    EXPECT_EQ(widget->text(), "NOP\n");
}

// --- membership ---

TEST_F(OnDisk, aNewNameIsAskedForMembership)
{
    EditorWidget* widget = open("a.psm", "NOP");
    sources.asked.clear();
    EXPECT_TRUE(editor.saveFileAs(path("b.psm")));
    EXPECT_EQ(sources.asked, QStringList({path("b.psm")}));
    {
        ModalHelper helper([this](QDialog* dialog) {
            auto* files = qobject_cast<QFileDialog*>(dialog);
            ASSERT_NE(files, nullptr);
            files->selectFile(path("c.psm"));
            static_cast<QDialog*>(files)->accept();
        });
        sources.answerYes = true;
        EXPECT_TRUE(editor.saveFileAs());
        EXPECT_EQ(helper.seen(), 1);
    }
    EXPECT_EQ(sources.asked, QStringList({path("b.psm"), path("c.psm")}));
    EXPECT_EQ(sources.srcFiles, QStringList({path("c.psm")}));
    EXPECT_EQ(widget->filePath(), path("c.psm"));
    EXPECT_EQ(read("c.psm"), "NOP");
}

} // namespace
