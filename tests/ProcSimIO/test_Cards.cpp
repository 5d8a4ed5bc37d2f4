// The cards of the devices, with real keys and the mouse.

#include "PortsFixture.h"

#include "ProcSimEdtBitField.h"
#include "ProcSimEdtMemArray.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QTextBlock>

using namespace nsProc;

class PortsCards : public PortsFixture
{
protected:
    ProcSimEdtFifo* list(ProcSimIOFifo* fifo) const { return part<ProcSimEdtFifo>(fifo, "procSimEdtFifo"); }
    ProcSimEdtMemArray* array(ProcSimIOMem* mem) const { return part<ProcSimEdtMemArray>(mem, "procSimEdtMemArray"); }
};

TEST_F(PortsCards, ARegisterThatTheReadAddedTakesWhatIsTyped)
{
    EXPECT_FALSE(dock.chkIOPluginToRd(0x1F, "KEYS"));
    auto* reg = dynamic_cast<ProcSimIOReg8Bit*>(ports->devices().first());
    EXPECT_EQ(field(reg, "Address")->text(), "1F");
    EXPECT_EQ(part<QLabel>(reg, "procSimIOName")->text(), "KEYS");
    EXPECT_EQ(part<ProcSimEdtDirection>(reg, "procSimEdtDirection")->data(), 1);
    auto* value = field(reg, "Value");
    type(value, "a");
    EXPECT_EQ(reg->regValue(), 0xA) << "at each key press";
    QTest::keyClicks(value, "b");
    EXPECT_TRUE(dock.chkIOPluginToRd(0x1F, "KEYS"));
    int result = 0;
    EXPECT_TRUE(dock.value(0x1F, "KEYS", &result));
    EXPECT_EQ(result, 0xAB);
    EXPECT_EQ(part<ProcSimEdtBitField>(reg, "procSimIOBits")->value(), 0xAB);
}

TEST_F(PortsCards, BitsAndNumberKeepInStep)
{
    auto* reg = addReg(1);
    auto bits = dock.viewOf(reg)->findChildren<ProcSimEdtBit*>();
    ASSERT_EQ(bits.size(), 8);
    QTest::mouseClick(bits.first(), Qt::LeftButton);
    EXPECT_EQ(reg->regValue(), 0x80) << "the most significant bit stands at the left";
    EXPECT_EQ(field(reg, "Value")->text(), "80");
    reg->setValue(1, "P", 3);
    EXPECT_EQ(field(reg, "Value")->text(), "80") << "not before the refresh";
    dock.refresh();
    EXPECT_EQ(field(reg, "Value")->text(), "03");
    EXPECT_TRUE(field(reg, "Value")->isHighlighted());
    EXPECT_TRUE(bits.first()->isHighlighted());
    EXPECT_EQ(bits.last()->value(), 1);
    dock.clearHighlighted();
    EXPECT_FALSE(field(reg, "Value")->isHighlighted());
}

TEST_F(PortsCards, AddressAndDirectionCanBeChangedAtAnyTime)
{
    auto* reg = addReg(1);
    ports->setBase(10);
    dock.refresh();
    type(field(reg, "Address"), "200");
    EXPECT_EQ(reg->addr(), 200);
    EXPECT_EQ(ports->deviceToRead(200), reg);
    auto* direction = part<ProcSimEdtDirection>(reg, "procSimEdtDirection");
    direction->setFocus();
    QTest::keyClick(direction, Qt::Key_Up);
    EXPECT_EQ(reg->directionData(), 2);
    EXPECT_EQ(ports->deviceToRead(200), nullptr);
    QTest::keyClick(direction, Qt::Key_Up);
    EXPECT_EQ(reg->directionData(), 1);
    EXPECT_EQ(ports->deviceToRead(200), reg);
}

TEST_F(PortsCards, AnAddressThatNoProcessorAsksForIsShown)
{
    auto* mem = addMem(0x1234);
    EXPECT_EQ(field(mem, "Address")->text(), "1234");
    EXPECT_EQ(mem->addr(), 0x1234);
}

TEST_F(PortsCards, AnEmptyFifoOpensItsList)
{
    auto* fifo = addFifo(4);
    EXPECT_FALSE(list(fifo)->isVisible());
    auto* button = part<QToolButton>(fifo, "procSimIOExpand");
    EXPECT_EQ(button->toolTip(), "Expand list");
    int value = -1;
    EXPECT_FALSE(dock.value(4, "IN", &value));
    EXPECT_TRUE(list(fifo)->isVisible());
    EXPECT_EQ(button->toolTip(), "Collapse list");
    list(fifo)->setFocus();
    QTest::keyClicks(list(fifo), "7");
    QTest::keyClick(list(fifo), Qt::Key_Return);
    QTest::keyClicks(list(fifo), "1f");
    EXPECT_TRUE(dock.value(4, "IN", &value));
    EXPECT_EQ(value, 7);
    EXPECT_TRUE(dock.value(4, "IN", &value));
    EXPECT_EQ(value, 0x1F);
    EXPECT_EQ(list(fifo)->toPlainText(), "7\n1f\n") << "as it was typed, and an empty line";
    EXPECT_FALSE(dock.value(4, "IN", &value));
    EXPECT_EQ(part<QLabel>(fifo, "procSimIOAccess")->text(), "rd");
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_FALSE(list(fifo)->isVisible());
}

TEST_F(PortsCards, TheListFollowsTheProgramAndTheUser)
{
    auto* fifo = addFifo(4);
    click(fifo, "procSimIOExpand");
    for (int value : {1, 2, 3})
        ports->setValue(4, "", value);
    dock.refresh();
    EXPECT_EQ(list(fifo)->toPlainText(), "01\n02\n03\n");
    ASSERT_EQ(list(fifo)->extraSelections().size(), 1);
    EXPECT_EQ(list(fifo)->extraSelections().first().cursor.blockNumber(), 3) << "the line of the pointer";
    list(fifo)->setFocus();
    QTest::keyClick(list(fifo), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(list(fifo), Qt::Key_Delete);
    EXPECT_EQ(fifo->lines().count(), 1);
    EXPECT_EQ(fifo->lines().pointer(), 3) << "a line number";
    ports->setValue(4, "", 0x44);
    dock.refresh();
    EXPECT_EQ(list(fifo)->toPlainText(), "\n44\n");
    ports->setBase(8);
    dock.refresh();
    EXPECT_EQ(list(fifo)->toPlainText(), "\n104\n");
    ports->clear();
    dock.refresh();
    EXPECT_EQ(list(fifo)->toPlainText(), "\n104\n") << "a reset keeps the text";
    EXPECT_EQ(list(fifo)->extraSelections().first().cursor.blockNumber(), 0);
}

TEST_F(PortsCards, RandomEditsAndWritesKeepTextAndListAlike)
{
    auto* fifo = addFifo(4);
    click(fifo, "procSimIOExpand");
    auto* edit = list(fifo);
    unsigned int seed = 4711;
    const auto random = [&seed](int limit) {
        seed = seed * 1103515245u + 12345u;
        return int((seed >> 16) % unsigned(limit));
    };
    const QList<int> keys = {Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home};
    for (int i = 0; i < 3000; ++i) {
        int value = 0;
        switch (random(6)) {
        case 0:
            ports->setValue(4, "", random(256));
            break;
        case 1:
            fifo->value(4, "", &value);
            break;
        case 2:
            QTest::keyClicks(edit, QString::number(random(300), 16));
            break;
        case 3:
            if (random(40) == 0)
                ports->setBase(random(2) == 0 ? 10 : 16);
            if (random(40) == 0)
                ports->clear();
            break;
        default:
            QTest::keyClick(edit, Qt::Key(keys.at(random(keys.size()))),
                            random(3) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
        }
        dock.refresh();
        QStringList lines;
        for (int line = 0; line < fifo->lines().count(); ++line)
            lines << fifo->lines().text(line);
        ASSERT_EQ(edit->toPlainText().split('\n'), lines) << i;
    }
}

TEST_F(PortsCards, AnEditBetweenWriteAndRefreshLosesNothing)
{
    auto* fifo = addFifo(4);
    click(fifo, "procSimIOExpand");
    for (int value : {1, 2, 3})
        ports->setValue(4, "", value);
    list(fifo)->setFocus();
    QTest::keyClicks(list(fifo), "5");
    dock.refresh();
    EXPECT_EQ(fifo->lines().count(), 4);
    EXPECT_EQ(fifo->lines().text(1), "02");
    EXPECT_EQ(fifo->lines().text(2), "03");
}

TEST_F(PortsCards, AnEditInLinesThatAreGoneIsDropped)
{
    auto* fifo = addFifo(4);
    unsigned int values[] = {1, 2, 3, 4};
    fifo->initValue(values, 4);
    click(fifo, "procSimIOExpand");
    fifo->initValue(values, 2);
    list(fifo)->setFocus();
    list(fifo)->moveCursor(QTextCursor::End);
    QTest::keyClicks(list(fifo), "5");
    QApplication::processEvents();
    EXPECT_EQ(list(fifo)->toPlainText(), "01\n02");
    EXPECT_EQ(fifo->lines().count(), 2);
}

TEST_F(PortsCards, ALongListShowsTheLinesAroundThePointer)
{
    auto* fifo = addFifo(4);
    for (int i = 0; i < 100000; ++i)
        ports->setValue(4, "", i & 0xFF);
    click(fifo, "procSimIOExpand");
    auto* edit = list(fifo);
    EXPECT_LE(edit->document()->blockCount(), ProcSimEdtFifo::windowLines);
    EXPECT_EQ(edit->firstLine() + edit->document()->blockCount(), fifo->lines().count());
    edit->moveCursor(QTextCursor::End);
    edit->moveCursor(QTextCursor::Up);
    QTest::keyClicks(edit, "7");
    EXPECT_TRUE(fifo->lines().text(99999).startsWith("7"));
    for (int i = 0; i < 100000; ++i)
        ports->setValue(4, "", 0xEE);
    dock.refresh();
    EXPECT_EQ(edit->firstLine() + edit->document()->blockCount(), fifo->lines().count());
    ports->clear();
    dock.refresh();
    EXPECT_EQ(edit->firstLine(), 0);
    EXPECT_EQ(edit->document()->firstBlock().text(), "00");
}

TEST_F(PortsCards, AMemoryShowsItsLastAccess)
{
    auto* mem = addMem(0);
    EXPECT_EQ(field(mem, "Last value")->text(), "");
    ports->setValue(0, "M", 0);
    dock.refresh();
    EXPECT_EQ(field(mem, "Last address")->text(), "00");
    EXPECT_EQ(field(mem, "Last value")->text(), "00");
    EXPECT_EQ(part<QLabel>(mem, "procSimIOAccess")->text(), "wrTo");
    int value = 0;
    ports->setValue(5, "M", 0x12);
    ports->value(5, "M", &value);
    dock.refresh();
    EXPECT_EQ(field(mem, "Last address")->text(), "05");
    EXPECT_EQ(field(mem, "Last value")->text(), "12");
    EXPECT_EQ(part<QLabel>(mem, "procSimIOAccess")->text(), "rdFrom");
    dock.clear();
    EXPECT_EQ(field(mem, "Last address")->text(), "");
    EXPECT_EQ(field(mem, "Last value")->text(), "");
    EXPECT_EQ(part<QLabel>(mem, "procSimIOAccess")->text(), "");
    EXPECT_EQ(mem->word(5), 0x12u);
}

TEST_F(PortsCards, MemoryCellsMarkScrollAndEdit)
{
    auto* mem = addMem(0);
    click(mem, "procSimIOExpand");
    auto* table = array(mem);
    ASSERT_TRUE(table->isVisible());
    auto* model = table->model();
    EXPECT_EQ(model->rowCount(), 16);
    EXPECT_EQ(model->headerData(10, Qt::Vertical, Qt::DisplayRole).toString(), "0A");
    EXPECT_EQ(table->verticalHeader()->sectionSize(0), table->fontMetrics().height() + 4);
    ports->setValue(15, "", 0x5C);
    dock.refresh();
    const auto markColor = [model](int row) {
        return model->headerData(row, Qt::Vertical, Qt::DecorationRole).value<QPixmap>().toImage().pixelColor(2, 2);
    };
    EXPECT_EQ(model->index(15, 0).data().toString(), "5C");
    EXPECT_EQ(markColor(15), QColor(Qt::red));
    EXPECT_TRUE(model->index(15, 0).data(Qt::BackgroundRole).isValid());
    EXPECT_TRUE(table->viewport()->rect().contains(table->visualRect(model->index(15, 0)).center()));
    int value = 0;
    ports->value(2, "", &value);
    dock.refresh();
    EXPECT_NE(markColor(15), QColor(Qt::red));
    EXPECT_EQ(markColor(2), QColor(Qt::red));
    const QModelIndex cell = model->index(2, 0);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, table->visualRect(cell).center());
    table->edit(cell);
    auto* editor = table->findChild<ProcSimEdtNumeric*>("procSimEdtMemCell");
    ASSERT_NE(editor, nullptr);
    type(editor, "3");
    EXPECT_EQ(mem->word(2), 3u) << "at each key press";
    QTest::keyClicks(editor, "ff");
    EXPECT_EQ(mem->word(2), 0xFFu) << "limited";
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_EQ(cell.data().toString(), "FF");
    ports->setBase(10);
    dock.refresh();
    EXPECT_EQ(model->index(15, 0).data().toString(), "092");
    EXPECT_EQ(model->headerData(10, Qt::Vertical, Qt::DisplayRole).toString(), "010");
}

TEST_F(PortsCards, TheSizeOfAMemoryIsEdited)
{
    auto* mem = addMem(0);
    click(mem, "procSimIOExpand");
    auto* size = part<QLineEdit>(mem, "procSimIOSize");
    EXPECT_EQ(size->text(), "16");
    type(size, "40");
    EXPECT_EQ(mem->size(), 16) << "a size that is only half typed must not cut the memory";
    QTest::keyClick(size, Qt::Key_Return);
    EXPECT_EQ(mem->size(), 40);
    EXPECT_EQ(array(mem)->model()->rowCount(), 40);
    type(size, "99999");
    QTest::keyClick(size, Qt::Key_Return);
    EXPECT_EQ(mem->size(), 65536);
    EXPECT_EQ(size->text(), "65536");
    type(size, "0");
    QTest::keyClick(size, Qt::Key_Return);
    EXPECT_EQ(mem->size(), 1);
    EXPECT_EQ(size->text(), "1");
}

TEST_F(PortsCards, EveryControlHasAToolTip)
{
    addReg(1);
    addFifo(2);
    addMem(3);
    for (auto* widget : dock.findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->focusPolicy() != Qt::NoFocus &&
            widget->parentWidget()->objectName() != "procSimEdtMemArray") {
            EXPECT_FALSE(widget->toolTip().isEmpty()) << widget->metaObject()->className();
        }
    }
    const char* kinds[] = {"Register", "Fifo", "Memory"};
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(part<QWidget>(ports->devices().at(i), "procSimIOType")->toolTip(), kinds[i]);
}
