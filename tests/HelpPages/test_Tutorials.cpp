// The tutorials, step by step as they are written: the sources come from the pages, the steps are keys and clicks.

#include "HelpTree.h"
#include "ModalAnswers.h"
#include "SimWindow.h"

#include "EditorWidgetLeftMargin.h"
#include "IODevViewerItem.h"
#include "IODevViewerList.h"
#include "ModHlp.h"
#include "ProcSimCallStack.h"
#include "ProcSimIO.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

namespace {

using nsModEditor::EditorWidget;

/// Names in bold on a page, such as "File > New...".
QStringList menuPathsOf(const nsHelpBuild::HelpPage& page)
{
    QStringList paths;
    QRegularExpressionMatchIterator it =
        QRegularExpression("\\*\\*([A-Z]\\w+) > ([^*>]+)\\*\\*").globalMatch(QString::fromUtf8(page.markdown));
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        paths.append(match.captured(1) + " > " + match.captured(2).simplified());
    }
    return paths;
}

class Tutorials : public SimWindow
{
protected:
    Tutorials()
    {
        makeWindow();
        window->activateWindow();
        QCoreApplication::processEvents();
    }

    /// The entry of a menu, "menu > entry"; null if there is none.
    QAction* entry(const QString& path) const
    {
        for (const QAction* menu : window->menuBar()->actions()) {
            if (menu->text().remove('&') != path.section(" > ", 0, 0))
                continue;
            for (QAction* candidate : menu->menu()->actions()) {
                if (candidate->text().remove('&') == path.section(" > ", 1))
                    return candidate;
            }
        }
        return nullptr;
    }
    void choose(const QString& path) const
    {
        SCOPED_TRACE(qPrintable(path));
        ASSERT_NE(entry(path), nullptr);
        ASSERT_TRUE(entry(path)->isEnabled());
        entry(path)->trigger();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        settleLayout();
    }
    /// A key that the window has an action for.
    void press(Qt::Key key) const
    {
        QTest::keyClick(window.get(), key);
        settleLayout();
    }
    void button(QWidget* parent, const QString& text) const
    {
        ASSERT_NE(parent, nullptr) << qPrintable(text);
        for (QAbstractButton* candidate : parent->findChildren<QAbstractButton*>()) {
            if (candidate->text().remove('&') == text && candidate->isVisible()) {
                ASSERT_TRUE(candidate->isEnabled()) << qPrintable(text);
                QTest::mouseClick(candidate, Qt::LeftButton);
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                settleLayout();
                return;
            }
        }
        ADD_FAILURE() << "no button " << qPrintable(text);
    }
    QWidget* part(const char* name) const
    {
        for (QWidget* candidate : window->findChildren<QWidget*>(QLatin1String(name))) {
            if (candidate->isVisible())
                return candidate;
        }
        return nullptr;
    }
    void type(QWidget* field, const QString& text) const
    {
        ASSERT_NE(field, nullptr);
        QTest::mouseClick(field, Qt::LeftButton);
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, text);
    }
    EditorWidget* document() const
    {
        return qobject_cast<EditorWidget*>(module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs));
    }
    /// The title of the panel in front of a dock.
    QString panel(const char* dock) const
    {
        auto* tabs = window->findChild<QWidget*>(dock)->findChild<QTabWidget*>();
        return tabs->tabText(tabs->currentIndex());
    }
    void openPage(const QString& title) const
    {
        auto* list = window->findChild<QListWidget*>("configList");
        ASSERT_NE(list, nullptr);
        const QList<QListWidgetItem*> items = list->findItems(title, Qt::MatchExactly);
        ASSERT_EQ(items.size(), 1);
        list->scrollToItem(items.first());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualItemRect(items.first()).center());
    }
    /// The sources of a page, in their order.
    static QStringList sourcesOf(const char* page)
    {
        QStringList sources;
        for (const nsHelpBuild::HelpExample& example : HelpTree::page(page)->examples) {
            if (example.info.section(' ', 0, 0) == "psm")
                sources.append(example.text);
        }
        return sources;
    }
    /// Puts the source in place of the whole document.
    void paste(const QString& source) const
    {
        ASSERT_NE(document(), nullptr);
        document()->setFocus();
        QTest::keyClick(document(), Qt::Key_A, Qt::ControlModifier);
        QApplication::clipboard()->setText(source);
        choose("Edit > Paste");
        ASSERT_EQ(document()->toPlainText(), source);
    }
    void saveAs(const QString& name) const
    {
        ModalAnswers answers({[&name](QDialog* box) {
                                  auto* field = box->findChild<QLineEdit*>("fileNameEdit");
                                  QTest::keyClicks(field, name);
                                  QTest::keyClick(field, Qt::Key_Return);
                              },
                              [](QDialog* box) {
                                  EXPECT_EQ(box->windowTitle(), "Add file to project");
                                  auto* question = qobject_cast<QMessageBox*>(box);
                                  ASSERT_NE(question, nullptr);
                                  QTest::mouseClick(question->button(QMessageBox::Yes), Qt::LeftButton);
                              }});
        QTest::keySequence(window.get(), QKeySequence(QKeySequence::Save));
        EXPECT_EQ(answers.seen(), 2);
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
    }
    void save() const
    {
        QTest::keySequence(window.get(), QKeySequence(QKeySequence::Save));
        settleLayout();
    }
    void makeProject(const QString& file, const QString& title) const
    {
        QWidget* manager = part("prjMngr");
        ASSERT_NE(manager, nullptr) << "it is in front";
        auto* tabs = manager->findChild<QTabWidget*>();
        ASSERT_EQ(tabs->tabText(0), "New project");
        QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier, tabs->tabBar()->tabRect(0).center());
        type(manager->findChild<QWidget*>("prjMngrNewFile")->findChild<QLineEdit*>(), projectDir() + '/' + file);
        type(manager->findChild<QLineEdit*>("prjMngrNewTitle"), title);
        button(manager, "Generate and open project");
    }
    void chooseProcessor() const
    {
        choose("Configuration > Configure...");
        openPage("Processor");
        auto* processor = window->findChild<QComboBox*>("processor");
        ASSERT_NE(processor, nullptr);
        processor->setFocus();
        for (int i = 0; i < processor->count() && processor->currentText() != "Xilinx PicoBlaze 3"; ++i)
            QTest::keyClick(processor, Qt::Key_Down);
        button(part("configDialog"), "Apply and close");
    }
    QTreeWidgetItem* message(const QString& start) const
    {
        for (QTreeWidgetItemIterator it(messageView()); *it != nullptr; ++it) {
            if ((*it)->text(0).startsWith(start))
                return *it;
        }
        return nullptr;
    }
    int line() const { return document() != nullptr ? document()->cursorLine() + 1 : 0; }
    /// The line that is executed next, from 1 on.
    int nextLine() const { return pcLine() + 1; }

    /// The card of a device by the name that it shows, without the namespace.
    QWidget* card(const QString& name) const
    {
        for (QWidget* device : sim()->ioWidget()->findChildren<QWidget*>("procSimIODevice")) {
            const auto* label = device->findChild<QLabel*>("procSimIOName");
            if (label != nullptr && label->text().section(':', -1) == name)
                return device;
        }
        return nullptr;
    }
    /// The value field of a register's card; the first field is the address.
    static QLineEdit* valueOf(QWidget* device)
    {
        const QList<QLineEdit*> fields = device->findChildren<QLineEdit*>("procSimEdtNumeric");
        return fields.size() > 1 ? fields.at(1) : nullptr;
    }
    void clickMargin(const QString& lineText) const
    {
        ASSERT_NE(document(), nullptr);
        const QTextBlock block = document()->document()->find(lineText).block();
        ASSERT_TRUE(block.isValid());
        const int y = int(document()->cursorRect(QTextCursor(block)).center().y());
        QTest::mouseClick(document()->leftMargin(), Qt::LeftButton, Qt::NoModifier, QPoint(5, y));
    }
    QString clockCount() const
    {
        return part("procSimClocks") != nullptr ? static_cast<QLabel*>(part("procSimClocks"))->text() : QString();
    }

    void firstSteps();
    void firstError();
    void firstSingleSteps();
    void firstRuns();
    void firstInterrupt();
    void firstOutput();
};

void Tutorials::firstSteps()
{
    ASSERT_NO_FATAL_FAILURE(makeProject("lamps.nalvo", "Lamps"));
    EXPECT_TRUE(messageTexts().contains("Failure"));
    EXPECT_NE(part("emptyPage"), nullptr);
    ASSERT_NO_FATAL_FAILURE(chooseProcessor());
    EXPECT_EQ(static_cast<QLabel*>(part("asmFeStatusBarProcessor"))->text(), "Xilinx PicoBlaze 3");
    EXPECT_NE(message("No Instructions found!"), nullptr);
    choose("File > New...");
    ASSERT_NO_FATAL_FAILURE(paste(sourcesOf("tutorialFirst").at(0)));
    ASSERT_NO_FATAL_FAILURE(saveAs("main.psm"));
}

void Tutorials::firstError()
{
    QTreeWidgetItem* error = message("Unsupported argument: ROUND");
    ASSERT_NE(error, nullptr);
    EXPECT_TRUE(error->parent()->isExpanded());
    settleAnimations();
    messageView()->scrollToItem(error);
    const QPoint text(messageView()->visualItemRect(error).left() + 60,
                      messageView()->visualItemRect(error).center().y());
    QTest::mouseClick(messageView()->viewport(), Qt::LeftButton, Qt::NoModifier, text);
    ASSERT_NE(document(), nullptr);
    EXPECT_EQ(line(), 17);
    EXPECT_EQ(error->text(1), "Show help page");
    ASSERT_NO_FATAL_FAILURE(paste(sourcesOf("tutorialFirst").at(1)));
    save();
    EXPECT_EQ(message("Unsupported argument"), nullptr);
    EXPECT_NE(message("Missing instruction at interrupt vector address 1023."), nullptr);
    // What the right and the left side show.
    EXPECT_EQ(window->findChild<QTreeView*>("equListView")->model()->rowCount(), 3);
    auto* maps = window->findChild<nsModAsmFe::IODevViewerList*>();
    ASSERT_EQ(maps->elements().size(), 1);
    int used = 0;
    for (int addr = 0; addr < 1024; ++addr)
        used += maps->elements().first().item->kindOf(addr) != nsModAsmFe::IODevViewerItem::eInitValue ? 1 : 0;
    EXPECT_EQ(used, 10);
    auto* navigator = window->findChild<QTreeWidget*>("codeNavi");
    QStringList labels;
    for (QTreeWidgetItemIterator it(navigator); *it != nullptr; ++it)
        labels.append((*it)->text(0));
    EXPECT_EQ(labels, QStringList({"start:", "loop:", "wait:"}));
    const QPoint place = navigator->visualItemRect(navigator->findItems("wait:", Qt::MatchExactly).first()).center();
    QTest::mouseClick(navigator->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(navigator->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(line(), 16);
}

void Tutorials::firstSingleSteps()
{
    choose("Simulator > Enable/disable simulator");
    ASSERT_NE(sim(), nullptr);
    EXPECT_EQ(panel("dockLeft"), "Processor core");
    EXPECT_EQ(nextLine(), 6);
    press(Qt::Key_F11);
    EXPECT_EQ(reg(0), 0);
    EXPECT_EQ(nextLine(), 8);
    press(Qt::Key_F11);
    EXPECT_NE(card("PORT_LAMPS"), nullptr);
    EXPECT_EQ(nextLine(), 9);
    press(Qt::Key_F11);
    ASSERT_NE(card("PORT_SWITCHES"), nullptr);
    EXPECT_EQ(nextLine(), 9) << "it stops";
    module<ModGuiHookIf>()->setCurrentWidget(sim()->ioWidget());
    ASSERT_NO_FATAL_FAILURE(type(valueOf(card("PORT_SWITCHES")), "03"));
    press(Qt::Key_F11);
    EXPECT_EQ(reg(1), 3);
    press(Qt::Key_F11);
    EXPECT_EQ(reg(0), 3);
    EXPECT_EQ(nextLine(), 11);
    press(Qt::Key_F10);
    EXPECT_EQ(nextLine(), 12);
    EXPECT_EQ(reg(2), 0);
}

void Tutorials::firstRuns()
{
    ASSERT_NO_FATAL_FAILURE(clickMargin("WRPRT   s0, PORT_LAMPS"));
    EXPECT_EQ(document()->simBreakpoints(), QList<int>({7}));
    press(Qt::Key_F9);
    EXPECT_EQ(nextLine(), 8);
    const int before = reg(0);
    press(Qt::Key_F9);
    EXPECT_EQ(reg(0), before + 3);
    button(window.get(), "Clear");
    press(Qt::Key_F9);
    EXPECT_EQ(clockCount(), "34");
    button(sim()->ioWidget(), "Waves");
    EXPECT_EQ(panel("dockBottom"), "Waves");
    ASSERT_NO_FATAL_FAILURE(type(part("procSimWaveAddr"), "PORT_LAMPS"));
    auto* access = qobject_cast<QComboBox*>(part("procSimWaveAccess"));
    ASSERT_NE(access, nullptr);
    access->setCurrentText("Write");
    EXPECT_EQ(access->currentText(), "Write");
    button(part("procSimWaveViewer"), "Add");
    ASSERT_NO_FATAL_FAILURE(clickMargin("WRPRT   s0, PORT_LAMPS"));
    EXPECT_TRUE(document()->simBreakpoints().isEmpty());
    QTimer stop;
    QObject::connect(&stop, &QTimer::timeout, window.get(), [this, &stop] {
        if (clocks() <= 2000)
            return;
        stop.stop();
        QTest::keyClick(window.get(), Qt::Key_F9);
    });
    stop.start(1);
    press(Qt::Key_F9);
    EXPECT_GT(clocks(), 2000);
    screenshot("tutorial-first-waves");
}

void Tutorials::firstInterrupt()
{
    module<ModGuiHookIf>()->setCurrentWidget(document());
    // The run has ended anywhere; the line 10 has an instruction before and after.
    const int before = 10;
    for (int step = 0; step < 100 && nextLine() != before; ++step)
        press(Qt::Key_F11);
    ASSERT_EQ(nextLine(), before);
    ASSERT_NO_FATAL_FAILURE(paste(sourcesOf("tutorialFirst").at(2)));
    save();
    ASSERT_NE(sim(), nullptr) << "it goes on";
    EXPECT_EQ(nextLine(), before) << "at the same line number";
    EXPECT_EQ(message("Missing instruction at interrupt vector"), nullptr);
    choose("Simulator > Reset");
    press(Qt::Key_F11);
    EXPECT_EQ(nextLine(), 7);
    press(Qt::Key_F11);
    choose("Simulator > Interrupt");
    EXPECT_NE(part("procSimEdtInterrupt"), nullptr);
    press(Qt::Key_F11);
    EXPECT_EQ(nextLine(), 26) << "the jump at the vector is executed";
    QStringList stack;
    auto* calls = sim()->callStackWidget();
    for (QTreeWidget* tree : calls->findChildren<QTreeWidget*>()) {
        for (QTreeWidgetItemIterator it(tree); *it != nullptr; ++it)
            stack.append((*it)->text(4));
    }
    for (QAbstractItemView* view : calls->findChildren<QAbstractItemView*>()) {
        for (int row = 0; row < view->model()->rowCount(); ++row)
            stack.append(view->model()->index(row, 4).data().toString());
    }
    EXPECT_TRUE(stack.contains("ISR")) << qPrintable(stack.join(' '));
    press(Qt::Key_F11);
    EXPECT_EQ(reg(0), 0);
    press(Qt::Key_F11);
    EXPECT_EQ(nextLine(), 9);
}

void Tutorials::firstOutput()
{
    choose("Simulator > Enable/disable simulator");
    ASSERT_EQ(sim(), nullptr);
    choose("Configuration > Configure...");
    openPage("Assembler");
    QWidget* hex = part("targetHex");
    ASSERT_NE(hex, nullptr);
    auto* enable = hex->findChild<QCheckBox*>("targetEnable");
    if (!enable->isChecked()) {
        enable->setFocus();
        QTest::keyClick(enable, Qt::Key_Space);
    }
    auto* file = hex->findChild<QWidget*>("targetOutputFile")->findChild<QLineEdit*>();
    file->setFocus();
    QTest::keyClicks(file, "lamps.hex");
    button(part("configDialog"), "Apply and close");
    choose("Assembler > Write output files button 1");
    QFile written(projectDir() + "/lamps.hex");
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(written.readAll().count('\n'), 1024);
}

TEST_F(Tutorials, AUartIsSimulatedByHand)
{
    ASSERT_NO_FATAL_FAILURE(makeProject("uart.nalvo", "UART"));
    ASSERT_NO_FATAL_FAILURE(chooseProcessor());
    choose("File > New...");
    ASSERT_NO_FATAL_FAILURE(paste(sourcesOf("tutorialUart").at(0)));
    ASSERT_NO_FATAL_FAILURE(saveAs("uart.psm"));
    choose("Simulator > Enable/disable simulator");
    ASSERT_NE(sim(), nullptr);
    module<ModGuiHookIf>()->setCurrentWidget(sim()->ioWidget());
    auto* kind = qobject_cast<QComboBox*>(part("procSimIODevType"));
    ASSERT_NE(kind, nullptr);
    const auto add = [&](const QString& name, const QString& addr) -> QWidget* {
        kind->setCurrentText(name);
        EXPECT_EQ(kind->currentText(), name);
        const QList<QWidget*> before = sim()->ioWidget()->findChildren<QWidget*>("procSimIODevice");
        button(sim()->ioWidget(), "Add");
        for (QWidget* device : sim()->ioWidget()->findChildren<QWidget*>("procSimIODevice")) {
            if (before.contains(device))
                continue;
            if (!addr.isEmpty()) {
                type(device->findChild<QLineEdit*>("procSimEdtNumeric"), addr);
                QTest::keyClick(device->findChild<QLineEdit*>("procSimEdtNumeric"), Qt::Key_Return);
            }
            auto* direction = device->findChild<QComboBox*>("procSimEdtDirection");
            direction->setFocus();
            for (int i = 0; i < direction->count() && direction->currentText() != "Read"; ++i)
                QTest::keyClick(direction, Qt::Key_Up);
            EXPECT_EQ(direction->currentText(), "Read");
            return device;
        }
        return nullptr;
    };
    QWidget* status = add("Register", QString());
    ASSERT_NE(status, nullptr);
    EXPECT_EQ(status->findChild<QLineEdit*>("procSimEdtNumeric")->text(), "00");
    type(valueOf(status), "04");
    QWidget* received = add("Fifo", "01");
    ASSERT_NE(received, nullptr);
    auto* arrow = received->findChild<QToolButton*>("procSimIOExpand");
    auto* lines = received->findChild<QPlainTextEdit*>();
    ASSERT_NE(arrow, nullptr);
    ASSERT_NE(lines, nullptr);
    QTest::mouseClick(arrow, Qt::LeftButton);
    settleLayout();
    ASSERT_TRUE(lines->isVisible()) << "the arrow unfolds it";
    lines->setFocus();
    QTest::keyClick(lines, Qt::Key_A, Qt::ControlModifier);
    for (const char* byte : {"48", "69", "0D"}) {
        QTest::keyClicks(lines, byte);
        if (QByteArray(byte) != "0D")
            QTest::keyClick(lines, Qt::Key_Return);
    }
    // With the keyboard in the list, as the reader has it.
    ASSERT_EQ(QApplication::focusWidget(), lines);
    QTest::keyClick(lines, Qt::Key_F9);
    screenshot("tutorial-uart1");
    ASSERT_TRUE(QTest::qWaitFor([&] { return message("Can not read IO value.") != nullptr; }, 5000));
    settleLayout();
    QWidget* sent = card("UART_TX");
    ASSERT_NE(sent, nullptr);
    if (sent == received)
        ADD_FAILURE() << "the same device answers";
    auto* output = sent->findChild<QPlainTextEdit*>();
    ASSERT_NE(output, nullptr);
    EXPECT_EQ(output->toPlainText().simplified(), "48 69 0D 0A");
    screenshot("tutorial-uart");
}

} // namespace

TEST_F(Tutorials, EveryMenuEntryThatAPageNamesIsThere)
{
    // With everything that brings entries: a processor.
    ASSERT_TRUE(SimWindow::open("XPBlze3", {"start:  JUMP start"}));
    int count = 0;
    for (const nsHelpBuild::HelpPage& page : HelpTree::help().pages()) {
        for (const QString& path : menuPathsOf(page)) {
            ++count;
            EXPECT_NE(entry(path), nullptr) << page.id.toStdString() << ": " << path.toStdString();
        }
    }
    EXPECT_GT(count, 20);
}

TEST_F(Tutorials, TheFirstQuarterOfAnHour)
{
    ASSERT_NO_FATAL_FAILURE(firstSteps());
    ASSERT_NO_FATAL_FAILURE(firstError());
    ASSERT_NO_FATAL_FAILURE(firstSingleSteps());
    ASSERT_NO_FATAL_FAILURE(firstRuns());
    ASSERT_NO_FATAL_FAILURE(firstInterrupt());
    ASSERT_NO_FATAL_FAILURE(firstOutput());
}
