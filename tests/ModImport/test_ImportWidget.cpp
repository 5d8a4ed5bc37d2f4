// The import page alone.

#include "ImportFixture.h"
#include "ModalAnswers.h"
#include "QtPrinters.h"

#include <QFileDialog>
#include <QSignalSpy>
#include <QWheelEvent>

namespace {

const char* const all = "RestartLineAll";

class ImportPage : public ImportFixture
{
protected:
    QString converted() { return destination()->text(); }
};

} // namespace

TEST_F(ImportPage, withoutAFilterNothingCanBeConverted)
{
    EXPECT_EQ(filters()->itemText(0), "Please select an import filter");
    EXPECT_EQ(filters()->count(), 6);
    EXPECT_EQ(enabled(), "");
    ASSERT_TRUE(page->openFile(write("a", "LOAD s0, 1")));
    EXPECT_EQ(enabled(), "");
    EXPECT_EQ(page->findChild<QLabel*>("pageHint")->text(), "");
    EXPECT_FALSE(page->setImportFilter("kcpsm3")) << "names are exact";
    EXPECT_TRUE(page->setImportFilter("KCPSM3"));
    EXPECT_EQ(enabled(), all);
    EXPECT_NE(page->findChild<QLabel*>("pageHint")->text(), "");
    filters()->setCurrentIndex(0);
    EXPECT_EQ(enabled(), "");
    EXPECT_EQ(page->findChild<QLabel*>("pageHint")->text(), "");
    page->convertLine();
    EXPECT_EQ(converted(), "LOAD s0, 1") << "without a filter the line goes on as it is";
}

TEST_F(ImportPage, withoutASourceNothingCanBeConverted)
{
    EXPECT_TRUE(page->setImportFilter("KCPSM3"));
    EXPECT_EQ(enabled(), "");
}

TEST_F(ImportPage, aChangeOfTheFilterDropsTheConversion)
{
    load("LOAD s0, 10\nLOAD s1, 10\n");
    page->convertAll();
    EXPECT_EQ(converted(), "LOAD s0, 0x10\nLOAD s1, 0x10\n");
    EXPECT_EQ(enabled(), QString(all) + "Use");
    EXPECT_TRUE(page->setImportFilter("pBlazIDE"));
    EXPECT_EQ(converted(), "");
    EXPECT_EQ(enabled(), all);
    page->convertLine();
    EXPECT_EQ(converted(), "LOAD s0, 10") << "and begins at the first line with the new rules";
}

TEST_F(ImportPage, theLineBehindTheLastOneAllowsTheUse)
{
    load("LOAD s0, 10\nRETURN");
    EXPECT_EQ(source()->highlightedLine(), -1);
    page->convertLine();
    EXPECT_EQ(source()->highlightedLine(), 1) << "the next line is flagged";
    page->convertLine();
    EXPECT_EQ(converted(), "LOAD s0, 0x10\nRET");
    EXPECT_EQ(enabled(), all) << "the last line's conversion does not yet allow it";
    EXPECT_EQ(source()->highlightedLine(), -1);
    page->convertLine();
    EXPECT_EQ(enabled(), QString(all) + "Use");
    EXPECT_EQ(converted(), "LOAD s0, 0x10\nRET");
    page->restart();
    EXPECT_EQ(enabled(), all);
    EXPECT_EQ(converted(), "");
    page->convertLine();
    EXPECT_EQ(converted(), "LOAD s0, 0x10");
}

TEST_F(ImportPage, allStopsAtALineThatFailsAndGoesOnBehindIt)
{
    load("LOAD s0, 10\nTABLE a#, [1, 2]\nLOAD s1, 10\nSTRING a$, \"x\", 1\nRETURN\n", "KCPSM6");
    page->convertAll();
    EXPECT_EQ(converted(), "LOAD s0, 0x10\nTABLE a#, [1, 2]");
    EXPECT_EQ(errors(), QStringList("Can not convert line. Please convert manually"));
    EXPECT_EQ(enabled(), all);
    EXPECT_EQ(source()->highlightedLine(), 2);
    page->convertAll();
    EXPECT_EQ(errors().size(), 2);
    page->convertAll();
    EXPECT_EQ(converted(), "LOAD s0, 0x10\nTABLE a#, [1, 2]\nLOAD s1, 0x10\nSTRING a$, \"x\", 1\nRET\n");
    EXPECT_EQ(enabled(), QString(all) + "Use");
    EXPECT_EQ(errors().size(), 2);
}

TEST_F(ImportPage, theLineAloneFailsWithAMessage)
{
    load("LOAD s0, 1, 2\nRETURN");
    page->convertLine();
    EXPECT_EQ(converted(), "LOAD s0, 1, 2");
    EXPECT_EQ(errors(), QStringList("Can not convert line. Please convert manually"));
    page->convertLine();
    EXPECT_EQ(converted(), "LOAD s0, 1, 2\nRET");
}

TEST_F(ImportPage, aFileIsCutAtItsFirstNul)
{
    load(QByteArray("LOAD s0, 1\nRET\0URN\n", 20));
    EXPECT_EQ(source()->text(), "LOAD s0, 1\nRET");
}

TEST_F(ImportPage, aFileThatCanNotBeOpenedChangesTheShownPathAlone)
{
    load("RETURN\nRETURN");
    page->convertLine();
    for (const QString& path : {dir.filePath("none"), dir.path(), QString("/dev/zero"), QString()}) {
        EXPECT_FALSE(page->openFile(path));
        EXPECT_EQ(shownPath(), path);
    }
    EXPECT_EQ(source()->text(), "RETURN\nRETURN");
    EXPECT_EQ(converted(), "RET");
    EXPECT_EQ(errors(), QStringList());
    EXPECT_EQ(enabled(), all);
}

TEST_F(ImportPage, whatIsNoSourceIsRefusedWithAMessage)
{
    load("RETURN");
    const QString huge = write("huge", "");
    ASSERT_TRUE(QFile(huge).resize(100 * 1024 * 1024));
    EXPECT_FALSE(page->openFile(huge));
    const QString wide = write("wide", "a\n" + QByteArray(ImportWidget::maxLineLength + 1, 'x') + "\nb");
    EXPECT_FALSE(page->openFile(wide));
    EXPECT_EQ(errors(), QStringList({"The file is too large to be a source: " + huge,
                                     "Line 2 is too long for a source: " + wide}));
    EXPECT_EQ(source()->text(), "RETURN");
    QByteArray binary;
    for (int i = 1; i < 4000; ++i)
        binary += char(i * 7 % 255 + 1);
    EXPECT_TRUE(page->openFile(write("binary", binary)));
    for (int i = 0; i < source()->blockCount(); ++i)
        page->convertLine();
    EXPECT_EQ(destination()->blockCount(), source()->blockCount());
}

TEST_F(ImportPage, linesStayLines)
{
    load("\n\n; a\r\n;b\r; c\n\x1a");
    page->convertAll();
    EXPECT_EQ(source()->blockCount(), 6);
    EXPECT_EQ(converted(), "\n\n; a\n;b\n; c\n");
    load("; \xb5s\xa0 Latin-1\n; \t tab");
    page->convertAll();
    EXPECT_EQ(converted(), QString::fromLatin1("; \xb5s\xa0 Latin-1\n; \t tab")) << "hard blanks are kept";
    load("");
    page->convertAll();
    EXPECT_EQ(converted(), "");
    EXPECT_EQ(enabled(), QString(all) + "Use");
}

TEST_F(ImportPage, theUsersOwnLinesStayInTheResult)
{
    load("LOAD s0, 1, 2\nRETURN");
    page->convertLine();
    destination()->selectAll();
    destination()->insertPlainText("LOAD s0, 1\nLOAD s1, 2");
    page->convertLine();
    EXPECT_EQ(converted(), "LOAD s0, 1\nLOAD s1, 2\nRET");
    QSignalSpy used(page, SIGNAL(useFile(QString)));
    page->convertLine();
    button("importUse")->click();
    ASSERT_EQ(used.size(), 1);
    EXPECT_EQ(used.first().first().toString(), "LOAD s0, 1\nLOAD s1, 2\nRET");
}

TEST_F(ImportPage, theConversionIsStoppedInTheMiddle)
{
    load(QByteArray("RETURN\n").repeated(100));
    page->setSliceTime(0);
    page->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(page));
    bool wasShown = false;
    QTimer::singleShot(0, page, [&] {
        wasShown = button("importStop")->isVisible() && page->findChild<QProgressBar*>("importProgress")->isVisible();
        EXPECT_EQ(enabled(), "");
        page->convertAll();
        page->convertLine();
        QTest::mouseClick(button("importStop"), Qt::LeftButton);
    });
    page->convertAll();
    EXPECT_TRUE(wasShown);
    EXPECT_FALSE(button("importStop")->isVisible());
    EXPECT_EQ(enabled(), all);
    const int count = destination()->blockCount();
    EXPECT_LT(count, 100);
    page->convertAll();
    EXPECT_EQ(destination()->blockCount(), 101) << "and goes on from there";
    EXPECT_EQ(enabled(), QString(all) + "Use");
}

TEST_F(ImportPage, escapeStopsTheConversion)
{
    load(QByteArray("RETURN\n").repeated(100));
    page->setSliceTime(0);
    page->show();
    page->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(page));
    button("importConvertAll")->setFocus();
    QTimer::singleShot(0, page, [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); });
    QTest::keyClick(button("importConvertAll"), Qt::Key_Space);
    EXPECT_LT(destination()->blockCount(), 100);
    EXPECT_TRUE(button("importConvertAll")->hasFocus()) << "the next press goes on";
}

TEST_F(ImportPage, whateverBeginsAnewEndsTheConversion)
{
    const std::function<void()> commands[] = {[&] { page->restart(); }, [&] { filters()->setCurrentIndex(0); },
                                              [&] { page->openFile(write("other", "; other")); }};
    for (const auto& command : commands) {
        load(QByteArray("RETURN\n").repeated(100));
        page->setSliceTime(0);
        QTimer::singleShot(0, page, command);
        page->convertAll();
        EXPECT_EQ(converted(), "") << "no line of the earlier conversion comes behind";
    }
    EXPECT_EQ(source()->text(), "; other");
}

TEST_F(ImportPage, thePageCanGoInTheMiddleOfTheConversion)
{
    load(QByteArray("RETURN\n").repeated(100));
    page->setSliceTime(0);
    QTimer::singleShot(0, page, [&] { owner.reset(); });
    page->convertAll();
    EXPECT_TRUE(page.isNull());
}

TEST_F(ImportPage, aFileIsChosen)
{
    const QString path = write("source.psm", "RETURN");
    write("source2.psm", "RETURN");
    page->setPrjPath(dir.path());
    ModalAnswers answers({[&](QDialog* dialog) {
                              auto* files = qobject_cast<QFileDialog*>(dialog);
                              ASSERT_NE(files, nullptr);
                              EXPECT_EQ(files->windowTitle(), "Select an assembler file to import");
                              EXPECT_EQ(files->nameFilters(), QStringList("Any files(*)"));
                              EXPECT_EQ(files->defaultSuffix(), "nalvo");
                              EXPECT_EQ(files->viewMode(), QFileDialog::List);
                              EXPECT_EQ(files->acceptMode(), QFileDialog::AcceptOpen);
                              EXPECT_EQ(files->fileMode(), QFileDialog::ExistingFiles);
                              EXPECT_EQ(QFileInfo(files->directory().path()).canonicalFilePath(),
                                        QFileInfo(dir.path()).canonicalFilePath());
                              files->findChild<QLineEdit*>()->setText("\"source.psm\" \"source2.psm\"");
                              dialog->accept();
                          },
                          [&](QDialog* dialog) {
                              qobject_cast<QFileDialog*>(dialog)->findChild<QLineEdit*>()->setText(path);
                              dialog->accept();
                          },
                          [&](QDialog*) { owner.reset(); }});
    page->selectFile();
    EXPECT_EQ(shownPath(), "") << "several files are none";
    page->selectFile();
    EXPECT_EQ(shownPath(), path);
    EXPECT_EQ(source()->text(), "RETURN");
    page->selectFile();
    EXPECT_TRUE(page.isNull()) << "the page has gone under its dialog";
    EXPECT_EQ(answers.seen(), 3);
}

TEST_F(ImportPage, aRelativePathIsOneOfTheProject)
{
    write("source.psm", "RETURN");
    page->setPrjPath(dir.path());
    EXPECT_TRUE(page->openFile("source.psm"));
}

TEST_F(ImportPage, bothSidesStayAligned)
{
    load(QByteArray("RETURN\n").repeated(1000));
    EXPECT_EQ(source()->leftMarginWidth(), destination()->leftMarginWidth());
    load("RETURN");
    const int narrow = source()->leftMarginWidth();
    EXPECT_EQ(narrow, destination()->leftMarginWidth());
    load(QByteArray("RETURN\n").repeated(1000));
    EXPECT_GT(source()->leftMarginWidth(), narrow);
}

TEST_F(ImportPage, tabsAndZoomBelongToASide)
{
    auto* width = page->findChild<QSpinBox*>("importSrcTab");
    const qreal before = destination()->tabStopDistance();
    width->setValue(8);
    EXPECT_EQ(source()->tabStopDistance(), 2 * before);
    page->findChild<QSpinBox*>("importDstTab")->setValue(2);
    EXPECT_EQ(destination()->tabStopDistance(), before / 2);
    const int size = source()->fontSize();
    for (int delta : {120, 120, -120}) {
        QWheelEvent event({5, 5}, {5, 5}, {}, {0, delta}, Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(source()->viewport(), &event);
    }
    EXPECT_EQ(source()->fontSize(), size + 1);
    EXPECT_EQ(destination()->fontSize(), size);
    EXPECT_GT(source()->tabStopDistance(), 2 * before);
}

TEST_F(ImportPage, theSourceIsForReading)
{
    EXPECT_TRUE(source()->isReadOnly());
    EXPECT_FALSE(destination()->isReadOnly());
    EXPECT_TRUE(source()->extraSelections().isEmpty()) << "no line of the cursor";
    EXPECT_EQ(destination()->extraSelections().size(), 1);
}

TEST_F(ImportPage, theTextsAreThese)
{
    QStringList texts;
    for (QLabel* label : page->findChildren<QLabel*>()) {
        if (!label->text().isEmpty())
            texts.append(label->text());
    }
    for (QPushButton* one : page->findChildren<QPushButton*>()) {
        if (!one->text().isEmpty())
            texts.append(one->text());
    }
    for (const char* text : {"Import files", "Source file", "Source file:", "Tab space:", "Syntax:", "&Restart",
                             "&Convert line", "Convert &all", "Destination file", "Use converted file"})
        EXPECT_TRUE(texts.contains(text)) << text;
}
