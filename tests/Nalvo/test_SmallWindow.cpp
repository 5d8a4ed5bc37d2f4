// The pages that lead on in a small window: nothing of them is out of reach to the right.

#include "Readable.h"
#include "StartPageFixture.h"

#include <QScrollArea>
#include <QScrollBar>

namespace {

class SmallWindow : public StartPage, public ::testing::WithParamInterface<int>
{
protected:
    SmallWindow()
    {
        QFont font = m_font;
        font.setPointSize(GetParam());
        QApplication::setFont(font);
        writeSetting("ModGui/width", "1024");
        writeSetting("ModGui/height", "700");
        start();
        window->resize(1024, 700);
        settleLayout();
    }
    ~SmallWindow() override
    {
        window.reset();
        QApplication::setFont(m_font);
    }

    QFont m_font = QApplication::font();
};

} // namespace

TEST_P(SmallWindow, theProjectManagerScrollsDownAlone)
{
    auto* page = window->findChild<QWidget*>("prjMngr");
    ASSERT_NE(page, nullptr);
    auto* tabs = page->findChild<QTabWidget*>("prjMngrTabs");
    for (int tab : {0, 1}) {
        tabs->setCurrentIndex(tab);
        settleLayout();
        expectReadable(page);
        screenshot(QStringLiteral("start-small-%1pt-%2").arg(GetParam()).arg(tab));
        for (const QScrollArea* area : page->findChildren<QScrollArea*>()) {
            if (area->isVisible()) {
                EXPECT_FALSE(area->horizontalScrollBar()->isVisible())
                    << tab << ' ' << area->viewport()->width() << " of " << area->widget()->minimumSizeHint().width();
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Fonts, SmallWindow, ::testing::Values(9, 14));
