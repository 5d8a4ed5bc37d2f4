// The widgets that are a Qt widget with a name for the style sheet and a text, and the layout of a page.

#include "MyButton.h"
#include "MyButtonCancel.h"
#include "MyButtonOk.h"
#include "MyButtonOpenFile.h"
#include "MyElidedLabel.h"
#include "MyFieldTitle.h"
#include "MyHLine.h"
#include "MyPageLayout.h"
#include "MyPageTitle.h"
#include "MySectionTitle.h"
#include "MyStatusBarSubTitle.h"
#include "MyStatusBarTitle.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>
#include <QTest>

static void initResources()
{
    Q_INIT_RESOURCE(nalvo);
}

TEST(MyButtons, haveTheirNamesAndTexts)
{
    initResources();
    const MyButton plain;
    EXPECT_EQ(plain.objectName(), "button");
    EXPECT_EQ(plain.text(), "");
    const MyButton named("Restore values");
    EXPECT_EQ(named.objectName(), "button");
    EXPECT_EQ(named.text(), "Restore values");
    const MyButtonOk ok;
    EXPECT_EQ(ok.objectName(), "buttonOk");
    EXPECT_EQ(ok.text(), "&Ok");
    const MyButtonCancel cancel;
    EXPECT_EQ(cancel.objectName(), "buttonCancel");
    EXPECT_EQ(cancel.text(), "&Cancel");
    const MyButtonOpenFile openFile;
    EXPECT_EQ(openFile.objectName(), "buttonOpenFile");
    EXPECT_FALSE(openFile.icon().pixmap(16).isNull());
    EXPECT_FALSE(openFile.toolTip().isEmpty());
    EXPECT_FALSE(openFile.accessibleName().isEmpty());
}

TEST(MyLabels, haveTheirNamesAndTexts)
{
    const MyFieldTitle field("Title:");
    EXPECT_EQ(field.text(), "Title:");
    const MySectionTitle section("Character set");
    EXPECT_EQ(section.objectName(), "sectionTitle");
    EXPECT_EQ(section.text(), "Character set");
    const MyStatusBarTitle title("Mode:");
    EXPECT_EQ(title.objectName(), "statusBarTitle");
    EXPECT_EQ(title.text(), "Mode:");
    const MyStatusBarSubTitle subTitle("Flags");
    EXPECT_EQ(subTitle.objectName(), "statusBarSubTitle");
    EXPECT_EQ(subTitle.text(), "Flags");
}

TEST(MyLines, areHorizontal)
{
    const MyHLine line;
    EXPECT_EQ(line.objectName(), "hline");
    EXPECT_EQ(line.frameShape(), QFrame::HLine);

    MyPageTitle title("Sources configuration");
    EXPECT_EQ(title.objectName(), "pageTitle");
    EXPECT_EQ(title.text(), "Sources configuration");
    EXPECT_EQ(title.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    const auto* underline = title.findChild<QFrame*>("pageTitleUnderline");
    ASSERT_NE(underline, nullptr);
    EXPECT_EQ(underline->frameShape(), QFrame::HLine);
    EXPECT_EQ(underline->frameShadow(), QFrame::Sunken);
    title.resize(200, 60);
    title.show();
    EXPECT_GT(underline->y(), title.findChild<QLabel*>()->y());
}

namespace {

class PageLayout : public ::testing::Test
{
protected:
    PageLayout()
        : layout(new MyPageLayout(&page, "Page"))
    {
    }

    void show()
    {
        page.resize(600, 400);
        page.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&page, 60000));
    }
    static int leftOf(QWidget* widget) { return widget->mapTo(widget->window(), QPoint()).x(); }
    static int topOf(QWidget* widget) { return widget->mapTo(widget->window(), QPoint()).y(); }

    QWidget page;
    MyPageLayout* layout;
};

} // namespace

TEST_F(PageLayout, fieldsOfAllSectionsStandInOneColumn)
{
    auto* text = new QLineEdit;
    auto* number = new QSpinBox;
    auto* check = new QCheckBox("Wrap");
    layout->addSection("First");
    layout->addField("&A:", text);
    layout->addSection("Second");
    MyFieldTitle* title = layout->addField("A much longer &label:", number, "What it is", "pixels");
    layout->addRow(check);
    show();
    EXPECT_EQ(leftOf(text), leftOf(number));
    EXPECT_EQ(leftOf(text), leftOf(check));
    EXPECT_GT(leftOf(text), leftOf(title) + title->width());
    EXPECT_GT(text->width(), number->width());
    EXPECT_EQ(title->buddy(), number);
    EXPECT_EQ(title->toolTip(), "What it is");
    EXPECT_EQ(number->toolTip(), "What it is");
    // What is left of the height stands below.
    EXPECT_LT(topOf(check) + check->height(), page.height() / 2 + 40);
}

TEST_F(PageLayout, theMnemonicOfTheLabelLeadsToTheField)
{
    auto* first = new QLineEdit;
    auto* second = new QLineEdit;
    layout->addField("&First:", first);
    layout->addField("&Second:", second);
    show();
    page.activateWindow();
    first->setFocus();
    QTest::keyClick(&page, Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(second->hasFocus());
    QTest::keyClick(second, Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_TRUE(first->hasFocus());
}

TEST_F(PageLayout, aFillTakesTheHeight)
{
    auto* list = new QListWidget;
    layout->addFill(list);
    page.resize(600, 1000);
    show();
    page.resize(600, 1000);
    QCoreApplication::processEvents();
    EXPECT_GT(list->height(), 800);
}

TEST_F(PageLayout, withoutAProjectItSaysSoAndKeepsWhatThePageDisabled)
{
    auto* free = new QLineEdit;
    auto* dependent = new QLineEdit;
    layout->addField("Free:", free);
    layout->addField("Dependent:", dependent);
    dependent->setEnabled(false);
    show();
    auto* note = page.findChild<QLabel*>("pageNote");
    ASSERT_NE(note, nullptr);
    EXPECT_FALSE(note->isVisible());

    layout->setPrjConfigEnabled(false);
    EXPECT_FALSE(free->isEnabled());
    EXPECT_TRUE(note->isVisible());
    EXPECT_TRUE(note->isEnabled());
    EXPECT_TRUE(note->text().contains("Open a project"));

    layout->setPrjConfigEnabled(true);
    EXPECT_TRUE(free->isEnabled());
    EXPECT_FALSE(dependent->isEnabled());
    EXPECT_FALSE(note->isVisible());
}

TEST(MyLabels, aLineTakesAnyWidthAndLeavesOutWhatDoesNotFit)
{
    const QString text = QStringLiteral("a/rather/long/path/of/a/file.psm <b>");
    for (const Qt::TextElideMode mode : {Qt::ElideMiddle, Qt::ElideRight}) {
        MyElidedLabel label(mode);
        label.setText(text);
        EXPECT_EQ(label.textFormat(), Qt::PlainText);
        EXPECT_EQ(label.minimumSizeHint().width(), 0);
        EXPECT_EQ(label.sizeHint().width(), 0);
        EXPECT_GT(label.sizeHint().height(), 0);
        QLabel plain;
        plain.setTextFormat(Qt::PlainText);
        const auto pictureOf = [&](QLabel* shown, const QString& its, int width) {
            shown->setText(its);
            shown->resize(width, label.sizeHint().height());
            return shown->grab().toImage();
        };
        const int whole = label.fontMetrics().horizontalAdvance(text) + 8;
        EXPECT_EQ(pictureOf(&label, text, whole), pictureOf(&plain, text, whole));
        EXPECT_EQ(pictureOf(&label, text, 120),
                  pictureOf(&plain, label.fontMetrics().elidedText(text, mode, 120), 120));
    }
}
