// What the status bar and the buttons say of documents, and long work beside them.

#include "DocumentsFixture.h"
#include "LongRun.h"

using nsModEditor::EditorWidget;

// --- status, keys and buttons ---

TEST_F(DocumentsInWindow, theStatusBarShowsLineAndColumn)
{
    openAll();
    auto* position = window->findChild<QLabel*>("editorStatusBarPosition");
    ASSERT_NE(position, nullptr);
    editor()->openFile(path("a.psm"));
    document()->setFocus();
    QTest::keyClick(document(), Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(position->text(), "1:1");
    QTest::keyClick(document(), Qt::Key_Down);
    QTest::keyClick(document(), Qt::Key_Right);
    EXPECT_EQ(position->text(), "2:2");
    editor()->closeAllFiles();
    settleLayout();
    EXPECT_EQ(position->text(), "");
}

TEST_F(DocumentsInWindow, saveHasAButton)
{
    openAll();
    QTest::keyClicks(document(), ";");
    QToolButton* save = tool("Save");
    ASSERT_NE(save, nullptr);
    QTest::mouseClick(save, Qt::LeftButton);
    settleLayout();
    QFile file(path("c.psm"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().startsWith(";gamma"));
}

TEST_F(DocumentsInWindow, theFilesOfAButtonAreNamedBeforeAndAfter)
{
    EXPECT_TRUE(tool("Write output files button 1")->toolTip().contains("out.hex"));
    QTest::keyClick(window.get(), Qt::Key_B, Qt::ControlModifier);
    settleLayout();
    QTest::mouseClick(tool("Write output files button 1"), Qt::LeftButton);
    settleLayout();
    EXPECT_EQ(window->findChild<QStatusBar*>()->currentMessage(), "Written: out.hex");
}

TEST_F(DocumentsInWindow, aReloadKeepsTheUndoWhereThatIsSet)
{
    for (const bool keeps : {false, true}) {
        SCOPED_TRACE(keeps);
        openAll();
        auto* config = module<nsModEditor::EditorConfig>();
        ASSERT_NE(config, nullptr);
        config->reloadKeepsUndo = keeps;
        editor()->setTabIndent(4); // configures all documents anew
        const QString before = document()->toPlainText();
        writeFile("c.psm", "; from elsewhere\n");
        QTest::keyClick(document(), Qt::Key_F5);
        settleLayout();
        EXPECT_EQ(document()->toPlainText(), "; from elsewhere\n");
        QTest::keyClick(document(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(document()->toPlainText(), keeps ? before : QString("; from elsewhere\n"));
        ModalAnswers answers({[](QDialog* box) { box->reject(); }});
        editor()->closeAllFiles();
        writeFile("c.psm", before.toUtf8());
    }
}

TEST_F(DocumentsInWindow, theActiveBaseIsChecked)
{
    QTest::keyClick(window.get(), Qt::Key_B, Qt::ControlModifier);
    settleLayout();
    QTest::mouseClick(tool("Enable/disable simulator"), Qt::LeftButton);
    settleLayout();
    QAction* hex = menuEntry("Simulator", "Hex");
    QAction* dec = menuEntry("Simulator", "Dec");
    ASSERT_TRUE(hex != nullptr && dec != nullptr);
    EXPECT_TRUE(hex->isChecked());
    dec->trigger();
    EXPECT_TRUE(dec->isChecked());
    EXPECT_FALSE(hex->isChecked());
    QTest::mouseClick(tool("Enable/disable simulator"), Qt::LeftButton);
}

TEST_F(DocumentsInWindow, theSplashScreenStandsInFrontOfTheWindow)
{
    nsModGui::SplashScreen splash;
    EXPECT_TRUE(splash.windowFlags() & Qt::WindowStaysOnTopHint);
}

// --- long work ---

TEST_F(DocumentsInWindow, aLongRunShowsItsProgressAndIsCancelled)
{
    auto* asmFe = module<nsModAsmFe::ModAsmFe>();
    writeFile("c.psm", longRun::program());
    writeFile("out.hex", "of an earlier run\n");
    for (const bool byKey : {false, true}) {
        SCOPED_TRACE(byKey);
        const bool seen = longRun::run(asmFe, window.get(), [&](QToolButton* cancel) {
            // Input for anything else waits.
            QTest::keyClick(window.get(), Qt::Key_P, Qt::ControlModifier);
            EXPECT_FALSE(window->close());
            if (byKey)
                QTest::keyClick(window.get(), Qt::Key_Escape);
            else
                QTest::mouseClick(cancel, Qt::LeftButton);
        });
        EXPECT_TRUE(seen);
        EXPECT_FALSE(asmFe->isAssembled());
        QFile out(path("out.hex"));
        EXPECT_TRUE(out.open(QIODevice::ReadOnly));
        EXPECT_EQ(out.readAll(), "of an earlier run\n");
        EXPECT_TRUE(messageTexts().contains("The run was cancelled. The output files are as they were."))
            << qPrintable(messageTexts().join('\n'));
        EXPECT_EQ(window->findChild<QToolButton*>("longWorkCancel"), nullptr) << "the bar has gone";
    }
    writeFile("c.psm", "gamma:  JUMP gamma\n");
    asmFe->assemble(nsModAsmFe::AsmFeConfig::eEventButton1);
    EXPECT_TRUE(asmFe->isAssembled()) << "the next run is whole";
}
