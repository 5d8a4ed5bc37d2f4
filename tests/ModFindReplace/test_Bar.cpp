// The bar by itself: its controls, modes and keys.

#include "FindReplaceFixture.h"

#include <QDir>
#include <QLabel>
#include <QSignalSpy>

namespace {

class Bar : public FindReplaceTest
{
protected:
    Bar()
    {
        addPage("document", &editor);
        choose(Actions::eActionFind);
        editor.take();
    }
    /// Names of the focused parts, from `first` on with the tab key.
    QStringList tabOrder(QWidget* first)
    {
        QStringList names;
        first->setFocus();
        for (int i = 0; i < 12 && bar()->isAncestorOf(QApplication::focusWidget()); ++i) {
            if (names.contains(QApplication::focusWidget()->objectName()))
                break;
            names.append(QApplication::focusWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        return names;
    }
    void screenshot(const QString& name)
    {
        settleAnimations();
        QDir().mkpath(NALVO_BINARY_DIR "/screenshots");
        EXPECT_TRUE(expectReadable(&window).save(QString(NALVO_BINARY_DIR "/screenshots/%1.png").arg(name)));
    }
};

TEST_F(Bar, hasItsWordsAndATipForEveryControl)
{
    const QList<QPair<const char*, const char*>> buttons = {{"buttonNext", "&Next"},
                                                            {"buttonPrevious", "&Previous"},
                                                            {"buttonReplace", "&Replace"},
                                                            {"buttonReplaceAll", "Replace &all"},
                                                            {"checkCaseSensitive", "Case sensitive"},
                                                            {"checkWholeWords", "Whole words only"}};
    for (const auto& button : buttons)
        EXPECT_EQ(part<QAbstractButton>(button.first)->text(), button.second);
    QStringList labels;
    for (QLabel* label : bar()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly))
        labels.append(label->text());
    EXPECT_EQ(labels, QStringList({"Find:", "Replace:"}));
    for (QAbstractButton* button : bar()->findChildren<QAbstractButton*>()) {
        if (button->parentWidget() != find() && button->parentWidget() != replace()) {
            EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
        }
    }
    EXPECT_TRUE(find()->isClearButtonEnabled());
    EXPECT_FALSE(find()->toolTip().isEmpty());
    EXPECT_FALSE(replace()->toolTip().isEmpty());
    EXPECT_FALSE(part<QToolButton>("buttonClose")->icon().isNull());
}

TEST_F(Bar, toggleShowsAndHidesTheSecondRow)
{
    EXPECT_FALSE(replace()->isVisible());
    EXPECT_FALSE(part<QPushButton>("buttonReplace")->isVisible());
    const QImage expand = part<QToolButton>("buttonToggleMode")->icon().pixmap(16).toImage();
    const int height = bar()->sizeHint().height();
    click("buttonToggleMode");
    EXPECT_TRUE(replace()->isVisible());
    EXPECT_TRUE(part<QPushButton>("buttonReplace")->isVisible());
    EXPECT_TRUE(part<QPushButton>("buttonReplaceAll")->isVisible());
    EXPECT_GT(bar()->sizeHint().height(), height);
    EXPECT_NE(part<QToolButton>("buttonToggleMode")->icon().pixmap(16).toImage(), expand);
    click("buttonToggleMode");
    EXPECT_FALSE(replace()->isVisible());
    EXPECT_EQ(part<QToolButton>("buttonToggleMode")->icon().pixmap(16).toImage(), expand);
}

TEST_F(Bar, fieldsDoNotMoveWhenTheSecondRowComes)
{
    settleLayout();
    const QRect before = find()->geometry();
    click("buttonToggleMode");
    settleLayout();
    EXPECT_EQ(find()->x(), before.x());
    EXPECT_EQ(replace()->x(), before.x());
    EXPECT_EQ(find()->y(), before.y());
}

TEST_F(Bar, focusStaysInTheBarWhenItsRowGoes)
{
    bar()->setMode(Widget::eModeReplace);
    replace()->setFocus();
    bar()->setMode(Widget::eModeFind);
    EXPECT_TRUE(find()->hasFocus());
}

TEST_F(Bar, buttonsNeedATextToFind)
{
    bar()->setMode(Widget::eModeReplace);
    const auto states = [this] {
        QString text;
        for (const char* name : {"buttonNext", "buttonPrevious", "buttonReplace", "buttonReplaceAll"})
            text += part<QPushButton>(name)->isEnabled() ? '1' : '0';
        return text;
    };
    EXPECT_EQ(states(), "0000");
    EXPECT_FALSE(bar()->isFindEnabled());
    QTest::keyClicks(find(), " ");
    EXPECT_EQ(states(), "1111");
    EXPECT_TRUE(bar()->isFindEnabled());
    QTest::keyClick(find(), Qt::Key_Backspace);
    EXPECT_EQ(states(), "0000");
    QTest::keyClicks(replace(), "abc");
    EXPECT_EQ(states(), "0000");
}

TEST_F(Bar, clearButtonEmptiesTheField)
{
    QTest::keyClicks(find(), "abc");
    auto* clear = find()->findChild<QToolButton*>();
    ASSERT_NE(clear, nullptr);
    QTest::mouseClick(clear, Qt::LeftButton);
    EXPECT_EQ(find()->text(), "");
}

TEST_F(Bar, everyChangeIsTold)
{
    bar()->setMode(Widget::eModeReplace);
    QSignalSpy spy(bar(), &Widget::configChanged);
    QTest::keyClicks(find(), "a");
    EXPECT_EQ(spy.count(), 1);
    QTest::keyClicks(replace(), "b");
    EXPECT_EQ(spy.count(), 2);
    click("checkCaseSensitive");
    EXPECT_EQ(spy.count(), 3);
    click("checkWholeWords");
    EXPECT_EQ(spy.count(), 4);
    EXPECT_TRUE(bar()->isCaseSensitive());
    EXPECT_TRUE(bar()->isWholeWords());
    EXPECT_EQ(bar()->findString(), "a");
    EXPECT_EQ(bar()->replaceString(), "b");
}

TEST_F(Bar, initStringIsPutInAndAnEmptyOneSelectsWhatStandsThere)
{
    QSignalSpy spy(bar(), &Widget::configChanged);
    bar()->setInitString("first", Widget::eModeReplace);
    EXPECT_GE(spy.count(), 1);
    EXPECT_EQ(find()->text(), "first");
    EXPECT_TRUE(find()->hasFocus());
    EXPECT_EQ(bar()->mode(), Widget::eModeReplace);
    // Another text can be typed over it.
    EXPECT_EQ(find()->selectedText(), "first");
    spy.clear();
    bar()->setInitString("", Widget::eModeFind);
    EXPECT_EQ(spy.count(), 1);
    EXPECT_EQ(find()->text(), "first");
    EXPECT_EQ(find()->selectedText(), "first");
    EXPECT_EQ(bar()->mode(), Widget::eModeFind);
    // The field has one line.
    for (const QString& lines : {QString("one") + QChar(QChar::ParagraphSeparator) + "two", QString("one\ntwo")}) {
        find()->deselect();
        bar()->setInitString(lines, Widget::eModeFind);
        EXPECT_EQ(find()->text(), "first");
        EXPECT_EQ(find()->selectedText(), "first");
    }
}

TEST_F(Bar, withoutReplaceThereIsNoSecondRow)
{
    bar()->setMode(Widget::eModeReplace);
    bar()->setReplaceEnable(false);
    EXPECT_EQ(bar()->mode(), Widget::eModeFind);
    EXPECT_FALSE(replace()->isVisible());
    EXPECT_FALSE(part<QToolButton>("buttonToggleMode")->isEnabled());
    bar()->setMode(Widget::eModeReplace);
    bar()->toggleMode();
    EXPECT_EQ(bar()->mode(), Widget::eModeFind);
    bar()->setReplaceEnable(true);
    bar()->toggleMode();
    EXPECT_EQ(bar()->mode(), Widget::eModeReplace);
}

TEST_F(Bar, choiceThatIsNotOfferedDoesNotCount)
{
    click("checkWholeWords");
    EXPECT_TRUE(bar()->isWholeWords());
    bar()->setWholeWordsEnable(false);
    EXPECT_FALSE(part<QCheckBox>("checkWholeWords")->isEnabled());
    EXPECT_FALSE(bar()->isWholeWords());
    bar()->setWholeWordsEnable(true);
    EXPECT_TRUE(bar()->isWholeWords());
}

TEST_F(Bar, escapeClosesFromEveryControl)
{
    bar()->setMode(Widget::eModeReplace);
    QTest::keyClicks(find(), "a");
    QSignalSpy spy(bar(), &Widget::closeRequest);
    spy.clear();
    for (const char* name : {"editFind", "editReplace", "buttonNext", "checkCaseSensitive", "buttonToggleMode"}) {
        QTest::keyClick(part<QWidget>(name), Qt::Key_Escape);
        EXPECT_EQ(spy.count(), 1) << name;
        spy.clear();
    }
    choose(Actions::eActionFind);
    click("buttonClose");
    EXPECT_EQ(spy.count(), 1);
}

TEST_F(Bar, enterFindsAndReplaces)
{
    bar()->setMode(Widget::eModeReplace);
    QTest::keyClick(find(), Qt::Key_Return);
    EXPECT_EQ(editor.take(), QStringList());
    QTest::keyClicks(find(), "a");
    QTest::keyClick(find(), Qt::Key_Return);
    QTest::keyClick(find(), Qt::Key_Enter);
    QTest::keyClick(find(), Qt::Key_Return, Qt::ShiftModifier);
    replace()->setFocus();
    QTest::keyClick(replace(), Qt::Key_Return);
    EXPECT_EQ(editor.take(), QStringList({"next*", "next", "prev", "replace"}));
}

TEST_F(Bar, tabGoesThroughTheFieldsFirst)
{
    bar()->setMode(Widget::eModeReplace);
    QTest::keyClicks(find(), "a");
    const QStringList expected = {"editFind",           "editReplace",     "buttonNext",
                                  "buttonPrevious",     "buttonReplace",   "buttonReplaceAll",
                                  "checkCaseSensitive", "checkWholeWords", "buttonToggleMode"};
    EXPECT_EQ(tabOrder(find()), expected);
    find()->setFocus();
    QTest::keyClick(find(), Qt::Key_Backtab);
    EXPECT_TRUE(part<QToolButton>("buttonClose")->hasFocus());
}

TEST_F(Bar, fitsIntoTheSmallestWindowAndBesideDocks)
{
    bar()->setMode(Widget::eModeReplace);
    EXPECT_LE(bar()->minimumSizeHint().width(), 520);
    QCheckBox* box = part<QCheckBox>("checkWholeWords");
    const auto top = [this](QWidget* widget) { return widget->mapTo(bar(), QPoint(0, 0)).y(); };
    window.resize(1000, 600);
    settleLayout();
    EXPECT_LT(top(box), top(replace()));
    window.resize(560, 600);
    settleLayout();
    EXPECT_EQ(window.width(), 560);
    EXPECT_GT(top(box), top(replace()));
    EXPECT_LE(box->mapTo(bar(), box->rect().bottomRight()).x(), bar()->width());
    EXPECT_LE(box->mapTo(bar(), box->rect().bottomRight()).y(), bar()->height());
    bar()->setMode(Widget::eModeFind);
    settleLayout();
    EXPECT_GT(top(box), top(find()));
    window.resize(1000, 600);
    settleLayout();
    EXPECT_LT(qAbs(box->mapTo(bar(), box->rect().center()).y() - find()->geometry().center().y()), 4);
}

TEST_F(Bar, picturesOfBothModes)
{
    QTest::keyClicks(find(), "PORT_UART_STATUS");
    screenshot("find-bar");
    click("checkCaseSensitive");
    bar()->setMode(Widget::eModeReplace);
    QTest::keyClicks(replace(), "PORT_STATUS");
    screenshot("replace-bar");
    window.resize(800, 600);
    find()->clear();
    bar()->setWholeWordsEnable(false);
    screenshot("replace-bar-empty-small");
    window.resize(560, 600);
    screenshot("replace-bar-narrow");
}

} // namespace
