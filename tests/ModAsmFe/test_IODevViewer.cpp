// The maps of the IO devices: what they show of a run, and where a cell leads.

#include "AsmFixture.h"

#include "IODevList.h"
#include "IODevViewerList.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>

using namespace nsModAsmFe;

namespace {

using Kind = IODevViewerItem::eCellKind_t;

// Cells 16 to 18 stand in line 4, cell 19 in line 5 (counted from 0).
const QByteArray ramSource = "#SET IODEV::ram::EN, TRUE\n"
                             "#SET IODEV::ram::SIZE, 100\n"
                             "#SET IODEV::ram::INITVALUE, 0xA5\n"
                             "; the contents\n"
                             "#SET IODEV::ram::VALUE, 0x10: 1, 2, 0xff\n"
                             "#SET IODEV::ram::VALUE, append: 7\n"
                             "start: LOAD s0, 1\n"
                             " LOAD s1, 2\n";
const QByteArray plainSource = "start: LOAD s0, 1\n LOAD s1, 2\n";
const QByteArray twoPages = "#SET INSTMEM::PAGESIZE, 64\n"
                            "#SET INSTMEM::PAGECOUNT, 2\n"
                            "#ORG MEMRANGE, PAGE0\n"
                            " LOAD s0, 1\n"
                            "#ORG MEMRANGE, PAGE1\n"
                            " LOAD s1, 2\n"
                            " LOAD s1, 3\n"
                            "#ORG MEMRANGE, SHARED\n"
                            " LOAD s2, 4\n";

QString plain(const QLabel* label)
{
    QTextDocument document;
    document.setHtml(label->text());
    return document.toPlainText().simplified();
}

void sendMouse(QWidget* widget, QEvent::Type type, const QPoint& pos, Qt::MouseButton button = Qt::NoButton)
{
    QMouseEvent event(type, pos, widget->mapToGlobal(pos), button, button, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

class IODevViewer : public ::testing::Test
{
protected:
    IODevViewer()
        : view(openedView(&f))
    {
        f.be.pageSize = 1024;
        qRegisterMetaType<SrcReference*>("SrcReference*");
        if (view != nullptr) {
            view->resize(360, 600);
            view->show();
        }
    }
    void SetUp() override { ASSERT_NE(view, nullptr); }

    int count() const { return view->elements().size(); }
    IODevViewerItem* item(int index = 0) const { return view->elements().at(index).item; }
    /// The tip that the user sees with the pointer there.
    QString tipAt(const QPoint& pos, int index = 0) const
    {
        sendMouse(item(index), QEvent::MouseMove, pos);
        // A tip stays for a moment when the pointer has left its cell.
        (void)QTest::qWaitFor([&] { return !QToolTip::isVisible() || item(index)->cellAt(pos) >= 0; });
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }
    QString tipOf(int addr, int index = 0) const { return tipAt(item(index)->cellRect(addr).center(), index); }
    void doubleClick(int addr, int index = 0) const
    {
        QTest::mouseDClick(item(index), Qt::LeftButton, Qt::NoModifier, item(index)->cellRect(addr).center());
        QCoreApplication::processEvents();
    }
    QColor colorOf(int addr, int index = 0) const
    {
        return item(index)->grab().toImage().pixelColor(item(index)->cellRect(addr).center());
    }
    QScrollBar* scrollBar() const { return view->findChild<QScrollArea*>()->verticalScrollBar(); }

    static IODevViewerList* openedView(AsmFixture* fixture)
    {
        fixture->open();
        return qobject_cast<IODevViewerList*>(fixture->gui.widgetNamed("IO device map viewer"));
    }

    AsmFixture f;
    QPointer<IODevViewerList> view; ///< there while the project is open
};

TEST(IODevViewerInWindow, comesAndGoesWithTheProject)
{
    AsmFixture f;
    const auto there = [&] { return f.gui.widgetNamed("IO device map viewer"); };
    EXPECT_EQ(there(), nullptr) << "at the start of the program";
    QWidget other;
    f.gui.addWidget(nullptr, ModGuiHookIf::eLocationDockRight, &other, "other");
    f.gui.setWidgetVisible(ModGuiHookIf::eLocationDockRight, true);
    f.open();
    QPointer<QWidget> view = there();
    ASSERT_FALSE(view.isNull());
    EXPECT_TRUE(f.gui.hasWidget(ModGuiHookIf::eLocationDockRight, view));
    EXPECT_EQ(f.gui.currentWidget(ModGuiHookIf::eLocationDockRight), &other) << "the panel in front stays in front";
    EXPECT_TRUE(f.run(ramSource));
    f.prj.close();
    EXPECT_EQ(there(), nullptr);
    EXPECT_TRUE(view.isNull());
    // A dock that the user has put away stays away.
    f.gui.setWidgetVisible(ModGuiHookIf::eLocationDockRight, false);
    f.open();
    EXPECT_NE(there(), nullptr);
    EXPECT_FALSE(f.gui.widgetVisible(ModGuiHookIf::eLocationDockRight));
    EXPECT_TRUE(f.run(ramSource));
    f.gui.removeWidget(&other);
}

TEST(IODevViewerInWindow, theProjectClosesDuringARun)
{
    AsmFixture f;
    f.open();
    QPointer<QWidget> view = f.gui.widgetNamed("IO device map viewer");
    ASSERT_FALSE(view.isNull());
    f.be.onStage1 = [&] {
        f.prj.close();
        EXPECT_EQ(f.gui.widgetNamed("IO device map viewer"), nullptr);
    };
    EXPECT_FALSE(f.run(ramSource));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(view.isNull());
}

TEST_F(IODevViewer, standsInTheWindow)
{
    EXPECT_TRUE(f.gui.hasWidget(ModGuiHookIf::eLocationDockRight, view));
    f.asmFe.modExitIntermod();
    EXPECT_EQ(f.gui.widgetNamed("IO device map viewer"), nullptr);
    EXPECT_FALSE(f.run(" NONSENSE\n")) << "a run without the view";
    EXPECT_TRUE(f.run(plainSource));
}

TEST_F(IODevViewer, isEmptyUntilTheFirstAssembledRunAndAfterAFailedOne)
{
    EXPECT_EQ(count(), 0);
    EXPECT_FALSE(f.run(ramSource + " NONSENSE\n"));
    EXPECT_EQ(count(), 0);
    EXPECT_TRUE(f.run(ramSource));
    // The device of the source, and the one that takes the instructions as none of the source does.
    EXPECT_EQ(count(), 2);
    EXPECT_FALSE(f.run(ramSource + " NONSENSE\n"));
    EXPECT_EQ(count(), 0);
    f.be.stage2 = false;
    EXPECT_FALSE(f.run(ramSource)) << "fails when the devices exist already";
    EXPECT_EQ(count(), 0);
    f.be.stage2 = true;
    EXPECT_TRUE(f.run(plainSource));
    EXPECT_EQ(count(), 1);
}

TEST_F(IODevViewer, isEmptyAfterAFailedWrite)
{
    EXPECT_TRUE(f.run(plainSource));
    EXPECT_EQ(count(), 1);
    EXPECT_FALSE(
        f.run(ramSource + "#SET IODEV::ram::HEXEN, TRUE\n#SET IODEV::ram::HEXTARGETFILE, \"no/such/folder/x.hex\"\n",
              ModAsmFe::eEventButton1));
    EXPECT_EQ(count(), 0);
}

TEST_F(IODevViewer, isEmptyWithoutProjectOrProcessor)
{
    EXPECT_TRUE(f.run(ramSource));
    f.asmFe.unregisterPlugin(&f.be);
    EXPECT_EQ(count(), 0);
    f.asmFe.registerPlugin(&f.be);
    EXPECT_TRUE(f.run(ramSource));
    EXPECT_EQ(count(), 2);
    f.asmFe.prjClose();
    EXPECT_TRUE(view.isNull());
}

TEST_F(IODevViewer, isClearedBeforeTheDevicesGo)
{
    EXPECT_TRUE(f.run(ramSource));
    int during = -1;
    f.be.onStage1 = [&] {
        during = count();
        view->grab();
    };
    EXPECT_TRUE(f.run(plainSource));
    EXPECT_EQ(during, 0);
}

TEST_F(IODevViewer, namesSummaryAndMapOfEachDevice)
{
    QSignalSpy changed(view, &IODevViewerList::contentChanged);
    EXPECT_TRUE(f.run(ramSource));
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(changed.last().first().value<QWidget*>(), view);
    ASSERT_EQ(count(), 2);
    const IODevViewerList::sViewerElements_t ram = view->elements().at(0);
    EXPECT_EQ(plain(ram.nameTitle), QString("Device name"));
    EXPECT_EQ(ram.name->text(), QString("IODEV::ram"));
    EXPECT_EQ(plain(ram.summaryTitle), QString("Device summary"));
    EXPECT_EQ(plain(ram.summary), QString("Size: 100 Instructions Summary instruction count: 0 "
                                          "Shared range instruction count: 0"));
    EXPECT_EQ(plain(ram.mapTitle), QString("Memory map"));
    const IODevViewerList::sViewerElements_t mem = view->elements().at(1);
    EXPECT_EQ(mem.name->text(), QString("IODev::defaultInstMem"));
    EXPECT_EQ(plain(mem.summary), QString("Size: 1024 Instructions Summary instruction count: 2 "
                                          "Shared range instruction count: 0"));
}

TEST_F(IODevViewer, countsTheInstructionsOfTheSharedRangeInEachPage)
{
    EXPECT_TRUE(f.run(twoPages)) << qPrintable(f.errors().join(' '));
    ASSERT_EQ(count(), 1);
    EXPECT_EQ(plain(view->elements().at(0).summary), QString("Size: 128 Instructions Summary instruction count: 5 "
                                                             "Shared range instruction count: 2"));
}

TEST_F(IODevViewer, legend)
{
    auto* legend = view->findChild<QWidget*>("ioDevViewerLegend");
    ASSERT_NE(legend, nullptr);
    QStringList texts;
    QStringList colors;
    for (const QLabel* label : legend->findChildren<QLabel*>()) {
        if (label->pixmap(Qt::ReturnByValue).isNull()) {
            texts.append(plain(label));
        } else {
            EXPECT_EQ(label->pixmap(Qt::ReturnByValue).size(), QSize(10, 10));
            colors.append(label->pixmap(Qt::ReturnByValue).toImage().pixelColor(5, 5).name());
        }
    }
    EXPECT_EQ(texts, QStringList({"Legend", "Init value", "Page value", "Shared range value"}));
    EXPECT_EQ(colors, QStringList({IODevViewerItem::sConfig_t().initValue.name(), "#808000", "#800000"}));
}

TEST_F(IODevViewer, aColourForEachKindOfCell)
{
    EXPECT_TRUE(f.run(twoPages));
    const IODevViewerItem::sConfig_t colors;
    int kinds[3] = {0, 0, 0};
    for (int addr = 0; addr < 128; ++addr) {
        ++kinds[item()->kindOf(addr)];
        EXPECT_EQ(colorOf(addr).name(), colors.color(item()->kindOf(addr)).name()) << addr;
    }
    EXPECT_EQ(kinds[Kind::eInitValue], 123);
    EXPECT_EQ(kinds[Kind::ePageValue], 3);
    EXPECT_EQ(kinds[Kind::eSharedValue], 2);
    EXPECT_EQ(item()->kindOf(0), Kind::ePageValue);
    EXPECT_EQ(item()->kindOf(64), Kind::ePageValue);
    EXPECT_EQ(item()->kindOf(63), Kind::eSharedValue);
    EXPECT_EQ(item()->kindOf(127), Kind::eSharedValue);
}

TEST_F(IODevViewer, configuredColours)
{
    EXPECT_TRUE(f.run(ramSource));
    IODevViewerItem::sConfig_t colors;
    colors.initValue = QColor("#010203");
    colors.pageValue = QColor("#040506");
    item()->setConfig(colors);
    EXPECT_EQ(colorOf(0).name(), QString("#010203"));
    EXPECT_EQ(colorOf(16).name(), QString("#040506"));
}

TEST_F(IODevViewer, tipsOfTheCells)
{
    EXPECT_TRUE(f.run(ramSource));
    EXPECT_EQ(tipOf(0), QString("Address: 0x0, Init value: 0xa5"));
    EXPECT_EQ(tipOf(16), QString("Address: 0x10, Value 0x1"));
    EXPECT_EQ(tipOf(18), QString("Address: 0x12, Value 0xff"));
    EXPECT_EQ(tipOf(99), QString("Address: 0x63, Init value: 0xa5"));
    // Beside the cells: in the addresses, and after the last cell of the last row.
    EXPECT_EQ(tipAt(QPoint(1, 1)), QString());
    EXPECT_NE(tipOf(5), QString());
    EXPECT_EQ(tipAt(item()->cellRect(99).center() + QPoint(2 * item()->rowHeight(), 0)), QString());
}

TEST_F(IODevViewer, doubleClickLeadsToTheSource)
{
    EXPECT_TRUE(f.run(ramSource));
    doubleClick(16);
    doubleClick(18);
    doubleClick(19);
    doubleClick(1, 1);
    EXPECT_EQ(f.editor.places, QStringList({"src0.psm:4", "src0.psm:4", "src0.psm:5", "src0.psm:7"}));
}

TEST_F(IODevViewer, doubleClickOnACellThatNothingWroteDoesNothing)
{
    EXPECT_TRUE(f.run(ramSource));
    QSignalSpy requests(view, &IODevViewerList::srcRefRequest);
    doubleClick(0); // the source says the init value
    doubleClick(20);
    doubleClick(500, 1); // nobody says anything
    QTest::mouseDClick(item(), Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
    QTest::mouseDClick(item(), Qt::RightButton, Qt::NoModifier, item()->cellRect(16).center());
    QCoreApplication::processEvents();
    EXPECT_EQ(requests.count(), 0);
    EXPECT_EQ(f.editor.places, QStringList());
    doubleClick(16);
    EXPECT_EQ(requests.count(), 1);
}

TEST_F(IODevViewer, theFileMayBeAnotherThanTheFirst)
{
    f.open();
    f.setSources({ramSource, "\n\n LOAD s0, 3\n"});
    f.asmFe.assemble(ModAsmFe::eEventNone);
    ASSERT_EQ(count(), 2);
    doubleClick(2, 1);
    EXPECT_EQ(f.editor.places, QStringList("src1.psm:2"));
    f.asmFe.showSrcReference(nullptr);
    SrcReference nowhere;
    nowhere.fileNo = 7;
    f.asmFe.showSrcReference(&nowhere);
    EXPECT_EQ(f.editor.places.size(), 1);
}

TEST_F(IODevViewer, aRunFromWithinTheDoubleClickIsSafe)
{
    EXPECT_TRUE(f.run(ramSource));
    // The editor may ask and save on its way to the line, and saving starts a run.
    QObject::connect(view, &IODevViewerList::srcRefRequest, view, [this] { EXPECT_TRUE(f.run(plainSource)); });
    doubleClick(16);
    ASSERT_EQ(count(), 1);
    EXPECT_TRUE(tipOf(0).startsWith("Address: 0x0, Value"));
}

TEST_F(IODevViewer, everyCellIsHitWhereItIsPainted)
{
    EXPECT_TRUE(f.run(ramSource));
    for (int width : {150, 300, 700, 1500}) {
        view->resize(width, 500);
        const int columns = item()->columns();
        EXPECT_EQ(columns & (columns - 1), 0);
        EXPECT_GE(columns, 8);
        EXPECT_GE(width, columns > 8 ? item()->cellRect(columns - 1).right() : 0);
        QSet<int> hit;
        for (int addr = 0; addr < 100; ++addr) {
            EXPECT_EQ(item()->cellAt(item()->cellRect(addr).topLeft()), addr) << width;
            EXPECT_EQ(item()->cellAt(item()->cellRect(addr).bottomRight()), addr) << width;
            EXPECT_TRUE(item()->rect().contains(item()->cellRect(addr))) << width;
        }
        EXPECT_EQ(item()->cellAt(QPoint(item()->width() + 5, 1)), -1);
        EXPECT_EQ(item()->cellAt(QPoint(item()->width() - 1, item()->height() + 1)), -1);
        EXPECT_EQ(item()->cellAt(QPoint(-1, 1)), -1);
        EXPECT_EQ(item()->cellAt(QPoint(item()->width() / 2, -1)), -1);
    }
}

TEST_F(IODevViewer, widerWindowsShowMoreColumns)
{
    EXPECT_TRUE(f.run(ramSource));
    view->resize(160, 500);
    const int narrow = item()->columns();
    view->resize(900, 500);
    EXPECT_GT(item()->columns(), narrow);
}

TEST_F(IODevViewer, nothingIsBuiltWhileNobodyLooks)
{
    view->hide();
    QSignalSpy changed(view, &IODevViewerList::contentChanged);
    EXPECT_TRUE(f.run(ramSource));
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(count(), 0);
    view->show();
    EXPECT_EQ(count(), 2);
    view->hide();
    EXPECT_FALSE(f.run(" NONSENSE\n"));
    view->show();
    EXPECT_EQ(count(), 0);
}

TEST_F(IODevViewer, theNextRunShowsTheSamePlace)
{
    EXPECT_TRUE(f.run(plainSource));
    view->resize(300, 200);
    ASSERT_GT(scrollBar()->maximum(), 150);
    scrollBar()->setValue(150);
    EXPECT_TRUE(f.run(plainSource));
    EXPECT_EQ(scrollBar()->value(), 150);
    EXPECT_FALSE(f.run(" NONSENSE\n"));
    EXPECT_TRUE(f.run(plainSource));
    EXPECT_EQ(scrollBar()->value(), 150);
}

TEST_F(IODevViewer, comesToTheFrontForOtherDevicesOnly)
{
    QSignalSpy changed(view, &IODevViewerList::contentChanged);
    EXPECT_TRUE(f.run(ramSource));
    EXPECT_EQ(changed.count(), 1);
    EXPECT_TRUE(f.run(ramSource + " LOAD s2, 3\n"));
    EXPECT_FALSE(f.run(" NONSENSE\n"));
    EXPECT_TRUE(f.run(ramSource));
    EXPECT_EQ(changed.count(), 1) << "an edit, an error and its mending";
    EXPECT_TRUE(f.run(plainSource));
    EXPECT_EQ(changed.count(), 2);
    EXPECT_TRUE(f.run(plainSource + "#SET INSTMEM::PAGESIZE, 512\n"));
    EXPECT_EQ(changed.count(), 3);
}

TEST_F(IODevViewer, theLargestDeviceIsShownToItsLastCell)
{
    EXPECT_TRUE(f.run("#SET IODEV::big::EN, TRUE\n#SET IODEV::big::SIZE, 16776192\n"
                      "#SET IODEV::big::VALUE, 16776191: 0x55\n LOAD s0, 1\n"));
    ASSERT_EQ(count(), 2);
    const int last = 16776191;
    QWidget* content = view->findChild<QWidget*>("ioDevViewerContent");
    EXPECT_TRUE(content->rect().contains(item()->geometry())) << "no size is clipped";
    EXPECT_TRUE(item()->rect().contains(item()->cellRect(last)));
    QScrollArea* area = view->findChild<QScrollArea*>();
    const QPoint place = item()->mapTo(content, item()->cellRect(last).center());
    area->ensureVisible(place.x(), place.y());
    const QPoint seen = content->mapTo(view, place);
    EXPECT_TRUE(view->rect().contains(seen));
    EXPECT_EQ(view->grab().toImage().pixelColor(seen).name(), QString("#808000"));
    EXPECT_EQ(view->childAt(seen), item());
    EXPECT_EQ(tipOf(last), QString("Address: 0xfffbff, Value 0x55"));
    doubleClick(last);
    EXPECT_EQ(f.editor.places, QStringList("src0.psm:2"));
}

TEST_F(IODevViewer, aThousandDevices)
{
    QByteArray source = plainSource;
    for (int i = 0; i < 1000; ++i) {
        const QByteArray dev = "#SET IODEV::d" + QByteArray::number(i) + "::";
        source += dev + "EN, TRUE\n" + dev + "SIZE, 4\n";
    }
    EXPECT_TRUE(f.run(source));
    EXPECT_EQ(count(), IODevViewerList::maxShownDevices);
    auto* more = view->findChild<QLabel*>("ioDevMore");
    ASSERT_NE(more, nullptr);
    EXPECT_EQ(more->text(), QString("489 further devices are not shown."));
    EXPECT_TRUE(f.run(plainSource));
    EXPECT_EQ(view->findChild<QLabel*>("ioDevMore"), nullptr);
}

TEST_F(IODevViewer, aDeviceOfOneWord)
{
    EXPECT_TRUE(
        f.run("#SET IODEV::one::EN, TRUE\n#SET IODEV::one::SIZE, 1\n#SET IODEV::one::VALUE, 9\n" + plainSource));
    EXPECT_EQ(tipOf(0), QString("Address: 0x0, Value 0x9"));
    EXPECT_EQ(item()->cellAt(item()->cellRect(1).center()), -1);
}

TEST_F(IODevViewer, aLargerFontGrowsTheCells)
{
    EXPECT_TRUE(f.run(ramSource));
    const int small = item()->rowHeight();
    QFont font = view->font();
    font.setPointSizeF(font.pointSizeF() * 2);
    view->setFont(font);
    EXPECT_GT(item()->rowHeight(), small * 3 / 2);
    EXPECT_TRUE(item()->rect().contains(item()->cellRect(99)));
    const QPoint center = item()->cellRect(99).center();
    EXPECT_EQ(item()->cellAt(center), 99);
}

} // namespace
