// The check of pictures sees what it is made for.

#include "Readable.h"

#include <gtest/gtest-spi.h>

#include <QPalette>
#include <QPushButton>
#include <QScrollArea>

namespace {

class ReadableTest : public ::testing::Test
{
protected:
    ReadableTest()
    {
        root.resize(310, 60);
        label.setGeometry(10, 10, 210, 20);
        root.show();
    }

    QWidget root;
    QLabel label{"Address of the interrupt:", &root};
};

QWidget* shown = nullptr; // EXPECT_NONFATAL_FAILURE sees nothing local

TEST_F(ReadableTest, TextsWithTheirRoomPass)
{
    expectReadable(&root);
}

TEST_F(ReadableTest, ATextThatIsCutOff)
{
    label.resize(60, 20);
    shown = &root;
    EXPECT_NONFATAL_FAILURE(expectReadable(shown), "cut off: Address of the interrupt:");
}

TEST_F(ReadableTest, ATextThatIsCoveredInPart)
{
    QWidget cover(&root);
    cover.setGeometry(50, 0, 80, 60);
    cover.setAutoFillBackground(true);
    cover.show();
    shown = &root;
    EXPECT_NONFATAL_FAILURE(expectReadable(shown), "hidden in part: Address of the interrupt:");
}

TEST_F(ReadableTest, ATextInTheColourOfItsGround)
{
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, palette.color(QPalette::Window));
    label.setPalette(palette);
    QPushButton button("OK", &root);
    button.setGeometry(230, 10, 70, 30);
    button.show();
    shown = &root;
    EXPECT_NONFATAL_FAILURE(expectReadable(shown), "not painted: Address of the interrupt:");
}

TEST_F(ReadableTest, ATextThatIsScrolledAwayIsLeftAlone)
{
    QScrollArea area;
    auto* page = new QWidget;
    page->resize(400, 400);
    auto* far = new QLabel("far below", page);
    far->setGeometry(90, 90, 100, 20);
    area.setWidget(page);
    area.resize(100, 100);
    area.show();
    expectReadable(&area);
}

} // namespace
