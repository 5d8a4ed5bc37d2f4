// Documents in the window: tabs by mouse and keys, quick open, the list of files.

#include "DocumentsFixture.h"

using nsModEditor::EditorWidget;

// --- tabs ---

TEST_F(DocumentsInWindow, eachTabHasAButtonThatClosesIt)
{
    openAll();
    screenshot("documents-tabs");
    auto* button = qobject_cast<QAbstractButton*>(tabs()->tabBar()->tabButton(1, QTabBar::RightSide));
    ASSERT_NE(button, nullptr);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(pages(), QStringList({"a.psm", "c.psm"}));
    EXPECT_EQ(current(), "c.psm") << "the page in front stays";
}

TEST_F(DocumentsInWindow, theMiddleButtonClosesThePageOfItsTab)
{
    openAll();
    QTest::mouseClick(tabs()->tabBar(), Qt::MiddleButton, Qt::NoModifier, tabPlace(0));
    EXPECT_EQ(pages(), QStringList({"b.psm", "c.psm"}));
    // Pressed on one tab and let go on another: nothing.
    QTest::mousePress(tabs()->tabBar(), Qt::MiddleButton, Qt::NoModifier, tabPlace(0));
    QTest::mouseRelease(tabs()->tabBar(), Qt::MiddleButton, Qt::NoModifier, tabPlace(1));
    EXPECT_EQ(tabs()->count(), 2);
}

TEST_F(DocumentsInWindow, theMenuOfATab)
{
    openAll();
    chooseOfTab(1, "Copy path");
    EXPECT_EQ(QApplication::clipboard()->text(), path("b.psm"));
    chooseOfTab(1, "Show in file list");
    EXPECT_EQ(files()->currentFile(), path("b.psm"));
    EXPECT_TRUE(files()->isVisible());
    chooseOfTab(1, "Close others");
    EXPECT_EQ(pages(), QStringList("b.psm"));
    openAll();
    chooseOfTab(0, "Close");
    EXPECT_EQ(pages(), QStringList({"a.psm", "c.psm"}));
    chooseOfTab(0, "Close all");
    EXPECT_EQ(tabs()->count(), 0);
}

TEST_F(DocumentsInWindow, closeAllAsksForEachChangedDocument)
{
    openAll();
    QTest::keyClicks(document(), "x");
    ModalAnswers answers({[](QDialog* box) {
        EXPECT_EQ(box->windowTitle(), "File was modified");
        box->reject();
    }});
    chooseOfTab(0, "Close all");
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_EQ(tabs()->count(), 0);
}

TEST_F(DocumentsInWindow, ctrlTabGoesInTheOrderOfUseWithAListWhileItIsHeld)
{
    openAll();
    editor()->openFile(path("a.psm"));
    document()->setFocus();
    settleLayout();
    // Used: a, c, b.
    key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(current(), "c.psm");
    key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(current(), "a.psm") << "and back";

    auto* list = window->findChild<QWidget*>("pageSwitcher");
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_TRUE(list->isVisible());
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(current(), "b.psm") << "Ctrl is held: further back";
    screenshot("documents-switcher");
    QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Control);
    EXPECT_FALSE(list->isVisible());
    key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(current(), "a.psm") << "the pages on the way were not used";

    QTest::keyPress(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(current(), "c.psm") << "the one used longest ago";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(current(), "a.psm") << "Esc takes it back";
    EXPECT_FALSE(list->isVisible());
}

TEST_F(DocumentsInWindow, aPageThatClosesUnderTheListIsNoHarm)
{
    openAll();
    document()->setFocus();
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    editor()->closeAllFiles();
    QTest::keyPress(window.get(), Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyRelease(window.get(), Qt::Key_Control);
    EXPECT_EQ(tabs()->count(), 0);
    EXPECT_FALSE(window->findChild<QWidget*>("pageSwitcher")->isVisible());
}

// --- quick open ---

TEST_F(DocumentsInWindow, quickOpenFindsFilesAndSymbolsByKeyboardAlone)
{
    QTest::keyClick(window.get(), Qt::Key_B, Qt::ControlModifier);
    settleLayout();
    ASSERT_TRUE(module<nsModAsmFe::ModAsmFe>()->isAssembled()) << "Ctrl+B runs the assembler";
    EXPECT_EQ(quickOpen("bps").value(0), "b.psm");
    EXPECT_EQ(current(), "b.psm");
    EXPECT_EQ(quickOpen("gam").value(0), "gamma");
    EXPECT_EQ(current(), "c.psm");
    quickOpen("a");
    quickOpen("", 1);
    EXPECT_EQ(current(), "c.psm") << "without a letter: the files used last";
    EXPECT_EQ(quickOpen("zzz"), QStringList());
}

TEST_F(DocumentsInWindow, quickOpenLeadsToTheDefinitionOfEveryName)
{
    writeFile("b.psm", "#EQU bitMask, 0x1F\n#NAMESPACE uart\nsend:   LOAD s0, 1\n        JUMP send\n#ENDNAMESPACE\n"
                       "beta:   LOAD s0, bitMask\n        JUMP beta\n");
    QTest::keyClick(window.get(), Qt::Key_B, Qt::ControlModifier);
    settleLayout();
    ASSERT_TRUE(module<nsModAsmFe::ModAsmFe>()->isAssembled());
    const auto place = [this] {
        const auto* document = qobject_cast<EditorWidget*>(tabs()->currentWidget());
        return document == nullptr ? QString()
                                   : QString("%1:%2 %3")
                                         .arg(current())
                                         .arg(document->cursorLine())
                                         .arg(document->textCursor().selectedText());
    };
    EXPECT_EQ(quickOpen("bitm"), QStringList("bitMask"));
    EXPECT_EQ(place(), "b.psm:0 bitMask");
    EXPECT_EQ(quickOpen("send").value(0), "uart::send");
    EXPECT_EQ(place(), "b.psm:2 send");
    // Behind @ there are names alone.
    EXPECT_TRUE(quickOpen("a").contains("a.psm"));
    const QStringList names = quickOpen("@a");
    EXPECT_TRUE(names.contains("alpha")) << qPrintable(names.join(' '));
    EXPECT_FALSE(names.contains("a.psm"));
    quickOpen("send");
    EXPECT_EQ(current(), "b.psm");
    EXPECT_EQ(quickOpen("@alp").value(0), "alpha");
    EXPECT_EQ(place(), "a.psm:0 alpha");
    // It is a jump, which has a way back.
    QTest::keyClick(tabs()->currentWidget(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(place(), "b.psm:2 ");
    // The text as it stands counts, not that of the run.
    auto* document = qobject_cast<EditorWidget*>(tabs()->currentWidget());
    document->moveCursor(QTextCursor::Start);
    document->insertText("; moved\n");
    quickOpen("bitm");
    EXPECT_EQ(place(), "b.psm:1 bitMask");
    document->clearModified();
}

TEST_F(DocumentsInWindow, quickOpenNeedsAProjectAndEscLeaves)
{
    ModalAnswers answers({[](QDialog* box) { QTest::keyClick(box, Qt::Key_Escape); }});
    QTest::keyClick(window.get(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_EQ(tabs()->count(), 0);
    module<nsModPrj::ModPrj>()->closePrj();
    QTest::keyClick(window.get(), Qt::Key_P, Qt::ControlModifier);
    settleLayout();
    EXPECT_EQ(answers.seen(), 1);
}

TEST_F(DocumentsInWindow, theProjectMayCloseUnderQuickOpen)
{
    ModalAnswers answers({[this](QDialog* box) {
        module<nsModPrj::ModPrj>()->closePrj();
        QTest::keyClick(box->findChild<QLineEdit*>("quickOpenEdit"), Qt::Key_Return);
    }});
    QTest::keyClick(window.get(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_FALSE(module<nsModPrj::ModPrj>()->isValid());
}

TEST_F(DocumentsInWindow, recentFilesStandInTheFileMenuAndAreKept)
{
    openAll();
    editor()->closeAllFiles();
    QAction* entry = menuEntry("File", "Recent files");
    ASSERT_NE(entry, nullptr);
    emit entry->menu()->aboutToShow();
    ASSERT_EQ(entry->menu()->actions().size(), 3);
    EXPECT_EQ(entry->menu()->actions().first()->text(), "c.psm");
    entry->menu()->actions().last()->trigger();
    settleLayout();
    EXPECT_EQ(current(), "a.psm");
    ASSERT_TRUE(closeWindow());
    EXPECT_TRUE(readSetting("ModSrcNavi/recentFiles").startsWith(path("a.psm")))
        << qPrintable(readSetting("ModSrcNavi/recentFiles"));
}

// --- list of files ---

TEST_F(DocumentsInWindow, theListShowsTheStateOfEachFile)
{
    showFiles();
    EXPECT_EQ(lines(), QStringList({"Sources", "a.psm", "b.psm", "c.psm", "Outputs", "out.hex: not written yet"}));
    openAll();
    EXPECT_EQ(lines().mid(1, 3), QStringList({"a.psm: open", "b.psm: open", "c.psm: open"}));
    QTest::keyClicks(document(), "NOSUCH ");
    EXPECT_EQ(lines().value(3), "c.psm: changed");
    QTest::keyClick(document(), Qt::Key_S, Qt::ControlModifier);
    settleLayout();
    EXPECT_TRUE(lines().value(3).startsWith("c.psm: ")) << qPrintable(lines().value(3));
    EXPECT_TRUE(lines().value(3).contains("error")) << qPrintable(lines().value(3));
    screenshot("documents-file-list");
    ASSERT_TRUE(QFile::remove(path("b.psm")));
    editor()->closeAllFiles();
    EXPECT_EQ(lines().value(2), "b.psm: missing");
}

TEST_F(DocumentsInWindow, sourcesAreOrderedRemovedAndOpenedByKeys)
{
    showFiles();
    ASSERT_TRUE(files()->select(path("b.psm")));
    tree()->setFocus();
    key(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(sources(), QStringList({"b.psm", "a.psm", "c.psm"}));
    EXPECT_EQ(files()->currentFile(), path("b.psm")) << "the line goes along";
    EXPECT_FALSE(panelButton("fileListUp")->isEnabled());
    QTest::mouseClick(panelButton("fileListDown"), Qt::LeftButton);
    QTest::mouseClick(panelButton("fileListDown"), Qt::LeftButton);
    settleLayout();
    EXPECT_EQ(sources(), QStringList({"a.psm", "c.psm", "b.psm"}));
    tree()->setFocus();
    key(Qt::Key_Return);
    EXPECT_EQ(current(), "b.psm");
    tree()->setFocus();
    key(Qt::Key_Delete);
    EXPECT_EQ(sources(), QStringList({"a.psm", "c.psm"}));
    EXPECT_TRUE(QFile::exists(path("b.psm"))) << "the file itself stays";
    // The order is that of the project file.
    ASSERT_TRUE(module<nsModPrj::ModPrj>()->save());
    QFile project(path("files.nalvo"));
    ASSERT_TRUE(project.open(QIODevice::ReadOnly));
    EXPECT_TRUE(project.readAll().contains("<srcFiles>a.psm:c.psm</srcFiles>"));
}

TEST_F(DocumentsInWindow, aSourceIsDraggedToItsPlace)
{
    showFiles();
    ASSERT_TRUE(files()->select(path("a.psm")));
    QTreeWidgetItem* group = tree()->topLevelItem(0);
    const QRect last = tree()->visualItemRect(group->child(2));
    QMimeData data;
    const auto drop = [&](const QPoint& place) {
        QDropEvent event(place, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        // Without a drag of the system the application would not hand it on.
        struct Opened : nsModSrcNavi::FileTree
        {
            using FileTree::dropEvent;
        };
        (static_cast<nsModSrcNavi::FileTree*>(tree())->*(&Opened::dropEvent))(&event);
        settleLayout();
    };
    drop(QPoint(last.center().x(), last.bottom() - 1));
    EXPECT_EQ(sources(), QStringList({"b.psm", "c.psm", "a.psm"}));
    // Not among the outputs.
    drop(tree()->visualItemRect(tree()->topLevelItem(1)->child(0)).center());
    EXPECT_EQ(sources(), QStringList({"b.psm", "c.psm", "a.psm"}));
}

TEST_F(DocumentsInWindow, sourcesAreAddedInTheWayOfTheProject)
{
    showFiles();
    QFile outside(folder.filePath("outside.psm"));
    ASSERT_TRUE(outside.open(QIODevice::WriteOnly));
    outside.close();
    const auto take = [](const QString& file) {
        return [file](QDialog* box) {
            EXPECT_EQ(box->windowTitle(), "Select psm template file");
            auto* edit = box->findChild<QLineEdit*>("fileNameEdit");
            edit->setText(file);
            QTest::keyClick(edit, Qt::Key_Return);
        };
    };
    {
        ModalAnswers answers({take(outside.fileName()), [](QDialog* box) {
                                  EXPECT_EQ(box->windowTitle(), "Adding file");
                                  box->accept();
                              }});
        QTest::mouseClick(panelButton("fileListAdd"), Qt::LeftButton);
        EXPECT_EQ(answers.seen(), 2);
    }
    EXPECT_EQ(sources().size(), 3);
    const QString plain = writeFile(QString::fromUtf8("ä 'd'.psm"), "");
    ModalAnswers answers({take(plain)});
    QTest::mouseClick(panelButton("fileListAdd"), Qt::LeftButton);
    settleLayout();
    EXPECT_EQ(sources(), QStringList({"a.psm", "b.psm", "c.psm", QString::fromUtf8("ä 'd'.psm")}));
}

TEST_F(DocumentsInWindow, theProjectMayCloseUnderTheDialogThatAdds)
{
    showFiles();
    ModalAnswers answers({[this](QDialog*) { module<nsModPrj::ModPrj>()->closePrj(); }});
    QTest::mouseClick(panelButton("fileListAdd"), Qt::LeftButton);
    settleLayout();
    EXPECT_FALSE(module<nsModPrj::ModPrj>()->isValid());
    EXPECT_EQ(tree()->topLevelItemCount(), 0);
}

TEST_F(DocumentsInWindow, whileTheSettingsAreOpenTheListLeavesTheSourcesAlone)
{
    showFiles();
    QTest::mouseClick(tool("Configure..."), Qt::LeftButton);
    settleLayout();
    ASSERT_TRUE(files()->select(path("b.psm")));
    tree()->setFocus();
    key(Qt::Key_Delete);
    EXPECT_EQ(sources().size(), 3);
}
