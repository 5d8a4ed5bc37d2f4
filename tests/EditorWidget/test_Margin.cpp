// The margin: widths, what is painted, clicks, tool tips, menus.

#include "EditorFixture.h"

#include "EditorSupportMenu.h"

#include <QTextLayout>
#include <QToolTip>

namespace {

using nsModEditor::EditorMemPageAddrMap;
using nsModEditor::EditorWidget;

class Margin : public EditorTest
{
protected:
    int digit() const { return editor->fontMetrics().horizontalAdvance('9'); }
    int numberX() const { return editor->symbolMarginWidth() + editor->memPageAddrMarginWidth(); }

    /// Texts of the menu of a line, "-" for a separator; triggers the entry with the index, if there is one.
    QStringList menuOfLine(int line, int trigger = -1)
    {
        QStringList texts;
        MenuHelper helper([&](QMenu* menu) {
            for (QAction* entry : menu->actions())
                texts.append(entry->isSeparator() ? "-" : entry->text());
            if (trigger >= 0)
                menu->actions().value(trigger)->trigger();
        });
        const QPoint pos(5, marginY(line));
        QContextMenuEvent event(QContextMenuEvent::Mouse, pos, editor->leftMargin()->mapToGlobal(pos));
        QApplication::sendEvent(editor->leftMargin(), &event);
        EXPECT_EQ(helper.seen(), 1);
        return texts;
    }
};

TEST_F(Margin, WidthsFollowTheFormulas)
{
    editor->setText(QString());
    EXPECT_EQ(editor->symbolMarginWidth(), 19);
    EXPECT_EQ(editor->memPageAddrMarginWidth(), 0);
    EXPECT_EQ(editor->lineNumberMarginWidth(), digit() + 6);
    editor->setText(numberedLines(9));
    EXPECT_EQ(editor->lineNumberMarginWidth(), digit() + 6);
    editor->setText(numberedLines(10));
    EXPECT_EQ(editor->lineNumberMarginWidth(), 2 * digit() + 6);
    editor->setText(numberedLines(1000));
    EXPECT_EQ(editor->lineNumberMarginWidth(), 4 * digit() + 6);
    editor->setMemPageAddrEn(true);
    EXPECT_EQ(editor->memPageAddrMarginWidth(), 5 * digit() + 6); // 999 is 0x3e7
    editor->setMemPageMaxAddr(0xffff);
    EXPECT_EQ(editor->memPageAddrMarginWidth(), 6 * digit() + 6);
    editor->setMemPageAddrBase(10);
    EXPECT_EQ(editor->memPageAddrMarginWidth(), 7 * digit() + 6);
    editor->setMemPageMaxAddr(0);
    EXPECT_EQ(editor->memPageAddrMarginWidth(), 3 * digit() + 6);
    editor->setMemPageMaxAddr(-5);
    EXPECT_EQ(editor->memPageAddrMarginWidth(), 3 * digit() + 6);
    for (const int base : {-1, 0, 1, 37})
        editor->setMemPageAddrBase(base);
    EXPECT_EQ(editor->memPageAddrMarginWidth(), 3 * digit() + 6);
    EXPECT_EQ(editor->leftMarginWidth(), 19 + 3 * digit() + 6 + 4 * digit() + 6);
    editor->setLineNumberEn(false);
    EXPECT_EQ(editor->leftMarginWidth(), 19 + 3 * digit() + 6);
}

TEST_F(Margin, TextBeginsBehindTheMarginAndFollowsTheLineCount)
{
    editor->setText(numberedLines(9));
    const auto expectFit = [this] {
        EXPECT_EQ(editor->leftMargin()->width(), editor->leftMarginWidth());
        EXPECT_EQ(editor->viewport()->x(), editor->leftMargin()->geometry().right() + 1);
        EXPECT_EQ(editor->leftMargin()->sizeHint().width(), editor->leftMarginWidth());
    };
    expectFit();
    const int before = editor->leftMarginWidth();
    editor->moveCursor(QTextCursor::End);
    QTest::keyClick(editor.get(), Qt::Key_Return);
    EXPECT_EQ(editor->leftMarginWidth(), before + digit());
    expectFit();
    editor->setMemPageAddrEn(true);
    expectFit();
    editor->setLineNumberEn(false);
    expectFit();
    editor->resize(600, 300);
    QApplication::processEvents();
    expectFit();
    EXPECT_EQ(editor->leftMargin()->height(), editor->contentsRect().height());
}

TEST_F(Margin, AnEmptyDocumentShowsNumberOne)
{
    editor->setText(QString());
    EXPECT_GT(darkPixels(numberX() + 2, editor->leftMarginWidth(), 0), 0);
    editor->setLineNumberEn(false);
    EXPECT_EQ(darkPixels(0, editor->leftMarginWidth(), 0), 0);
}

TEST_F(Margin, SymbolsHaveTheirPlacesAndColours)
{
    editor->setText(numberedLines(5));
    editor->leftMargin()->setBgColor(Qt::white);
    editor->leftMargin()->setStartPointerColor(QColor(1, 2, 250));
    editor->leftMargin()->setBreakpointColor(QColor(250, 2, 1));
    editor->leftMargin()->setBookmarkColor(QColor(1, 250, 2));
    editor->setSimBreakpoint(1);
    editor->setSimBreakpoint(2);
    editor->setSimStartPointer(2);
    editor->setBookmark(2);
    editor->setBookmark(3);
    const QImage image = marginImage();
    const auto at = [&](int x, int line) { return image.pixelColor(x, marginY(line)); };
    for (const int x : {2, 6})
        EXPECT_EQ(at(x, 2), QColor(1, 2, 250)) << x;
    for (const int x : {7, 11})
        EXPECT_EQ(at(x, 2), QColor(250, 2, 1)) << x;
    for (const int x : {12, 16})
        EXPECT_EQ(at(x, 2), QColor(1, 250, 2)) << x;
    for (const int x : {0, 1, 17, 18})
        EXPECT_EQ(at(x, 2), QColor(Qt::white)) << x;
    EXPECT_EQ(at(4, 1), QColor(Qt::white));
    EXPECT_EQ(at(9, 1), QColor(250, 2, 1));
    EXPECT_EQ(at(14, 1), QColor(Qt::white));
    EXPECT_EQ(at(9, 3), QColor(Qt::white));
    EXPECT_EQ(at(14, 3), QColor(1, 250, 2));
    EXPECT_EQ(at(9, 4), QColor(Qt::white));
}

TEST_F(Margin, ColumnsAreSetApartByLines)
{
    editor->setText("one");
    editor->leftMargin()->setFgColor(QColor(200, 0, 100));
    EXPECT_EQ(marginImage().pixelColor(19, 200), QColor(200, 0, 100)); // line numbers
    editor->setMemPageAddrEn(true);
    EXPECT_EQ(marginImage().pixelColor(19, 200), QColor(200, 0, 100));
    EXPECT_EQ(marginImage().pixelColor(numberX(), 200), QColor(200, 0, 100));
    EXPECT_EQ(marginImage().pixelColor(20, 200), QColor(0xEAE9E8));
    editor->setLineNumberEn(false);
    editor->setMemPageAddrEn(false);
    EXPECT_EQ(marginImage().pixelColor(18, 200), QColor(0xEAE9E8));
}

TEST_F(Margin, ClicksUpToXSeventeenSetAMark)
{
    editor->setText(numberedLines(10));
    QSignalSpy changed(editor.get(), &EditorWidget::simBreakpointChanged);
    clickMargin(17, 3);
    EXPECT_EQ(editor->simBreakpoints(), QList<int>{3});
    EXPECT_EQ(changed.count(), 1);
    clickMargin(18, 4);
    EXPECT_EQ(editor->simBreakpoints(), QList<int>{3});
    clickMargin(0, 5);
    EXPECT_EQ(editor->simBreakpoints(), (QList<int>{3, 5}));
    clickMargin(9, 3);
    EXPECT_EQ(editor->simBreakpoints(), QList<int>{5});
    EXPECT_EQ(changed.count(), 3);
    clickMargin(9, 6, Qt::NoModifier, Qt::MiddleButton);
    EXPECT_EQ(editor->simBreakpoints(), QList<int>{5});
}

TEST_F(Margin, ClicksBesideTheSymbolsAreNotAccepted)
{
    editor->setText("one");
    // Straight to the margin: on its way through the parents an event changes.
    QObject* margin = editor->leftMargin();
    QMouseEvent beside(QEvent::MouseButtonPress, QPointF(18, 5), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    beside.accept();
    margin->event(&beside);
    EXPECT_FALSE(beside.isAccepted());
    QMouseEvent on(QEvent::MouseButtonPress, QPointF(17, 5), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    on.ignore();
    margin->event(&on);
    EXPECT_TRUE(on.isAccepted());
}

TEST_F(Margin, ModifiersChooseTheMark)
{
    editor->setText(numberedLines(10));
    QSignalSpy changed(editor.get(), &EditorWidget::simBreakpointChanged);
    clickMargin(5, 2, Qt::ControlModifier);
    clickMargin(5, 3, Qt::ShiftModifier);
    int line = -1;
    EXPECT_TRUE(editor->simStartPointer(&line));
    EXPECT_EQ(line, 2);
    EXPECT_EQ(editor->bookmarks(), QList<int>{3});
    EXPECT_TRUE(editor->simBreakpoints().isEmpty());
    EXPECT_EQ(changed.count(), 0);
    // Neither is meant exactly.
    clickMargin(5, 4, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(editor->simBreakpoints(), QList<int>{4});
    clickMargin(5, 5, Qt::AltModifier);
    EXPECT_EQ(editor->simBreakpoints(), (QList<int>{4, 5}));
    clickMargin(5, 3, Qt::ShiftModifier);
    EXPECT_TRUE(editor->bookmarks().isEmpty());
}

TEST_F(Margin, TheStartMarkIsOneForAllDocuments)
{
    editor->setText(numberedLines(10));
    QSignalSpy clear(editor.get(), &EditorWidget::clearAllSimStartPointer);
    int line = -1;
    EXPECT_FALSE(editor->simStartPointer(&line));
    clickMargin(5, 2, Qt::ControlModifier);
    clickMargin(5, 6, Qt::ControlModifier);
    EXPECT_EQ(clear.count(), 2);
    EXPECT_TRUE(editor->simStartPointer(&line));
    EXPECT_EQ(line, 6);
    clickMargin(5, 6, Qt::ControlModifier);
    EXPECT_EQ(clear.count(), 3);
    EXPECT_FALSE(editor->simStartPointer(&line));
    EXPECT_EQ(line, 6);
}

TEST_F(Margin, AClickBelowTheTextMeansTheFirstLine)
{
    editor->setText(numberedLines(3));
    QTest::mouseClick(editor->leftMargin(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 380));
    EXPECT_EQ(editor->simBreakpoints(), QList<int>{0});
}

TEST_F(Margin, ClicksMeetTheLineAfterAScroll)
{
    editor->setText(numberedLines(500));
    editor->verticalScrollBar()->setValue(300);
    EXPECT_EQ(editor->blockNumberFromPos(8), 300);
    clickMargin(5, 310);
    EXPECT_EQ(editor->simBreakpoints(), QList<int>{310});
    EXPECT_EQ(marginPixel(9, 310), QColor(Qt::red));
    editor->verticalScrollBar()->setValue(301);
    EXPECT_EQ(marginPixel(9, 310), QColor(Qt::red));
    EXPECT_NE(marginPixel(9, 311), QColor(Qt::red));
}

TEST_F(Margin, TheMarginIsPaintedAnewOnAScroll)
{
    struct PaintCounter : QObject
    {
        QRegion painted;
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() == QEvent::Paint)
                painted += static_cast<QPaintEvent*>(event)->region();
            return false;
        }
    } counter;
    editor->setText(numberedLines(500));
    QApplication::processEvents();
    editor->leftMargin()->installEventFilter(&counter);
    editor->verticalScrollBar()->setValue(4);
    const QRegion all = editor->leftMargin()->rect();
    EXPECT_TRUE(QTest::qWaitFor([&] { return counter.painted == all; }, 60000));
}

TEST_F(Margin, WrappedLinesAreOneLine)
{
    editor->setDynamicLineWrapEn(true);
    editor->setText(QString("word ").repeated(60) + "\nsecond");
    const QTextLayout* layout = editor->document()->firstBlock().layout();
    const QRect first = layout->boundingRect().toRect();
    EXPECT_GT(first.height(), 2 * editor->fontMetrics().height());
    QTest::mouseClick(editor->leftMargin(), Qt::LeftButton, Qt::NoModifier, QPoint(5, first.bottom() - 3));
    EXPECT_EQ(editor->simBreakpoints(), QList<int>{0});
    clickMargin(5, 1);
    EXPECT_EQ(editor->simBreakpoints(), (QList<int>{0, 1}));
}

TEST_F(Margin, MarksStayOnTheirNumbers)
{
    editor->setText("one\ntwo\nthree");
    editor->setSimBreakpoint(1);
    moveTo(0, 0);
    QTest::keyClick(editor.get(), Qt::Key_Return);
    EXPECT_EQ(editor->simBreakpoints(), QList<int>{1});
    EXPECT_EQ(editor->document()->findBlockByNumber(1).text(), QString("one"));
    EXPECT_EQ(marginPixel(9, 1), QColor(Qt::red));
    EXPECT_NE(marginPixel(9, 2), QColor(Qt::red));
}

TEST_F(Margin, ToolTipsTellTheMark)
{
    editor->setText(numberedLines(5));
    editor->setSimStartPointer(1);
    editor->setSimBreakpoint(1);
    editor->setBookmark(1);
    const auto tip = [this](int x, int line) {
        // A tip that is to go stays a while, so another one is shown to be replaced.
        QToolTip::showText(QPoint(), "none");
        editor->showLeftMarginToolTip(QPoint(x, marginY(line)));
        return QToolTip::text();
    };
    EXPECT_EQ(tip(5, 1), QString("Simulator start address"));
    EXPECT_EQ(tip(6, 1), QString("Simulator breakpoint"));
    EXPECT_EQ(tip(10, 1), QString("Simulator breakpoint"));
    EXPECT_EQ(tip(11, 1), QString("Bookmark"));
    EXPECT_EQ(tip(15, 1), QString("Bookmark"));
    EXPECT_EQ(tip(16, 1), QString("none"));
    EXPECT_EQ(tip(5, 2), QString("none"));
    editor->clearSimStartPointer();
    EXPECT_EQ(tip(5, 1), QString("Simulator breakpoint"));
    QToolTip::hideText();
}

TEST_F(Margin, TheMenuNamesWhatItDoes)
{
    editor->setText(numberedLines(5));
    QStringList expected{"Set simulator breakpoint",
                         "Clear all simulator breakpoints of the current file",
                         "Clear all simulator breakpoints",
                         "-",
                         "Set simulator start address to this line",
                         "Set simulator start address to processor default",
                         "-",
                         "Set bookmark",
                         "Clar all bookmarks of the current file",
                         "Clar all bookmarks"};
    EXPECT_EQ(menuOfLine(2), expected);
    editor->setSimBreakpoint(2);
    editor->setBookmark(2);
    EXPECT_EQ(menuOfLine(3), expected);
    expected[0] = "Clear simulator breakpoint";
    expected[7] = "Clear bookmark";
    EXPECT_EQ(menuOfLine(2), expected);
}

TEST_F(Margin, TheMenuShowsTheColours)
{
    editor->setText("one");
    editor->leftMargin()->setBookmarkColor(Qt::blue);
    QList<QColor> colors;
    MenuHelper helper([&](QMenu* menu) {
        for (const int entry : {0, 4, 7}) {
            const QPixmap pixmap = menu->actions().at(entry)->icon().pixmap(10, 10);
            EXPECT_EQ(pixmap.size() / pixmap.devicePixelRatio(), QSize(10, 10));
            colors.append(pixmap.toImage().pixelColor(5, 5));
        }
        EXPECT_TRUE(menu->actions().at(1)->icon().isNull());
    });
    emit editor->leftMargin()->customContextMenuRequested(QPoint(5, 5));
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(colors, (QList<QColor>{Qt::red, Qt::green, Qt::blue}));
}

TEST_F(Margin, TheMenuActs)
{
    editor->setText(numberedLines(9));
    QSignalSpy changed(editor.get(), &EditorWidget::simBreakpointChanged);
    QSignalSpy allBreakpoints(editor.get(), &EditorWidget::clearAllBreakpoints);
    QSignalSpy allStarts(editor.get(), &EditorWidget::clearAllSimStartPointer);
    QSignalSpy allBookmarks(editor.get(), &EditorWidget::clearAllBookmarks);
    menuOfLine(2, 0);
    menuOfLine(3, 0);
    EXPECT_EQ(editor->simBreakpoints(), (QList<int>{2, 3}));
    EXPECT_EQ(changed.count(), 2);
    menuOfLine(2, 0);
    EXPECT_EQ(editor->simBreakpoints(), QList<int>{3});
    EXPECT_EQ(changed.count(), 3);
    menuOfLine(1, 1);
    EXPECT_TRUE(editor->simBreakpoints().isEmpty());
    EXPECT_EQ(changed.count(), 3);
    EXPECT_EQ(allBreakpoints.count(), 0);
    menuOfLine(1, 2);
    EXPECT_EQ(allBreakpoints.count(), 1);
    menuOfLine(4, 4);
    int line = -1;
    EXPECT_TRUE(editor->simStartPointer(&line));
    EXPECT_EQ(line, 4);
    EXPECT_EQ(allStarts.count(), 1);
    menuOfLine(1, 5);
    EXPECT_EQ(allStarts.count(), 2);
    EXPECT_FALSE(editor->simStartPointer(&line));
    menuOfLine(5, 7);
    EXPECT_EQ(editor->bookmarks(), QList<int>{5});
    menuOfLine(1, 8);
    EXPECT_TRUE(editor->bookmarks().isEmpty());
    EXPECT_EQ(allBookmarks.count(), 0);
    menuOfLine(1, 9);
    EXPECT_EQ(allBookmarks.count(), 1);
}

TEST_F(Margin, ADocumentMayBeClosedWhileItsMenuIsOpen)
{
    editor->setText("one");
    MenuHelper helper([this](QMenu*) { editor.reset(); });
    emit editor->leftMargin()->customContextMenuRequested(QPoint(5, 5));
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(editor, nullptr);
}

TEST_F(Margin, TheMenuOpensForTheLineOfTheCursor)
{
    editor->setText(numberedLines(9));
    moveTo(6, 2);
    MenuHelper helper([](QMenu* menu) { menu->actions().first()->trigger(); });
    editor->leftMargin()->showMenuAtCursor();
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(editor->simBreakpoints(), QList<int>{6});
}

TEST_F(Margin, TheTextHasAMenuOnlyWithTheInsertionMenu)
{
    editor->setText("one");
    QStringList texts;
    const auto open = [&] {
        texts.clear();
        MenuHelper helper([&](QMenu* menu) {
            for (QAction* entry : menu->actions())
                texts.append(entry->isSeparator() ? "-" : entry->text());
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(50, 5),
                                editor->viewport()->mapToGlobal(QPoint(50, 5)));
        QApplication::sendEvent(editor->viewport(), &event);
        return helper.seen();
    };
    EXPECT_EQ(open(), 0);
    nsModEditor::EditorSupportMenu support;
    editor->setSupportMenu(&support);
    EXPECT_EQ(open(), 1);
    EXPECT_FALSE(texts.contains("Insert..."));
    EXPECT_GT(texts.size(), 5);
    support.setEntry("Words/one", "text", nsModEditor::EditorSupportMenuNode::typeText);
    EXPECT_EQ(open(), 1);
    EXPECT_EQ(texts.last(), QString("Insert..."));
    EXPECT_EQ(texts.at(texts.size() - 2), QString("-"));
    // The insertion menu lives on after the menu that showed it.
    EXPECT_EQ(open(), 1);
    EXPECT_EQ(texts.last(), QString("Insert..."));
}

class Addresses : public Margin
{
protected:
    void SetUp() override
    {
        Margin::SetUp();
        QStringList files{"/p/a.psm", "/p/b.psm", "/p/none.psm"};
        map = std::make_unique<EditorMemPageAddrMap>(&files);
        map->addItem(0, 1, 0x12);
        map->addItem(0, 2, 0x13);
        map->addItem(0, 2, 0xabc);
        map->addItem(0, 4, 0x14);
        map->addItem(1, 0, 0x200);
        editor->setFilePath("/p/a.psm");
        editor->setText(numberedLines(8));
        editor->leftMargin()->setFgColor(Qt::black);
        editor->setMemPageAddrEn(true);
    }
    int shown(int line) const { return darkPixels(editor->symbolMarginWidth() + 1, numberX(), line); }
    /// Pixels in the dark grey of addresses that may be wrong.
    int stale(int line) const
    {
        const QImage image = marginImage();
        int count = 0;
        for (int y = marginY(line) - 5; y <= marginY(line) + 5; ++y) {
            for (int x = editor->symbolMarginWidth() + 1; x < numberX(); ++x)
                count += image.pixelColor(x, y) == QColor(Qt::darkGray) ? 1 : 0;
        }
        return count;
    }
    /// Picture of the address of a line.
    QImage cell(int line) const
    {
        const QRect row = editor->cursorRect(QTextCursor(editor->document()->findBlockByNumber(line)));
        return marginImage().copy(editor->symbolMarginWidth() + 1, row.top(), editor->memPageAddrMarginWidth() - 1,
                                  row.height());
    }

    std::unique_ptr<EditorMemPageAddrMap> map;
};

TEST_F(Addresses, StandBesideTheLinesWithCode)
{
    EXPECT_EQ(shown(1), 0);
    editor->setMemPageAddrMap(map.get());
    for (const int line : {0, 3, 5, 7})
        EXPECT_EQ(shown(line), 0) << line;
    for (const int line : {1, 2, 4})
        EXPECT_GT(shown(line), 0) << line;
    editor->setMemPageAddrEn(false);
    EXPECT_EQ(editor->memPageAddrMarginWidth(), 0);
}

TEST_F(Addresses, TheFirstOfALineCountsAndThreeDigitsAreShown)
{
    editor->setMemPageAddrMap(map.get());
    const QImage address13 = cell(2);
    QStringList files{"/p/a.psm"};
    EditorMemPageAddrMap same(&files);
    same.addItem(0, 2, 0x13);
    editor->setMemPageAddrMap(&same);
    EXPECT_EQ(cell(2), address13);
    // As wide as another with three digits.
    EditorMemPageAddrMap other(&files);
    other.addItem(0, 2, 0xabc);
    editor->setMemPageAddrMap(&other);
    EXPECT_NE(cell(2), address13);
    EXPECT_GT(shown(2), 0);
    editor->setMemPageAddrMap(nullptr);
}

TEST_F(Addresses, AnEntryOutOfOrderHidesThoseBehindIt)
{
    QStringList files{"/p/a.psm"};
    EditorMemPageAddrMap odd(&files);
    odd.addItem(0, 4, 1);
    odd.addItem(0, 2, 2);
    odd.addItem(0, 6, 3);
    editor->setMemPageAddrMap(&odd);
    EXPECT_EQ(shown(2), 0);
    EXPECT_GT(shown(4), 0);
    EXPECT_GT(shown(6), 0);
    editor->setMemPageAddrMap(nullptr);
}

TEST_F(Addresses, AreFoundAfterAScrollToo)
{
    editor->setText(numberedLines(300));
    map->addItem(0, 250, 0x77);
    editor->setMemPageAddrMap(map.get());
    editor->verticalScrollBar()->setValue(240);
    EXPECT_GT(shown(250), 0);
    EXPECT_EQ(shown(249), 0);
    editor->setMemPageAddrMap(nullptr);
}

TEST_F(Addresses, AFileWithoutCodeShowsAnEmptyColumn)
{
    for (const char* file : {"/p/none.psm", "/p/unknown.psm", ""}) {
        editor->setFilePath(file);
        editor->setMemPageAddrMap(map.get());
        EXPECT_EQ(editor->memPageAddrMarginWidth(), 5 * digit() + 6);
        for (int line = 0; line < 8; ++line)
            EXPECT_EQ(shown(line), 0);
        // Nor does it speak for the map.
        moveTo(0, 0);
        QTest::keyClick(editor.get(), Qt::Key_Return);
        EXPECT_TRUE(map->valid);
    }
}

TEST_F(Addresses, ALineMoreMakesAllStale)
{
    EditorWidget other;
    other.setFilePath("/p/b.psm");
    other.setMemPageAddrMap(map.get());
    editor->setMemPageAddrMap(map.get());
    QTest::keyClicks(editor.get(), "ab");
    EXPECT_TRUE(map->valid);
    EXPECT_EQ(stale(1), 0);
    other.setPlainText("one\ntwo");
    EXPECT_FALSE(map->valid);
    EXPECT_GT(stale(1), 0);
    EXPECT_EQ(shown(1), 0);
    // The next run brings a new map.
    QStringList files{"/p/a.psm"};
    EditorMemPageAddrMap next(&files);
    next.addItem(0, 1, 5);
    editor->setMemPageAddrMap(&next);
    EXPECT_EQ(stale(1), 0);
    EXPECT_GT(shown(1), 0);
    editor->setMemPageAddrMap(nullptr);
}

TEST_F(Addresses, ANewDocumentWaitsForTheNextMap)
{
    editor->setMemPageAddrMap(map.get());
    EditorWidget fresh;
    fresh.setFilePath("/p/a.psm");
    fresh.setText("one");
    EXPECT_TRUE(map->valid);
}

/// The same margin on screens of all usual scales: lines and symbols have hard edges.
TEST_F(Addresses, EdgesAreSharpAtAnyScale)
{
    editor->setMemPageAddrMap(map.get());
    editor->setSimBreakpoint(3);
    editor->setSimStartPointer(3);
    editor->setLineNumberEn(true);
    QWidget* margin = editor->leftMargin();
    for (const qreal scale : {1.0, 1.5, 2.0}) {
        QImage image((QSizeF(margin->size()) * scale).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::white);
        margin->render(&image);
        const QSet<QRgb> allowed{QColor(0xEAE9E8).rgb(), QColor(Qt::red).rgb(), QColor(Qt::green).rgb(),
                                 QColor(Qt::black).rgb()};
        // Row 3 has no address: up to the number there are plain colours only.
        const int y = qRound(marginY(3) * scale);
        for (int x = 0; x < qRound((numberX() + 1) * scale); ++x)
            EXPECT_TRUE(allowed.contains(image.pixel(x, y))) << scale << " " << x;
        EXPECT_EQ(image.pixelColor(qRound(9 * scale), y), QColor(Qt::red));
        EXPECT_EQ(image.pixelColor(qRound(4 * scale), y), QColor(Qt::green));
    }
}

} // namespace
