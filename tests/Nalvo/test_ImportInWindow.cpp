// The import page in the real window, by real keys and mouse: from the menu to an assembled document.

#include "MainWindowFixture.h"

#include "EditorWidget.h"
#include "ImportEditorWidget.h"
#include "ImportWidget.h"
#include "ModAsmFeHookIf.h"
#include "ModEditor.h"
#include "ModGuiHookIf.h"
#include "ModImport.h"
#include "ModPrj.h"
#include "ModalAnswers.h"
#include "Opcode.h"
#include "OpcodeList.h"
#include "QtPrinters.h"

#include <QAction>
#include <QComboBox>
#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>

using nsModEditor::EditorWidget;
using nsModImport::ImportEditorWidget;
using nsModImport::ImportWidget;

namespace {

const char* const project = "<project version=\"3\"><sources><srcFiles>main.psm</srcFiles></sources>"
                            "<ModProcessor><processor>Xilinx PicoBlaze 3</processor></ModProcessor></project>";
const char* const foreign = "; Blinks a lamp\r\n"
                            "\r\n"
                            "               CONSTANT lamp_port, 80\t\t; the lamp\r\n"
                            "               CONSTANT period, C8\r\n"
                            "               NAMEREG  sa, lamp\r\n"
                            "               NAMEREG  S1, count\r\n"
                            "        start: LOAD     lamp, 01\t\t; on\r\n"
                            "         loop: OUTPUT   lamp, lamp_port\r\n"
                            "               XOR      lamp, FF\r\n"
                            "               LOAD     count, period\r\n"
                            "         wait: SUB      count, 1\r\n"
                            "               JUMP     NZ, wait\r\n"
                            "               COMPARE  lamp, 10\r\n"
                            "               JUMP     C, loop\r\n"
                            "               JUMP     start\r\n"
                            "               ADDRESS  3FF\r\n"
                            "               RETURNI  ENABLE\r\n\x1a";
/// By hand, at the addresses from 0 on; the last one stands at 3FF.
const QList<int> words = {0x00a01, 0x2ca80, 0x0eaff, 0x001c8, 0x1c101, 0x35404, 0x14a10, 0x35801, 0x34000, 0x38001};

class ImportInWindow : public MainWindowFixture
{
protected:
    ImportInWindow()
    {
        writeSetting("ModGui/width", "1280");
        writeSetting("ModGui/height", "750");
        writeFile("main.psm", "start: NOP\n");
        writeFile("p.nalvo", project);
        makeWindow();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
    }
    ~ImportInWindow() override
    {
        for (EditorWidget* widget : editor()->editorWidgets())
            widget->clearModified();
    }

    nsModEditor::ModEditor* editor() const { return module<nsModEditor::ModEditor>(); }
    nsModPrj::ModPrj* prj() const { return module<nsModPrj::ModPrj>(); }
    QWidget* front() const { return module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs); }
    ImportWidget* page() const { return window->findChild<ImportWidget*>(); }
    QPushButton* button(const QString& name) const { return page()->findChild<QPushButton*>(name); }
    QString destination() const { return page()->findChild<ImportEditorWidget*>("importDestination")->text(); }
    void press(const QString& name) const { QTest::mouseClick(button(name), Qt::LeftButton); }
    void openProject() { ASSERT_TRUE(prj()->openPrj(projectDir() + "/p.nalvo")); }

    QMenu* fileMenu() const { return window->menuBar()->actions().at(1)->menu(); }
    QAction* entry() const
    {
        for (QAction* candidate : fileMenu()->actions()) {
            if (candidate->text() == "Import files...")
                return candidate;
        }
        return nullptr;
    }
    void openPage()
    {
        QMenuBar* bar = window->menuBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(bar->actions().at(1)).center());
        ASSERT_TRUE(fileMenu()->isVisible());
        ASSERT_NE(entry(), nullptr);
        QTest::mouseClick(fileMenu(), Qt::LeftButton, {}, fileMenu()->actionGeometry(entry()).center());
        ASSERT_NE(page(), nullptr);
    }
    /// The user chooses the file in the dialog, and the language by its first letters.
    void load(const QString& path, const QString& keys)
    {
        ModalAnswers answers({[&](QDialog* dialog) {
            QTest::keyClicks(dialog->focusWidget(), path);
            QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
        }});
        QTest::mouseClick(page()->findChild<QPushButton*>("buttonOpenFile"), Qt::LeftButton);
        ASSERT_EQ(answers.seen(), 1);
        auto* filters = page()->findChild<QComboBox*>("importFilters");
        filters->setFocus();
        QTest::keyClicks(filters, keys);
    }
};

} // namespace

TEST_F(ImportInWindow, aForeignSourceBecomesAnAssembledDocument)
{
    openProject();
    openPage();
    EXPECT_EQ(front(), page());
    EXPECT_TRUE(page()->isAncestorOf(QApplication::focusWidget())) << "the keys go to the page";
    screenshot("import-empty");
    load(writeFile("foreign.psm", foreign), "KCPSM3");
    press("importConvertLine");
    press("importConvertLine");
    press("importConvertLine");
    screenshot("import-lines");
    EXPECT_EQ(destination(), "; Blinks a lamp\n\n               #EQU lamp_port, 0x80\t\t; the lamp");
    press("importConvertAll");
    EXPECT_TRUE(button("importUse")->isEnabled());
    screenshot("import-all");
    const QString result = destination();
    press("importUse");
    auto* document = qobject_cast<EditorWidget*>(front());
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(document->text(), result);
    EXPECT_EQ(document->filePath(), "");
    EXPECT_TRUE(document->isModified()) << "it is nowhere on the disk";
    EXPECT_NE(page(), nullptr) << "the page stays open";

    // It takes the place of the project's source.
    writeFile("main.psm", result.toLatin1());
    auto* assembler = module<ModAsmFeHookIf>();
    for (QAction* action : window->findChildren<QAction*>()) {
        if (action->text() == "Run assembler")
            action->trigger();
    }
    ASSERT_TRUE(assembler->isAssembled()) << qPrintable(messageTexts().join('\n'));
    QList<int> found;
    for (nsModAsmFe::Opcode* opcode : *assembler->opcodeList())
        found.append(int(opcode->instWord));
    EXPECT_EQ(found, words);
}

TEST_F(ImportInWindow, thePageBetweenBothDocksDoesNotScrollSideways)
{
    openProject();
    openPage();
    load(writeFile("foreign.psm", foreign), "KCPSM3");
    press("importConvertLine");
    settleAnimations();
    auto* gui = module<ModGuiHookIf>();
    EXPECT_TRUE(gui->widgetVisible(ModGuiHookIf::eLocationDockLeft));
    EXPECT_TRUE(gui->widgetVisible(ModGuiHookIf::eLocationDockRight));
    EXPECT_EQ(window->size(), QSize(1280, 750));
    EXPECT_EQ(page()->findChild<QScrollArea*>()->horizontalScrollBar()->maximum(), 0);
}

TEST_F(ImportInWindow, theEntryBelongsToAProject)
{
    ASSERT_NE(entry(), nullptr);
    EXPECT_FALSE(entry()->isEnabled());
    openProject();
    EXPECT_TRUE(entry()->isEnabled());
    openPage();
    entry()->trigger();
    EXPECT_EQ(window->findChildren<ImportWidget*>().size(), 1);
    prj()->closePrj();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(page(), nullptr);
    EXPECT_FALSE(entry()->isEnabled());
}

TEST_F(ImportInWindow, aLineThatFailsIsReportedAndFlagged)
{
    openProject();
    openPage();
    load(writeFile("foreign.psm", "LOAD s0, 1\nLOAD s0, 1, 2\nLOAD s0, 3\nLOAD s0, 4\n"), "KCPSM3");
    press("importConvertAll");
    EXPECT_TRUE(messageTexts().contains("Can not convert line. Please convert manually"));
    EXPECT_EQ(page()->findChild<ImportEditorWidget*>("importSource")->highlightedLine(), 2);
    screenshot("import-failed-line");
    press("importConvertAll");
    EXPECT_EQ(destination(), "LOAD s0, 0x1\nLOAD s0, 1, 2\nLOAD s0, 0x3\nLOAD s0, 0x4\n");
}

TEST_F(ImportInWindow, thePageClosesByItsTabInTheMiddleOfAConversion)
{
    openProject();
    openPage();
    load(writeFile("foreign.psm", QByteArray("LOAD s0, 1\n").repeated(1000)), "KCPSM3");
    page()->setSliceTime(0);
    bool wasVisible = false;
    QTimer::singleShot(0, window.get(), [&] {
        wasVisible = button("importStop")->isVisible();
        settleLayout();
        screenshot("import-running", window.get());
        QTest::mouseClick(window->findChild<QPushButton*>("buttonCloseTab"), Qt::LeftButton);
    });
    press("importConvertAll");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(wasVisible);
    EXPECT_EQ(page(), nullptr);
}

TEST_F(ImportInWindow, projectAndWindowCloseInTheMiddleOfAConversion)
{
    for (const bool isWindow : {false, true}) {
        openProject();
        openPage();
        load(writeFile("foreign.psm", QByteArray("LOAD s0, 1\n").repeated(1000)), "KCPSM3");
        page()->setSliceTime(0);
        QTimer::singleShot(0, window.get(), [&] {
            if (isWindow)
                closeWindow();
            else
                prj()->closePrj();
        });
        press("importConvertAll");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(page(), nullptr);
    }
}

TEST_F(ImportInWindow, theSmallestWindowShowsThePage)
{
    openProject();
    openPage();
    window->resize(800, 600);
    load(writeFile("foreign.psm", foreign), "pB");
    screenshot("import-smallest");
    EXPECT_LT(page()->minimumSizeHint().width(), 300) << "it leaves the docks their room";
}
