// What the user changes on a card changes the device as it is at that moment, not as the card showed it last.

#include "PortsFixture.h"

#include "ProcSimEdtMemArray.h"

#include <QTextBlock>

using namespace nsProc;

namespace {

class PortsLiveEdits : public PortsFixture
{
protected:
    static QStringList texts(ProcSimIOFifo* fifo)
    {
        QStringList result;
        for (int line = 0; line < fifo->lines().count(); ++line)
            result << fifo->lines().text(line);
        return result;
    }
    ProcSimEdtFifo* list(ProcSimIOFifo* fifo) const { return part<ProcSimEdtFifo>(fifo, "procSimEdtFifo"); }
};

TEST_F(PortsLiveEdits, OneBitLeavesTheSevenOthersAsTheProgramHasThem)
{
    ProcSimIOReg8Bit* reg = addReg(1);
    ports->setValue(1, "P", 114);
    dock.refresh();
    ports->setValue(1, "P", 72);
    const auto bits = dock.viewOf(reg)->findChildren<ProcSimEdtBit*>();
    ASSERT_EQ(bits.size(), 8);
    QTest::mouseClick(bits.first(), Qt::LeftButton);
    EXPECT_EQ(reg->regValue(), 200);
    ports->setValue(1, "P", 7);
    bits.last()->setFocus();
    QTest::keyClick(bits.last(), Qt::Key_Space);
    EXPECT_EQ(reg->regValue(), 6) << "the bit is toggled as it is, not as it was shown";
}

TEST_F(PortsLiveEdits, TheEndOfACellsEditDoesNotTakeBackWhatTheProgramWroteSince)
{
    ProcSimIOMem* mem = addMem(0);
    click(mem, "procSimIOExpand");
    auto* table = part<ProcSimEdtMemArray>(mem, "procSimEdtMemArray");
    table->setCurrentIndex(table->model()->index(2, 0));
    table->edit(table->model()->index(2, 0));
    auto* editor = table->findChild<ProcSimEdtNumeric*>("procSimEdtMemCell");
    ASSERT_NE(editor, nullptr);
    type(editor, "5a");
    ASSERT_EQ(mem->word(2), 0x5Au);
    ports->setValue(2, "M", 0x33);
    QTest::keyClick(editor, Qt::Key_Tab);
    EXPECT_EQ(mem->word(2), 0x33u);
}

TEST_F(PortsLiveEdits, AnEditOfTheListLeavesThePointerAtItsLine)
{
    ProcSimIOFifo* fifo = addFifo(4);
    unsigned int values[] = {1, 2, 3, 4, 5};
    fifo->initValue(values, 5);
    int value = 0;
    for (int i = 0; i < 3; ++i)
        ASSERT_TRUE(fifo->value(4, "IN", &value));
    click(fifo, "procSimIOExpand");
    list(fifo)->setFocus();
    QTest::keyClick(list(fifo), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(list(fifo), "a");
    EXPECT_EQ(fifo->lines().pointer(), 3);
    EXPECT_FALSE(fifo->value(4, "IN", &value)) << "there is no line for the pointer";
    EXPECT_EQ(fifo->lines().pointer(), 3);
    for (const char* text : {"b", "c", "d"}) {
        QTest::keyClick(list(fifo), Qt::Key_Return);
        QTest::keyClicks(list(fifo), text);
    }
    ASSERT_TRUE(fifo->value(4, "IN", &value));
    EXPECT_EQ(value, 0xD);
    EXPECT_EQ(texts(fifo), QStringList({"a", "b", "c", "d", ""}));
}

TEST_F(PortsLiveEdits, AWriteBehindTheEndAppendsAndThePointerGoesOn)
{
    ProcSimIOFifo fifo(0);
    unsigned int values[] = {1, 2, 3, 4};
    fifo.initValue(values, 4);
    int value = 0;
    for (int i = 0; i < 3; ++i)
        ASSERT_TRUE(fifo.value(4, "IN", &value));
    fifo.replaceLines(0, 4, {"9"});
    fifo.setValue(4, "OUT", 0x55);
    EXPECT_EQ(texts(&fifo), QStringList({"9", "55", ""}));
    EXPECT_EQ(fifo.lines().pointer(), 4);
    // However the pointer and the end of the list lie, no value that was written is overwritten by the next one.
    for (int written = 0x60; written < 0x68; ++written)
        fifo.setValue(4, "OUT", written);
    QStringList kept = texts(&fifo);
    kept.removeAll(QString());
    EXPECT_EQ(kept, QStringList({"9", "55", "60", "61", "62", "63", "64", "65", "66", "67"}));
    EXPECT_EQ(fifo.lines().pointer(), 12);
}

TEST_F(PortsLiveEdits, AListWithThePointerBehindItsEndIsLeftAloneWhileTheUserTypes)
{
    ProcSimIOFifo* fifo = addFifo(4);
    for (int i = 0; i < ProcSimEdtFifo::windowLines + 10; ++i)
        ports->setValue(4, "", i & 0xFF);
    click(fifo, "procSimIOExpand");
    // All that is in the text goes; the lines before it stay.
    list(fifo)->setFocus();
    QTest::keyClick(list(fifo), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(list(fifo), "12");
    QTest::keyClick(list(fifo), Qt::Key_Return);
    QTest::keyClicks(list(fifo), "34");
    dock.refresh();
    const int position = list(fifo)->textCursor().position();
    for (int i = 0; i < 3; ++i) {
        fifo->setDirectionData(4);
        dock.refresh();
        EXPECT_EQ(list(fifo)->textCursor().position(), position);
    }
    EXPECT_TRUE(list(fifo)->toPlainText().endsWith("12\n34"));
    EXPECT_TRUE(list(fifo)->extraSelections().isEmpty()) << "no line is the one of the pointer";
}

TEST_F(PortsLiveEdits, ADeviceWhoseAddressDoesNotFitAnswersNowhere)
{
    ports->addIOPlugin(ProcSimPorts::eDevReg, ProcSimIOPluginIf::eDirectionRdWr, 0)->setBaseAddr(0x10000, QString());
    ports->addIOPlugin(ProcSimPorts::eDevFifo, ProcSimIOPluginIf::eDirectionRdWr, 0)->setBaseAddr(-5, QString());
    ports->addIOPlugin(ProcSimPorts::eDevMem, ProcSimIOPluginIf::eDirectionRdWr, 0)->setBaseAddr(0x12345, QString());
    dock.refresh();
    for (int addr = 0; addr <= ProcSimIODevice::maxPortAddr; ++addr)
        ASSERT_EQ(ports->deviceToRead(addr), nullptr) << addr;
    ProcSimIOPluginIf* device = ports->devices().first();
    ProcSimEdtNumeric* addr = field(device, "Address");
    EXPECT_EQ(addr->text(), "");
    // To go through the field gives it no address.
    addr->setFocus();
    QTest::keyClick(addr, Qt::Key_Tab);
    QTest::keyClick(addr, Qt::Key_Return);
    EXPECT_EQ(addr->text(), "");
    EXPECT_EQ(ports->deviceToRead(0), nullptr);
    ports->setBase(10);
    dock.refresh();
    EXPECT_EQ(addr->text(), "");
    // What the user types is an address as any other.
    type(addr, "33");
    EXPECT_EQ(ports->deviceToRead(33), device);
    QTest::keyClick(addr, Qt::Key_Return);
    dock.refresh();
    EXPECT_EQ(addr->text(), "033");
}

} // namespace
