// How the widgets of a simulator look under the program's style sheet, what room they take, that they rest while
// nothing changes.

#include "LMico8v3xSimCore.h"
#include "LMico8v3xSimCoreReg.h"
#include "XPBlze3SimCore.h"
#include "XPBlze3SimCoreReg.h"
#include "XPBlze6SimCore.h"
#include "XPBlze6SimCoreReg.h"

#include "ProcSimCallStack.h"
#include "ProcSimCoreData.h"
#include "ProcSimEdtBit.h"
#include "ProcSimEdtInterrupt.h"
#include "ProcSimEdtNumeric.h"
#include "ProcSimResolvePageDialog.h"
#include "ProcSimScrpd.h"
#include "ProcSimStatusBar.h"

#include "Colors.h"
#include "Readable.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMainWindow>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>

#include <algorithm>
#include <utility>

using namespace nsProc;

namespace {

/// Counts what a widget and all below it are made to do.
class WorkCounter : public QObject
{
public:
    explicit WorkCounter(QWidget* widget)
    {
        widget->installEventFilter(this);
        for (QWidget* child : widget->findChildren<QWidget*>())
            child->installEventFilter(this);
    }

    bool eventFilter(QObject* /*object*/, QEvent* event) override
    {
        m_count += event->type() == QEvent::Paint || event->type() == QEvent::StyleChange ||
                   event->type() == QEvent::LayoutRequest || event->type() == QEvent::UpdateRequest;
        return false;
    }
    /// Work since the last call.
    int take()
    {
        QApplication::sendPostedEvents();
        QApplication::processEvents();
        return std::exchange(m_count, 0);
    }

private:
    int m_count = 0;
};

class SimLook : public ::testing::Test
{
protected:
    SimLook()
    {
        EXPECT_FALSE(Colors::styleSheet().isEmpty());
        m_window.setStyleSheet(Colors::styleSheet());
    }

    /// Shows the widget in a window of a size.
    void show(QWidget* widget, int width, int height)
    {
        m_window.setCentralWidget(widget);
        m_window.resize(width, height);
        m_window.show();
        QApplication::setActiveWindow(&m_window);
        rest();
    }

    static void rest()
    {
        for (int i = 0; i < 5; ++i) {
            QApplication::sendPostedEvents();
            QApplication::processEvents();
        }
    }

    static void picture(const QString& name, QWidget* widget)
    {
        rest();
        const QString dir = QStringLiteral(NALVO_BINARY_DIR "/screenshots");
        QDir().mkpath(dir);
        const QString path = dir + "/simWidgets-" + name + ".png";
        EXPECT_TRUE(expectReadable(widget).save(path)) << qPrintable(path);
    }

    static int redPixels(QWidget* widget)
    {
        const QImage image = widget->grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor color = image.pixelColor(x, y);
                count += int(color.red() > 200 && color.green() < 100 && color.blue() < 100);
            }
        }
        return count;
    }

    /// What the tabulator reaches below a widget, in its order.
    static QList<QWidget*> focusOrder(QWidget* first, const QWidget* top)
    {
        QList<QWidget*> order{first};
        for (QWidget* next = first->nextInFocusChain(); next != first; next = next->nextInFocusChain()) {
            if (top->isAncestorOf(next) && (next->focusPolicy() & Qt::TabFocus))
                order.append(next);
        }
        return order;
    }

    /// A state with something of everything.
    static void fill(ProcSimCore* core, int regCount)
    {
        const char* const names[] = {"counter", "tmp", "uart_status", "main::loop_hi", "x"};
        for (int index = 0; index < regCount; ++index)
            core->setReg(index, index % 3 == 2 ? "" : names[index % 5], index * 37);
        core->clearHighlighted();
        core->setReg(3, "address_low", 0xA5);
        core->setCarryBit(1);
        core->setScrpd(9, 0x3C);
        core->setInterrupt(eIntEnabled);
        core->setPc(0x3FF, "PAGE0");
    }

    QMainWindow m_window;
};

TEST_F(SimLook, PictureOfEachWidget)
{
    auto* xpBlze3 = new nsXPBlze3::XPBlze3SimCore(64, 1024);
    fill(xpBlze3, 16);
    show(xpBlze3, 280, 640);
    picture("xpBlze3", xpBlze3);
    auto* xpBlze6 = new nsXPBlze6::XPBlze6SimCore(256, 4096);
    fill(xpBlze6, 16);
    show(xpBlze6, 280, 640);
    picture("xpBlze6", xpBlze6);
    auto* mico = new nsLMico8v3x::LMico8v3xSimCore(32, 2000, 1024);
    fill(mico, 32);
    mico->setBase(8);
    show(mico, 480, 640);
    picture("lMico8v3x", mico);
    auto* stack = new ProcSimCallStack(31);
    for (int level = 0; level < 4; ++level)
        stack->add({"function_" + QString::number(level), level % 2 != 0, false, 0x120 + level, 0});
    show(stack, 600, 200);
    picture("callStack", stack);
    auto* bar = new ProcSimStatusBar(50000000);
    bar->addClkCntr(123456);
    show(bar, 600, 30);
    picture("statusBar", bar);
    ProcSimResolvePageDialog dialog(3, &m_window);
    dialog.show();
    picture("resolvePage", &dialog);
}

TEST_F(SimLook, HighlightIsRed)
{
    auto* core = new nsXPBlze3::XPBlze3SimCore(64, 1024);
    show(core, 280, 640);
    EXPECT_EQ(redPixels(core), 0);
    const auto edits = core->findChildren<ProcSimEdtNumeric*>();
    core->setReg(3, QString(), 0x88);
    int red = 0;
    for (ProcSimEdtNumeric* edit : edits)
        red += int(redPixels(edit) > 0);
    EXPECT_EQ(red, 1);
    core->clearHighlighted();
    EXPECT_EQ(redPixels(core), 0);
    core->setScrpd(0, 0x88);
    EXPECT_GT(redPixels(core), 0);
    core->clearHighlighted();
    EXPECT_EQ(redPixels(core), 0);
    for (ProcSimEdtBit* bit : core->findChildren<ProcSimEdtBit*>())
        EXPECT_EQ(redPixels(bit), 0);
    core->setCarryBit(1);
    core->setZeroBit(1);
    for (ProcSimEdtBit* bit : core->findChildren<ProcSimEdtBit*>())
        EXPECT_GT(redPixels(bit), 0);
}

TEST_F(SimLook, WidgetsRestWhileNothingChanges)
{
    auto* core = new nsXPBlze6::XPBlze6SimCore(256, 1024);
    fill(core, 16);
    show(core, 280, 640);
    WorkCounter work(core);
    work.take();
    for (int i = 0; i < 10; ++i)
        core->refresh();
    EXPECT_EQ(work.take(), 0);
    core->data()->setReg(5, "other", 7);
    core->refresh();
    EXPECT_GT(work.take(), 0);

    auto* bar = new ProcSimStatusBar(1000);
    show(bar, 600, 30);
    WorkCounter workOfBar(bar);
    workOfBar.take();
    bar->refresh();
    EXPECT_EQ(workOfBar.take(), 0);
    bar->addClkCntr(1);
    EXPECT_GT(workOfBar.take(), 0);

    auto* stack = new ProcSimCallStack(31);
    stack->add({"function", false, false, 1, 1});
    show(stack, 600, 200);
    QSignalSpy changes(stack, &ProcSimCallStack::contentChanged);
    WorkCounter workOfStack(stack->viewport());
    workOfStack.take();
    stack->refresh();
    EXPECT_EQ(workOfStack.take(), 0);
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(SimLook, NothingMovesWithValuesAndBases)
{
    auto* core = new nsXPBlze6::XPBlze6SimCore(256, 4096);
    show(core, 320, 700);
    const auto places = [core] {
        QList<QRect> result;
        for (QWidget* edit : core->findChildren<ProcSimEdtNumeric*>())
            result.append(QRect(edit->mapTo(core, QPoint()), edit->size()));
        return result;
    };
    const QList<QRect> before = places();
    core->setCarryBit(1);
    core->setReg(0, "a_very_long_name_of_a_register", 255);
    core->setPc(4095, "SHARED");
    core->setInterrupt(eIntService);
    for (const int base : {8, 10, 16}) {
        core->setBase(base);
        rest();
        EXPECT_EQ(places(), before) << base;
    }
    auto* bar = new ProcSimStatusBar(50000000);
    show(bar, 900, 30);
    const int least = bar->minimumSizeHint().width();
    bar->addClkCntr(2147483647);
    bar->addClkCntr(1);
    bar->setBase("DEC");
    rest();
    EXPECT_EQ(bar->minimumSizeHint().width(), least);
}

TEST_F(SimLook, CoreFitsALowWindowAndShowsAllRegistersInAHighOne)
{
    auto* core = new nsLMico8v3x::LMico8v3xSimCore(32, 64, 1024);
    show(core, 320, 250);
    EXPECT_LE(core->minimumSizeHint().height(), 300);
    auto* area = qobject_cast<QScrollArea*>(core->findChild<ProcSimCoreReg*>()->parentWidget()->parentWidget());
    ASSERT_NE(area, nullptr);
    EXPECT_GT(area->verticalScrollBar()->maximum(), 0);
    m_window.resize(320, 1300);
    rest();
    EXPECT_EQ(area->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(area->height(), area->widget()->sizeHint().height());
}

TEST_F(SimLook, TabulatorGoesFromTopToBottom)
{
    auto* core = new nsXPBlze6::XPBlze6SimCore(8, 1024);
    show(core, 320, 700);
    QStringList order;
    for (const QWidget* widget : focusOrder(core->findChild<ProcSimEdtNumeric*>(), core)) {
        if (widget->isVisible())
            order.append(widget->toolTip());
    }
    ASSERT_EQ(order.size(), 6 + 16 + 8) << qPrintable(order.join('\n'));
    EXPECT_TRUE(order[0].startsWith("Address of the next instruction"));
    EXPECT_EQ(order[1], "Value that the instruction HWBUILD reads");
    EXPECT_TRUE(order[2].startsWith("Carry"));
    EXPECT_TRUE(order[3].startsWith("Zero"));
    EXPECT_TRUE(order[4].startsWith("If interrupt"));
    EXPECT_EQ(order[5], "Register bank");
    EXPECT_EQ(order[6], "Register s0");
    EXPECT_EQ(order[21], "Register sF");
    EXPECT_EQ(order[22], "Address 0");
    EXPECT_EQ(order[29], "Address 7");
}

TEST_F(SimLook, ScratchpadHasEightCellsBesideEachOtherWhereTheyFit)
{
    auto* scrpd = new ProcSimScrpd(64);
    show(scrpd, 240, 300);
    const auto cells = scrpd->findChildren<ProcSimEdtNumeric*>();
    const auto top = [scrpd](QWidget* cell) { return cell->mapTo(scrpd, QPoint()).y(); };
    const auto inFirstRow = [&] {
        return int(
            std::count_if(cells.begin(), cells.end(), [&](QWidget* cell) { return top(cell) == top(cells.first()); }));
    };
    const auto addresses = [scrpd] {
        QStringList result;
        for (const QLabel* label : scrpd->findChildren<QLabel*>()) {
            if (label->isVisible())
                result.append(label->text());
        }
        return result;
    };
    EXPECT_EQ(inFirstRow(), 4);
    EXPECT_EQ(addresses().mid(0, 3), QStringList({"00", "04", "08"}));
    EXPECT_EQ(addresses().size(), 16);
    m_window.resize(600, 300);
    rest();
    EXPECT_EQ(inFirstRow(), 8);
    EXPECT_EQ(addresses().mid(0, 3), QStringList({"00", "08", "10"}));
    EXPECT_EQ(addresses().size(), 8);
    m_window.resize(240, 300);
    rest();
    EXPECT_EQ(inFirstRow(), 4);
    EXPECT_EQ(addresses().size(), 16);
}

TEST_F(SimLook, ScratchpadScrollsOnceForAnAddress)
{
    auto* scrpd = new ProcSimScrpd(256);
    show(scrpd, 240, 250);
    scrpd->setValue(200, 1);
    const auto cells = scrpd->findChildren<ProcSimEdtNumeric*>();
    const QRect cell(cells[200]->mapTo(scrpd->viewport(), QPoint()), cells[200]->size());
    EXPECT_GE(cell.top(), 50);
    EXPECT_LE(cell.bottom(), scrpd->viewport()->height() - 50);
    // The user looks elsewhere while the program stays with the cell.
    scrpd->verticalScrollBar()->setValue(0);
    scrpd->setValue(200, 2);
    scrpd->refresh();
    EXPECT_EQ(scrpd->verticalScrollBar()->value(), 0);
}

TEST_F(SimLook, ScratchpadShowsTheHighlightedCellHoweverLowItIs)
{
    for (const int height : {70, 120, 400}) {
        auto* scrpd = new ProcSimScrpd(256);
        scrpd->setValue(9, 1);
        show(scrpd, 240, height);
        for (const int addr : {9, 250, 128, 0}) {
            scrpd->setValue(addr, 1);
            const QWidget* cell = scrpd->findChildren<ProcSimEdtNumeric*>().at(addr);
            const QRect place(cell->mapTo(scrpd->viewport(), QPoint()), cell->size());
            EXPECT_TRUE(scrpd->viewport()->rect().contains(place)) << addr << " in " << height;
        }
    }
}

TEST_F(SimLook, FocusOfTheInterruptCanBeSeen)
{
    auto* mark = new ProcSimEdtInterrupt;
    auto* holder = new QWidget;
    mark->setParent(holder);
    mark->move(20, 20);
    show(holder, 100, 100);
    mark->clearFocus();
    const QImage without = mark->grab().toImage();
    mark->setFocus();
    ASSERT_TRUE(mark->hasFocus());
    EXPECT_NE(mark->grab().toImage(), without);
}

TEST(SimCoreReg, HasRegistersOfItsOwn)
{
    nsXPBlze3::XPBlze3SimCoreReg xpBlze3;
    nsXPBlze6::XPBlze6SimCoreReg xpBlze6;
    nsLMico8v3x::LMico8v3xSimCoreReg mico(32);
    const std::pair<ProcSimCoreReg*, int> rows[] = {{&xpBlze3, 16}, {&xpBlze6, 16}, {&mico, 32}};
    for (const auto& [regs, count] : rows) {
        EXPECT_TRUE(regs->setReg(count - 1, "last", 0x21));
        EXPECT_FALSE(regs->setReg(count, "none", 1));
        int value = -1;
        EXPECT_FALSE(regs->reg(count, "none", &value));
        EXPECT_EQ(value, -1);
        const QWidget* page = regs->findChild<QStackedWidget*>()->currentWidget();
        const ProcSimEdtNumeric* last = page->findChildren<ProcSimEdtNumeric*>().at(count - 1);
        EXPECT_EQ(last->text(), "21");
        EXPECT_TRUE(last->isHighlighted());
        EXPECT_TRUE(regs->reg(count - 1, "read", &value));
        EXPECT_EQ(value, 0x21);
        EXPECT_EQ(page->findChildren<QLabel*>("procSimAlias").at(count - 1)->toolTip(), "read");
    }
    EXPECT_NE(xpBlze6.findChild<QComboBox*>(), nullptr);
    EXPECT_EQ(xpBlze3.findChild<QComboBox*>(), nullptr);
}

TEST(SimCore, RefreshLeavesTypingAloneUntilTheProgramSetsTheValue)
{
    nsXPBlze3::XPBlze3SimCore core(64, 1024);
    ProcSimEdtNumeric* edit = core.findChild<ProcSimCoreReg*>()->findChildren<ProcSimEdtNumeric*>().at(2);
    edit->selectAll();
    QTest::keyClicks(edit, "7");
    core.refresh();
    EXPECT_EQ(edit->text(), "7");
    EXPECT_EQ(core.data()->regValue(0, 2), 7);
    core.data()->setReg(2, QString(), 7);
    core.refresh();
    EXPECT_EQ(edit->text(), "7");
    core.data()->setReg(2, QString(), 9);
    core.refresh();
    EXPECT_EQ(edit->text(), "09");
    // What was typed before is gone, and does not come back at the end of the edit.
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(core.data()->regValue(0, 2), 9);
}

TEST(SimCore, ImageForTheScratchpadThatIsTooLongIsIgnored)
{
    nsXPBlze3::XPBlze3SimCore core(2, 1024);
    unsigned int image[] = {1, 2, 3};
    EXPECT_FALSE(core.initScrpd(image, 3));
    int value = -1;
    EXPECT_TRUE(core.scrpd(0, &value));
    EXPECT_EQ(value, 0);
    EXPECT_TRUE(core.initScrpd(image, 2));
    EXPECT_TRUE(core.scrpd(1, &value));
    EXPECT_EQ(value, 2);
}

TEST(SimScrpd, ClearReachesTheCellsThatAreNotShown)
{
    ProcSimScrpd scrpd(2000);
    scrpd.setValue(1999, 5);
    scrpd.setValue(3, 5);
    scrpd.clear();
    int value = -1;
    EXPECT_TRUE(scrpd.value(1999, &value));
    EXPECT_EQ(value, 0);
    EXPECT_TRUE(scrpd.value(3, &value));
    EXPECT_EQ(value, 0);
    EXPECT_EQ(scrpd.findChildren<ProcSimEdtNumeric*>().at(3)->text(), "00");
}

TEST(SimEdtNumeric, ReturnEndsTheEditOfAnEmptyField)
{
    ProcSimEdtNumeric edit;
    edit.setValue(9);
    edit.show();
    QSignalSpy ends(&edit, &ProcSimEdtNumeric::valueChanged);
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_Delete);
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(edit.text(), "00");
    ASSERT_EQ(ends.count(), 1);
    EXPECT_EQ(ends.first().first().toInt(), 0);
}

TEST(SimEdtNumeric, BaseThatIsThereAlreadyLeavesTheTypingAlone)
{
    ProcSimEdtNumeric edit;
    edit.selectAll();
    QTest::keyClicks(&edit, "c");
    edit.setBase(16);
    EXPECT_EQ(edit.text(), "c");
    for (int i = 0; i < 10; ++i) {
        edit.setBase(8);
        edit.setBase(10);
    }
    EXPECT_EQ(edit.text(), "012");
    EXPECT_EQ(edit.findChildren<QValidator*>().size(), 1);
}

TEST(SimCallStack, ClearOfAnEmptyStackIsNoChange)
{
    ProcSimCallStack stack(31);
    QSignalSpy changes(&stack, &ProcSimCallStack::contentChanged);
    stack.clear();
    EXPECT_EQ(changes.count(), 0);
    stack.add({"function", false, false, 1, 1});
    stack.clear();
    EXPECT_EQ(changes.count(), 2);
    EXPECT_EQ(stack.model()->rowCount(), 0);
}

} // namespace
