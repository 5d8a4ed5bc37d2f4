// How small the docks can be made, with the panels of all modules in them.

#include "ExampleFolder.h"
#include "MainWindowFixture.h"

#include "ModEditorHookIf.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"

#include <QAction>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>

namespace {

class SmallDocks : public MainWindowFixture
{
protected:
    SmallDocks()
    {
        copyFolder(NALVO_SOURCE_DIR "/examples", projectDir());
        QFont font = m_font;
        font.setPointSize(9);
        QApplication::setFont(font);
        writeSetting("ModGui/width", "1280");
        writeSetting("ModGui/height", "800");
        makeWindow();
        EXPECT_TRUE(module<nsModPrj::ModPrj>()->openPrj(projectDir() + "/uart_monitor/uart_monitor.nalvo"));
        module<ModEditorHookIf>()->openFile(projectDir() + "/uart_monitor/src/main.psm");
        settleLayout();
        for (const char* text : {"Run assembler", "Enable/disable simulator", "Next instruction"})
            trigger(text);
        settleAnimations();
    }
    ~SmallDocks() override
    {
        window.reset();
        QApplication::setFont(m_font);
    }
    void trigger(const QString& text) const
    {
        for (const QAction* bar : window->menuBar()->actions()) {
            for (QAction* action : bar->menu()->actions()) {
                if (action->text() == text && action->isEnabled()) {
                    action->trigger();
                    settleLayout();
                    return;
                }
            }
        }
        ADD_FAILURE() << qPrintable(text);
    }
    QDockWidget* dock(const char* name) const { return window->findChild<QDockWidget*>(QLatin1String(name)); }
    /// As small as the user can make it.
    QSize smallest(const char* name, Qt::Orientation orientation)
    {
        window->resizeDocks({dock(name)}, {1}, orientation);
        settleLayout();
        return dock(name)->size();
    }
    /// The panels of a dock with what they need.
    QString needs(const char* name) const
    {
        QString text;
        auto* tabs = qobject_cast<QTabWidget*>(dock(name)->widget());
        for (int i = 0; i < tabs->count(); ++i) {
            const QSize least = tabs->widget(i)->minimumSizeHint();
            text += QStringLiteral("%1: %2 x %3\n").arg(tabs->tabText(i)).arg(least.width()).arg(least.height());
        }
        return text;
    }

    QFont m_font = QApplication::font();
};

TEST_F(SmallDocks, theRightOneCanBeNarrow)
{
    EXPECT_LE(smallest("dockRight", Qt::Horizontal).width(), 180) << needs("dockRight").toStdString();
    EXPECT_TRUE(window->grab().save(QStringLiteral(NALVO_BINARY_DIR "/screenshots/docks-narrow.png")));
}

TEST_F(SmallDocks, theBottomOneShowsThreeMessages)
{
    module<ModGuiHookIf>()->setCurrentWidget(messageView());
    smallest("dockBottom", Qt::Vertical);
    const int row = messageView()->visualItemRect(messageView()->topLevelItem(0)).height();
    ASSERT_GT(row, 0);
    EXPECT_LE(messageView()->viewport()->height(), 4 * row) << needs("dockBottom").toStdString();
    EXPECT_GT(messageView()->viewport()->height(), row);
}

TEST_F(SmallDocks, theScratchpadHasEightCellsInARowWhereTheyFit)
{
    auto* scratchpad = window->findChild<QWidget*>("procSimScrpd");
    ASSERT_NE(scratchpad, nullptr);
    window->resizeDocks({dock("dockLeft")}, {330}, Qt::Horizontal);
    settleLayout();
    int cells = 0;
    const QList<QWidget*> fields = scratchpad->findChildren<QWidget*>("procSimEdtNumeric");
    ASSERT_FALSE(fields.isEmpty());
    for (const QWidget* field : fields)
        cells += field->y() == fields.first()->y() && field->parentWidget() == fields.first()->parentWidget();
    EXPECT_EQ(cells, 8) << scratchpad->width() << " pixels for cells of " << fields.first()->width();
}

} // namespace
