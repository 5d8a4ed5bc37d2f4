#include "MyLinkButton.h"
#include "MyLinkList.h"

#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace {

const int narrow = 300;

} // namespace

TEST(LinkList, ALongNameDoesNotMakeItsPageWide)
{
    MyLinkList list;
    const QString name = QString("a_very_long_name_").repeated(12) + "1";
    bool isPressed = false;
    MyLinkList::sLink_t link;
    link.text = name;
    link.detail = QString("/a/long/path").repeated(12);
    link.act = [&isPressed] { isPressed = true; };
    MyLinkList::sSection_t section;
    section.title = "Recent";
    section.links = {link};
    list.setSections({section});
    EXPECT_LE(list.minimumSizeHint().width(), narrow);
    list.resize(narrow, 200);
    list.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&list));
    auto* button = list.findChild<MyLinkButton*>();
    ASSERT_NE(button, nullptr);
    EXPECT_LE(button->mapTo(&list, QPoint(button->width(), 0)).x(), narrow);
    EXPECT_EQ(button->text(), name) << "only the picture is shorter";
    const QImage elided = button->grab().toImage();
    button->setText(name.chopped(1) + "W");
    EXPECT_NE(button->grab().toImage(), elided) << "the end of the name is seen";
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(isPressed);
}

TEST(LinkList, LinksThatLookTheSameStayAndDoWhatIsNew)
{
    MyLinkList list;
    QString done;
    const auto sections = [&done](const QString& what, const QString& text) {
        MyLinkList::sLink_t link;
        link.text = text;
        link.act = [&done, what] { done = what; };
        MyLinkList::sSection_t section;
        section.title = "Start";
        section.links = {link};
        return QVector<MyLinkList::sSection_t>{section};
    };
    list.setSections(sections("old", "Open"));
    auto* button = list.findChild<MyLinkButton*>();
    ASSERT_NE(button, nullptr);
    list.setSections(sections("new", "Open"));
    EXPECT_EQ(list.findChild<MyLinkButton*>(), button);
    button->click();
    EXPECT_EQ(done, "new");
    list.setSections(sections("other", "Open it"));
    EXPECT_EQ(list.texts().join(','), "Start,Open it");
    list.findChild<QWidget*>("linkListContent")->findChild<MyLinkButton*>()->click();
    EXPECT_EQ(done, "other");
}

TEST(LinkList, ALinkMayReplaceAllLinks)
{
    auto list = std::make_unique<MyLinkList>();
    MyLinkList::sLink_t link;
    link.text = "Close";
    link.act = [&list] { list->setSections({}); };
    MyLinkList::sSection_t section;
    section.links = {link};
    list->setSections({section});
    list->findChild<MyLinkButton*>()->click();
    EXPECT_TRUE(list->texts().isEmpty());
}

TEST(LinkList, ALinkWithoutRoomShowsItsShortText)
{
    MyLinkButton link("Next: Choose the output files");
    link.setShortText("Next...");
    link.resize(link.sizeHint());
    EXPECT_EQ(link.shownText(), "Next: Choose the output files");
    EXPECT_LT(link.minimumSizeHint().width(), link.sizeHint().width());
    link.resize(link.sizeHint().width() - 1, link.height());
    EXPECT_EQ(link.shownText(), "Next...");
    link.resize(link.minimumSizeHint());
    EXPECT_EQ(link.shownText(), "Next...") << "it has room for it at its smallest";
    link.resize(link.minimumSizeHint().width() - 1, link.height());
    EXPECT_NE(link.shownText(), "Next...") << "a text that does not fit either";
    EXPECT_EQ(link.text(), "Next: Choose the output files");
    link.resize(link.minimumSizeHint());
    const QImage picture = link.grab().toImage();
    link.setText("Next: Choose the output folder");
    EXPECT_EQ(link.grab().toImage(), picture) << "only the short text is painted";
    link.setShortText("Next.,.");
    EXPECT_NE(link.grab().toImage(), picture);
}
