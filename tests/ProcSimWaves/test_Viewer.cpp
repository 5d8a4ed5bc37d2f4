// Adding and removing of ports, the rows of the tree, number bases, saving.

#include "FullDisk.h"
#include "ModalHelper.h"
#include "MyLongWork.h"
#include "WavesFixture.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>

namespace {

class WavesViewer : public WavesTest
{
protected:
    ~WavesViewer() override { MyLongWork::setDelay(MyLongWork::usualDelay); }
    /// Names of a row and of those below it.
    static QStringList names(const QTreeWidgetItem* item)
    {
        QStringList result{item->text(0)};
        for (int row = 0; row < item->childCount(); ++row)
            result.append(item->child(row)->text(0));
        return result;
    }
    QStringList ports() const
    {
        QStringList result;
        for (int row = 0; row < tree->topLevelItemCount(); ++row)
            result.append(tree->topLevelItem(row)->text(0));
        return result;
    }
    QString valueText(int row) const { return tree->topLevelItem(row)->text(1); }
    QString message() const { return viewer->findChild<QLabel*>("statusBarTitle")->text(); }
    /// Types an address and presses Enter.
    void type(const QString& addr, int access = 0)
    {
        auto* field = child<QLineEdit>("procSimWaveAddr");
        child<QComboBox>("procSimWaveAccess")->setCurrentIndex(access);
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, addr);
        QTest::keyClick(field, Qt::Key_Return);
    }
};

TEST_F(WavesViewer, StartsWithoutContent)
{
    EXPECT_EQ(tree->topLevelItemCount(), 0);
    EXPECT_TRUE(viewer->data()->isEmpty());
    EXPECT_FALSE(child<QAbstractButton>("procSimWaveSave")->isEnabled());
    EXPECT_FALSE(child<QAbstractButton>("procSimWaveRemoveAll")->isEnabled());
    // A value finds no one who wants it.
    QSignalSpy changed(viewer.get(), &Viewer::contentChanged);
    viewer->addValue(1, rd, {}, 2, 3);
    viewer->refresh();
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(WavesViewer, ControlsTellWhatTheyDo)
{
    for (const QWidget* control : viewer->findChildren<QWidget*>()) {
        if (control->focusPolicy() == Qt::NoFocus || !control->isVisible() || control->parentWidget() == tree)
            continue;
        EXPECT_FALSE(control->objectName().isEmpty()) << control->metaObject()->className();
        EXPECT_FALSE(control->toolTip().isEmpty()) << control->objectName().toStdString();
    }
    EXPECT_EQ(child<QAbstractButton>("procSimWaveAdd")->text().remove('&'), "Add");
    EXPECT_EQ(child<QAbstractButton>("procSimWaveRemoveAll")->text().remove('&'), "Remove all");
    bool titled = false;
    for (const QLabel* label : viewer->findChildren<QLabel*>())
        titled = titled ||
                 (label->text().remove('&') == "Port address" && label->buddy() == child<QLineEdit>("procSimWaveAddr"));
    EXPECT_TRUE(titled);
}

TEST_F(WavesViewer, ToolsOfANarrowViewerStandInTwoLines)
{
    const auto* add = child<QAbstractButton>("procSimWaveAdd");
    const auto* save = child<QAbstractButton>("procSimWaveSave");
    const auto yOf = [this](const QWidget* control) {
        return control->mapTo(viewer.get(), control->rect().center()).y();
    };
    viewer->resize(1200, 250);
    settle();
    EXPECT_EQ(yOf(add), yOf(save));
    viewer->resize(viewer->minimumSizeHint().width(), 250);
    settle();
    EXPECT_LT(viewer->width(), 620);
    EXPECT_GT(yOf(save), yOf(add) + 10);
    for (const auto* control : {add, save})
        EXPECT_TRUE(viewer->rect().contains(control->mapTo(viewer.get(), control->rect().bottomRight())));
    EXPECT_GT(waves->height(), 60);
}

TEST_F(WavesViewer, TypedAddressIsWatched)
{
    type("2a");
    type("10", 1);
    EXPECT_EQ(ports(), (QStringList{"Read 2A", "Write 10"}));
    EXPECT_NE(viewer->data()->channel(0x2A, rd), nullptr);
    EXPECT_NE(viewer->data()->channel(0x10, wr), nullptr);
    EXPECT_EQ(viewer->data()->channels().size(), 2U);
    // By the button too.
    child<QLineEdit>("procSimWaveAddr")->setText("3");
    click("procSimWaveAdd");
    EXPECT_EQ(ports().last(), "Write 03");
}

TEST_F(WavesViewer, AddressIsInThePresentBase)
{
    viewer->setBase(8);
    type("52");
    EXPECT_NE(viewer->data()->channel(42, rd), nullptr);
    viewer->setBase(10);
    type("200");
    EXPECT_NE(viewer->data()->channel(200, rd), nullptr);
    // What stands in the field stays the same address.
    viewer->setBase(16);
    EXPECT_EQ(child<QLineEdit>("procSimWaveAddr")->text(), "C8");
    EXPECT_EQ(ports(), (QStringList{"Read 2A", "Read C8"}));
}

TEST_F(WavesViewer, NoAddressIsNoPort)
{
    type({});
    EXPECT_TRUE(viewer->data()->isEmpty());
    EXPECT_EQ(message(), "Enter an address from 00 to FF, or a constant.");
    viewer->setBase(10);
    type("256");
    EXPECT_TRUE(viewer->data()->isEmpty());
    EXPECT_EQ(message(), "No address from 00 to 255: \"256\"");
    // No digits of another base.
    viewer->setBase(8);
    type("89");
    EXPECT_TRUE(viewer->data()->isEmpty());
    EXPECT_EQ(message(), "No address from 00 to 377: \"89\"");
}

TEST_F(WavesViewer, SecondTimeIsRefusedKindly)
{
    type("2A");
    type("10");
    viewer->data()->addValue(0x2A, rd, 7, 1);
    type("2A");
    EXPECT_EQ(ports().size(), 2);
    EXPECT_EQ(message(), "\"Read 2A\" is shown already.");
    ASSERT_NE(tree->currentWave(), nullptr);
    EXPECT_EQ(tree->currentWave()->channel->addr, 0x2A);
    EXPECT_EQ(viewer->data()->channel(0x2A, rd)->values.size(), 1U);
    // Writing is another thing.
    type("2A", 1);
    EXPECT_EQ(ports().size(), 3);
    EXPECT_EQ(message(), QString());
}

TEST_F(WavesViewer, NumberHasARowForEachBit)
{
    EXPECT_TRUE(viewer->addAddrChannel(0x10, wr, -1, "led"));
    EXPECT_TRUE(viewer->addAddrChannel(0x11, rd, -1, {}));
    ASSERT_EQ(tree->topLevelItemCount(), 2);
    EXPECT_EQ(names(tree->topLevelItem(0)),
              (QStringList{"Write led", "[7]", "[6]", "[5]", "[4]", "[3]", "[2]", "[1]", "[0]"}));
    EXPECT_EQ(names(tree->topLevelItem(1)).size(), 9);
    tree->expandAll();
    viewer->resize(1000, 800);
    settle();
    const auto shown = waves->waves();
    ASSERT_EQ(shown.size(), 18);
    for (int row = 0; row < 18; ++row) {
        EXPECT_EQ(shown[row]->index, row);
        const bool isBit = row % 9 != 0;
        EXPECT_EQ(shown[row]->kind, isBit ? 1 : 0);
        EXPECT_EQ(shown[row]->maximum, isBit ? 1 : 255);
        EXPECT_EQ(shown[row]->channel->addr, row < 9 ? 0x10 : 0x11);
    }
    EXPECT_EQ(shown[1]->name, "Write led[7]");
    EXPECT_EQ(shown[17]->name, "Read 11[0]");
}

TEST_F(WavesViewer, OnlyExpandedBitsAreShown)
{
    viewer->resize(1000, 800);
    viewer->addAddrChannel(0x10, wr, -1, {});
    viewer->addAddrChannel(0x11, wr, -1, {});
    settle();
    EXPECT_EQ(waves->waves().size(), 2);
    // The branch mark is left of the text.
    const QRect row = tree->visualItemRect(tree->topLevelItem(0));
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, {8, row.center().y()});
    settle();
    EXPECT_TRUE(tree->topLevelItem(0)->isExpanded());
    EXPECT_EQ(waves->waves().size(), 10);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, {8, row.center().y()});
    settle();
    EXPECT_EQ(waves->waves().size(), 2);
}

TEST_F(WavesViewer, RowsOfTreeAndWavesAreSideBySide)
{
    for (int addr = 0; addr < 9; ++addr)
        viewer->addAddrChannel(addr, wr, -1, {});
    tree->expandItem(tree->topLevelItem(1));
    for (const int scrolled : {0, 13, 60, 9999}) {
        tree->verticalScrollBar()->setValue(scrolled);
        settle();
        const auto shown = waves->waves();
        ASSERT_GE(shown.size(), 4);
        int expected = -1;
        for (const auto* wave : shown) {
            const QPoint inTree =
                tree->viewport()->mapFromGlobal(waves->mapToGlobal({0, wave->top + wave->height / 2}));
            QTreeWidgetItem* item = tree->itemAt(4, inTree.y());
            if (inTree.y() < 0 || inTree.y() >= tree->viewport()->height())
                continue;
            ASSERT_NE(item, nullptr);
            const QRect place = tree->visualItemRect(item);
            EXPECT_EQ(place.height(), wave->height);
            EXPECT_EQ(waves->mapFromGlobal(tree->viewport()->mapToGlobal(place.topLeft())).y(), wave->top);
            EXPECT_TRUE(wave->name.endsWith(item->text(0)));
            EXPECT_GT(wave->index, expected);
            expected = wave->index;
        }
    }
}

TEST_F(WavesViewer, ValuesFollowTheBase)
{
    viewer->addAddrChannel(0xF0, wr, -1, {});
    viewer->data()->addValue(0xF0, wr, 10, 5);
    settle();
    EXPECT_EQ(valueText(0), "0A");
    EXPECT_EQ(waves->valueText(255), "FF");
    viewer->setBase(10);
    EXPECT_EQ(valueText(0), "10");
    EXPECT_EQ(ports(), QStringList{"Write 240"});
    EXPECT_EQ(waves->valueText(7), "07");
    viewer->setBase(8);
    EXPECT_EQ(valueText(0), "12");
    EXPECT_EQ(ports(), QStringList{"Write 360"});
    EXPECT_EQ(waves->valueText(255), "377");
}

TEST_F(WavesViewer, ValuesOfRowsAreThoseAtTheMarker)
{
    viewer->addAddrChannel(1, wr, -1, {});
    tree->expandItem(tree->topLevelItem(0));
    viewer->data()->addValue(1, wr, 0x80, 10);
    viewer->data()->addValue(1, wr, 0x01, 20);
    settle();
    const QTreeWidgetItem* item = tree->topLevelItem(0);
    EXPECT_EQ(valueText(0), "01");
    EXPECT_EQ(item->child(0)->text(1), "0");
    EXPECT_EQ(item->child(7)->text(1), "1");
    waves->setMarker(19);
    EXPECT_EQ(valueText(0), "80");
    EXPECT_EQ(item->child(0)->text(1), "1");
    EXPECT_EQ(item->child(7)->text(1), "0");
    waves->setMarker(9);
    EXPECT_EQ(valueText(0), QString());
    waves->setMarker(-1);
    EXPECT_EQ(valueText(0), "01");
}

TEST_F(WavesViewer, ContentChangedTellsOfNewValuesOnly)
{
    viewer->addAddrChannel(1, wr, -1, {});
    QSignalSpy changed(viewer.get(), &Viewer::contentChanged);
    viewer->refresh();
    EXPECT_EQ(changed.count(), 0);
    viewer->addValue(1, wr, {}, 5, 10);
    viewer->addValue(1, wr, {}, 6, 12);
    viewer->addValue(2, wr, {}, 6, 12);
    viewer->refresh();
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].value<QWidget*>(), viewer.get());
    viewer->setClock(100);
    viewer->refresh();
    EXPECT_EQ(changed.count(), 1);
    viewer->clearValues();
    EXPECT_EQ(changed.count(), 2);
    EXPECT_EQ(viewer->data()->channels().size(), 1U);
    EXPECT_EQ(valueText(0), QString());
}

TEST_F(WavesViewer, NameComesWithTheFirstValueThatHasOne)
{
    viewer->addAddrChannel(1, wr, -1, {});
    viewer->addValue(1, wr, {}, 5, 10);
    EXPECT_EQ(ports(), QStringList{"Write 01"});
    viewer->addValue(1, wr, "led", 5, 11);
    EXPECT_EQ(ports(), QStringList{"Write led"});
    viewer->addValue(1, wr, "other", 5, 12);
    EXPECT_EQ(ports(), QStringList{"Write led"});
}

TEST_F(WavesViewer, ChannelMayStartWithAValue)
{
    viewer->setClock(40);
    viewer->addAddrChannel(1, rd, 0x33, {});
    EXPECT_EQ(valueText(0), "33");
    ASSERT_EQ(viewer->data()->channel(1, rd)->values.size(), 1U);
    EXPECT_EQ(viewer->data()->channel(1, rd)->values[0].clock, 40);
}

TEST_F(WavesViewer, ClearingAChannelKeepsTheOthers)
{
    viewer->addAddrChannel(1, wr, -1, {});
    viewer->addAddrChannel(2, wr, -1, {});
    viewer->addValue(1, wr, {}, 5, 10);
    viewer->addValue(2, wr, {}, 6, 10);
    viewer->clearAddrChannelValues(viewer->data()->channel(1, wr));
    EXPECT_EQ(valueText(0), QString());
    EXPECT_EQ(valueText(1), "06");
    EXPECT_EQ(ports().size(), 2);
}

TEST_F(WavesViewer, DeleteKeyRemovesThePresentRow)
{
    for (int addr = 1; addr <= 3; ++addr)
        viewer->addAddrChannel(addr, wr, -1, {});
    settle();
    tree->setFocus();
    tree->setCurrentItem(tree->topLevelItem(1));
    QTest::keyClick(tree, Qt::Key_Delete);
    EXPECT_EQ(ports(), (QStringList{"Write 01", "Write 03"}));
    EXPECT_EQ(viewer->data()->channel(2, wr), nullptr);
    settle();
    EXPECT_EQ(waves->waves().size(), 2);
    // From one of its bits too.
    tree->expandItem(tree->topLevelItem(0));
    tree->setCurrentItem(tree->topLevelItem(0)->child(3));
    QTest::keyClick(tree, Qt::Key_Delete);
    EXPECT_EQ(ports(), QStringList{"Write 03"});
    tree->setCurrentItem(tree->topLevelItem(0));
    QTest::keyClick(tree, Qt::Key_Delete);
    QTest::keyClick(tree, Qt::Key_Delete);
    EXPECT_TRUE(viewer->data()->isEmpty());
    EXPECT_FALSE(child<QAbstractButton>("procSimWaveSave")->isEnabled());
    settle();
    EXPECT_TRUE(waves->waves().isEmpty());
}

TEST_F(WavesViewer, MenuRemovesTheRowThatItStandsOn)
{
    viewer->addAddrChannel(1, wr, -1, {});
    viewer->addAddrChannel(2, wr, -1, {});
    settle();
    const QPoint place = tree->visualItemRect(tree->topLevelItem(0)).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, tree->viewport()->mapToGlobal(place));
    QApplication::sendEvent(tree->viewport(), &event);
    auto* menu = tree->findChild<QMenu*>("procSimWaveMenu");
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 1);
    EXPECT_EQ(menu->actions()[0]->text(), "Remove \"Write 01\"");
    // The program may have removed it while the menu was open.
    menu->actions()[0]->trigger();
    EXPECT_EQ(ports(), QStringList{"Write 02"});
    menu->actions()[0]->trigger();
    EXPECT_EQ(ports(), QStringList{"Write 02"});
    menu->close();
}

TEST_F(WavesViewer, RemoveAll)
{
    type("1");
    type("2");
    viewer->addValue(1, rd, {}, 5, 10);
    waves->setMarker(3);
    settle();
    click("procSimWaveRemoveAll");
    settle();
    EXPECT_EQ(tree->topLevelItemCount(), 0);
    EXPECT_TRUE(viewer->data()->isEmpty());
    EXPECT_TRUE(waves->waves().isEmpty());
    EXPECT_EQ(waves->marker(), -1);
    type("1");
    EXPECT_EQ(ports(), QStringList{"Read 01"});
    EXPECT_TRUE(viewer->data()->channel(1, rd)->values.empty());
}

TEST_F(WavesViewer, HiddenViewerCatchesUp)
{
    viewer->addAddrChannel(1, wr, -1, {});
    viewer->hide();
    viewer->addValue(1, wr, {}, 5, 1000);
    viewer->refresh();
    viewer->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(viewer.get(), 60000));
    EXPECT_EQ(valueText(0), "05");
    EXPECT_GT(waves->time().first(), 0);
    EXPECT_TRUE(waves->isFollowing());
}

TEST_F(WavesViewer, SavedFileHoldsTheDump)
{
    QTemporaryDir dir;
    viewer->addAddrChannel(1, wr, -1, {});
    viewer->addValue(1, wr, {}, 5, 10);
    viewer->refresh();
    const QString path = dir.filePath("run.vcd");
    ModalHelper helper([&](QDialog* dialog) {
        auto* files = qobject_cast<QFileDialog*>(dialog);
        ASSERT_NE(files, nullptr);
        EXPECT_EQ(files->acceptMode(), QFileDialog::AcceptSave);
        files->setDirectory(dir.path());
        auto* name = files->findChild<QLineEdit*>("fileNameEdit");
        ASSERT_NE(name, nullptr);
        name->setText("run");
        QTest::keyClick(name, Qt::Key_Return);
    });
    click("procSimWaveSave");
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(message(), "Saved as \"run.vcd\".");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    EXPECT_TRUE(text.contains("port_01_wr")) << text.constData();
    EXPECT_TRUE(text.endsWith("#200000\nb00000101 !\n")) << text.constData();
}

TEST_F(WavesViewer, RejectedDialogSavesNothing)
{
    QTemporaryDir dir;
    viewer->addAddrChannel(1, wr, -1, {});
    ModalHelper helper([&](QDialog* dialog) { dialog->reject(); });
    click("procSimWaveSave");
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(message(), QString());
}

TEST_F(WavesViewer, AFullDiskLeavesTheOldDumpAndIsAFailure)
{
    QTemporaryDir dir;
    const QString path = dir.filePath("run.vcd");
    ASSERT_TRUE(viewer->saveVcd(path).isEmpty());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray old = file.readAll();
    viewer->addAddrChannel(1, wr, -1, {});
    {
        const FullDisk disk(50);
        EXPECT_EQ(viewer->saveVcd(path), qt_error_string(EFBIG));
    }
    file.close();
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), old);
}

TEST_F(WavesViewer, ALongSaveShowsItsProgressAndCanBeCancelled)
{
    QTemporaryDir dir;
    const QString path = dir.filePath("run.vcd");
    const auto content = [&path] {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    viewer->addAddrChannel(1, wr, -1, {});
    ASSERT_TRUE(viewer->saveVcd(path).isEmpty());
    const QByteArray old = content();
    for (int i = 1; i <= 50000; ++i)
        viewer->data()->addValue(1, wr, i & 0xFF, i);
    MyLongWork::setDelay(0);
    QString state;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        auto* cancel = viewer->findChild<QToolButton*>("longWorkCancel");
        if (cancel == nullptr || !cancel->isVisible())
            return;
        state = viewer->findChild<QLabel*>("longWorkState")->text();
        QTest::mouseClick(cancel, Qt::LeftButton);
    });
    timer.start(0);
    bool cancelled = false;
    EXPECT_TRUE(viewer->saveVcd(path, &cancelled).isEmpty());
    timer.stop();
    EXPECT_TRUE(cancelled);
    EXPECT_TRUE(state.startsWith("Saving: ")) << state.toStdString();
    EXPECT_EQ(content(), old);
    EXPECT_EQ(viewer->findChild<QToolButton*>("longWorkCancel"), nullptr) << "the bar has gone";
    // Where the values change meanwhile nothing is written that would hold both.
    timer.disconnect();
    QObject::connect(&timer, &QTimer::timeout, [&] { viewer->clearValues(); });
    timer.start(0);
    EXPECT_EQ(viewer->saveVcd(path, &cancelled), "The simulation went on while its waves were saved.");
    timer.stop();
    EXPECT_FALSE(cancelled);
    EXPECT_EQ(content(), old);
}

TEST_F(WavesViewer, AViewerThatGoesWhileItSavesLeavesTheFile)
{
    QTemporaryDir dir;
    const QString path = dir.filePath("run.vcd");
    viewer->addAddrChannel(1, wr, -1, {});
    for (int i = 1; i <= 50000; ++i)
        viewer->data()->addValue(1, wr, i & 0xFF, i);
    MyLongWork::setDelay(0);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { viewer.reset(); });
    timer.start(0);
    EXPECT_TRUE(viewer->saveVcd(path).isEmpty());
    EXPECT_EQ(viewer, nullptr);
    EXPECT_TRUE(QFile::exists(path)) << "the values outlive the viewer";
}

TEST_F(WavesViewer, FailureToSaveIsShown)
{
    QTemporaryDir dir;
    EXPECT_FALSE(viewer->saveVcd(dir.filePath("none/run.vcd")).isEmpty());
    EXPECT_TRUE(viewer->saveVcd(dir.filePath("run.vcd")).isEmpty());
    EXPECT_TRUE(QFile::exists(dir.filePath("run.vcd")));
    viewer->addAddrChannel(1, wr, -1, {});
    QString text;
    QTimer timer;
    // The dialog accepts the name, but its folder is gone before the file is written.
    QObject::connect(&timer, &QTimer::timeout, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (auto* box = qobject_cast<QMessageBox*>(modal)) {
            text = box->text();
            box->accept();
        } else if (auto* files = qobject_cast<QFileDialog*>(modal);
                   files != nullptr && QDir(dir.path()).mkdir("gone")) {
            files->setDirectory(dir.filePath("gone"));
            QObject::connect(files, &QDialog::accepted, [&] { QDir(dir.filePath("gone")).removeRecursively(); });
            files->findChild<QLineEdit*>("fileNameEdit")->setText("run");
            QTest::keyClick(files->findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
        } else if (modal != nullptr) {
            static_cast<QDialog*>(modal)->reject();
        }
    });
    timer.start(1);
    click("procSimWaveSave");
    EXPECT_TRUE(text.contains("run.vcd")) << text.toStdString();
    EXPECT_FALSE(message().startsWith("Saved"));
}

} // namespace
