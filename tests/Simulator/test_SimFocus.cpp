// Where the keyboard is when the simulator starts, steps and stops, and the names of what stands around it.

#include "SimWindow.h"

#include "ModConfig.h"
#include "ProcSimIO.h"

#include <QLineEdit>
#include <QTabWidget>

namespace {

using SimFocus = SimWindow;

} // namespace

TEST_F(SimFocus, isInTheDocumentWhenTheSimulatorHasGone)
{
    ASSERT_TRUE(start("XPBlze3", {"LOAD s0, 1", "LOAD s1, 2", "LOAD s2, 3"}));
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
    QWidget* page = document();
    ASSERT_NE(page, nullptr);
    auto* gui = module<ModGuiHookIf>();
    QWidget* core = gui->currentWidget(ModGuiHookIf::eLocationDockLeft);
    ASSERT_NE(core, nullptr);
    QLineEdit* field = nullptr;
    for (QLineEdit* candidate : core->findChildren<QLineEdit*>()) {
        if (field == nullptr && candidate->isVisible() && candidate->isEnabled() && !candidate->isReadOnly())
            field = candidate;
    }
    ASSERT_NE(field, nullptr);
    field->setFocus();
    ASSERT_TRUE(field->hasFocus());
    // A step leaves the keyboard where it is.
    trigger(Action::eActionNextInstruction);
    EXPECT_TRUE(field->hasFocus());
    trigger(Action::eActionEnable);
    EXPECT_EQ(sim(), nullptr);
    EXPECT_EQ(QApplication::focusWidget(), page);
}

TEST_F(SimFocus, panelsAndPagesStandUnderTheirNames)
{
    const auto names = [this](const char* area) {
        auto* tabs = window->findChild<QTabWidget*>(area);
        if (tabs == nullptr)
            tabs = window->findChild<QWidget*>(area)->findChild<QTabWidget*>(QString(), Qt::FindDirectChildrenOnly);
        QStringList result;
        for (int index = 0; index < tabs->count(); ++index)
            result.append(tabs->tabText(index));
        result.sort();
        return result;
    };
    makeWindow();
    EXPECT_EQ(names("widgetAreaTabs"), QStringList("Project Manager"));
    ASSERT_TRUE(open("XPBlze3", {"LOAD s0, 1"}));
    ASSERT_NE(document(), nullptr);
    editor()->newFile("; new");
    EXPECT_EQ(names("dockLeft"), QStringList({"Files", "Source Navigator"}));
    EXPECT_EQ(names("dockRight"), QStringList({"EQU list", "Help", "IO device map viewer"}));
    EXPECT_EQ(names("dockBottom"), QStringList({"External program 1", "Messages"}));
    trigger(Action::eActionEnable);
    EXPECT_EQ(names("dockLeft"), QStringList({"Files", "Processor core", "Source Navigator"}));
    EXPECT_EQ(names("dockRight"), QStringList({"EQU list", "Help", "IO device map viewer", "Processor ports"}));
    EXPECT_EQ(names("dockBottom"), QStringList({"External program 1", "Messages", "Processor callstack"}));
    emit window->findChild<nsProc::ProcSimIO*>()->wavesRequested();
    EXPECT_EQ(names("dockBottom"), QStringList({"External program 1", "Messages", "Processor callstack", "Waves"}));
    module<nsModConfig::ModConfig>()->openDialog();
    EXPECT_EQ(names("widgetAreaTabs"), QStringList({"Configuration", "Untitled", "main.psm"}));
    EXPECT_EQ(window->windowTitle(), "Nalvo - case.nalvo ( Title: , Project version: )");
    module<nsModConfig::ModConfig>()->closeDialog(false);
}
