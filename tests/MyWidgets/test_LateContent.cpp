#include "LateContent.h"

#include <QAccessible>
#include <QLineEdit>
#include <QStackedWidget>
#include <QStringList>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <memory>

namespace {

/// A panel with two fields.
class Panel : public QWidget
{
public:
    explicit Panel(const QString& name, QWidget* parent = nullptr)
        : QWidget(parent)
        , m_content(this, [this] { make(); })
    {
        setObjectName(name);
    }

    QLineEdit* first() const { return m_first; }
    QLineEdit* second() const { return m_second; }
    bool isThere() const { return m_content.isThere(); }
    void need() { m_content.need(); }

    int made = 0;

private:
    void make()
    {
        ++made;
        m_content.need(); // a part that asks for the whole
        m_first = new QLineEdit(this);
        m_second = new QLineEdit(this);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(m_first);
        layout->addWidget(m_second);
    }

    QLineEdit* m_first = nullptr;
    QLineEdit* m_second = nullptr;
    LateContent m_content;
};

} // namespace

TEST(LateContent, isMadeAtOnceWhileNoProgramStarts)
{
    Panel panel("panel");
    EXPECT_TRUE(panel.isThere());
    EXPECT_NE(panel.first(), nullptr);
    panel.need();
    EXPECT_EQ(panel.findChildren<QLineEdit*>().size(), 2);
    bool isDone = false;
    LateContent::later(&panel, [&] { isDone = true; });
    EXPECT_TRUE(isDone);
}

TEST(LateContent, ofAStartIsMadeBeforeItIsSeenOrAfterTheWindowIs)
{
    LateContent::Start start;
    QStackedWidget window;
    auto* inFront = new Panel("inFront");
    auto* behind = new Panel("behind");
    Panel elsewhere("elsewhere");
    window.addWidget(inFront);
    window.addWidget(behind);
    auto* wanted = new Panel("wanted");
    window.addWidget(wanted);
    wanted->need();
    EXPECT_EQ(wanted->made, 1);
    EXPECT_FALSE(inFront->isThere());
    start.aboutToShow(&window);
    EXPECT_TRUE(inFront->isThere());
    EXPECT_FALSE(behind->isThere());
    EXPECT_FALSE(elsewhere.isThere());
    start.seen();
    for (const Panel* panel : {inFront, behind, wanted, static_cast<Panel*>(&elsewhere)})
        EXPECT_EQ(panel->made, 1) << panel->objectName().toStdString();
    EXPECT_TRUE(Panel("after").isThere());
}

TEST(LateContent, ofAPanelThatIsDeletedBeforeIsNotMade)
{
    LateContent::Start start;
    auto panel = std::make_unique<Panel>("panel");
    QObject owner;
    auto gone = std::make_unique<QObject>();
    QStringList done;
    Panel made("made");
    EXPECT_TRUE(LateContent::isStarting());
    LateContent::later(&owner, [&] {
        done.append(made.isThere() ? "first" : "too early");
        EXPECT_FALSE(LateContent::isStarting());
        // It makes something itself.
        LateContent::later(&owner, [&] { done.append("inner"); });
    });
    LateContent::later(gone.get(), [&] { done.append("of nobody"); });
    LateContent::later(&owner, [&] { done.append("second"); });
    panel.reset();
    gone.reset();
    EXPECT_TRUE(done.isEmpty());
    start.seen();
    EXPECT_EQ(done.join(' ').toStdString(), "first inner second");
    start.seen();
    EXPECT_EQ(done.size(), 3);
}

TEST(LateContent, ASecondStartChangesNothingOfTheFirst)
{
    auto first = std::make_unique<LateContent::Start>();
    Panel panel("panel");
    {
        LateContent::Start second;
        second.aboutToShow(&panel);
        second.seen();
    }
    EXPECT_FALSE(panel.isThere());
    first.reset();
    EXPECT_TRUE(panel.isThere());
    EXPECT_TRUE(Panel("after").isThere());
}

TEST(LateContent, ofADisabledPanelIsDisabledAndWhatItIs)
{
    QAccessible::setActive(true);
    for (const bool isItself : {true, false}) {
        LateContent::Start start;
        QWidget window;
        auto* panel = new Panel("panel", &window);
        (isItself ? panel : &window)->setEnabled(false);
        start.seen();
        EXPECT_FALSE(panel->first()->isEnabled());
        EXPECT_EQ(QAccessible::queryAccessibleInterface(panel->first())->role(), QAccessible::EditableText);
        (isItself ? panel : &window)->setEnabled(true);
        EXPECT_TRUE(panel->first()->isEnabled()) << isItself;
    }
}

TEST(LateContent, ofAHiddenPageGetsItsRoom)
{
    LateContent::Start start;
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* pages = new QStackedWidget;
    layout->addWidget(pages);
    pages->addWidget(new QWidget);
    auto* panel = new Panel("panel");
    pages->addWidget(panel);
    window.show();
    QCoreApplication::processEvents();
    const int before = window.minimumSizeHint().height();
    start.seen();
    panel->first()->setMinimumHeight(before + 100);
    EXPECT_GE(window.minimumSizeHint().height(), before + 100);
}

TEST(LateContent, theTabKeyReachesItAtThePlaceOfThePanel)
{
    LateContent::Start start;
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    QLineEdit before;
    auto* panel = new Panel("panel");
    QLineEdit after;
    layout->addWidget(&before);
    layout->addWidget(panel);
    layout->addWidget(&after);
    start.seen();
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window, 60000));
    before.setFocus();
    for (QWidget* next : {static_cast<QWidget*>(panel->first()), static_cast<QWidget*>(panel->second()),
                          static_cast<QWidget*>(&after), static_cast<QWidget*>(&before)}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), next);
    }
}
