// An example project in the window, from opening to the files of a button, with clicks where a user would click.

#include "ExampleFolder.h"
#include "MainWindowFixture.h"

#include "IODevViewerList.h"
#include "ModEditorHookIf.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"

#include <QLabel>
#include <QToolButton>

namespace {

QByteArray content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class ExampleProject : public MainWindowFixture
{
protected:
    ExampleProject()
    {
        copyFolder(NALVO_SOURCE_DIR "/examples", projectDir());
        writeSetting("ModGui/width", "1280");
        writeSetting("ModGui/height", "750");
        makeWindow();
    }

    QString project() const { return projectDir() + "/uart_monitor/uart_monitor.nalvo"; }
    QString output(const QString& suffix) const
    {
        return projectDir() + "/uart_monitor/output/uart_monitor_rom." + suffix;
    }
    bool open() { return module<nsModPrj::ModPrj>()->openPrj(project()); }

    /// The button of a tool bar that triggers the action with this text.
    QToolButton* button(const QString& text) const
    {
        for (QToolButton* candidate : window->findChildren<QToolButton*>()) {
            if (candidate->defaultAction() != nullptr && candidate->defaultAction()->text() == text)
                return candidate;
        }
        return nullptr;
    }
    void click(const QString& text)
    {
        QToolButton* found = button(text);
        ASSERT_NE(found, nullptr);
        ASSERT_TRUE(found->isEnabled());
        QTest::mouseClick(found, Qt::LeftButton);
    }
    QTreeWidgetItem* messageItem(const QString& start) const
    {
        QTreeWidgetItemIterator it(messageView());
        for (; *it != nullptr; ++it) {
            if ((*it)->text(0).startsWith(start))
                return *it;
        }
        return nullptr;
    }
};

TEST_F(ExampleProject, buttonsWriteTheSameFilesAsTheBatchAssembler)
{
    ASSERT_TRUE(open());
    EXPECT_TRUE(window->windowTitle().startsWith("Nalvo - uart_monitor.nalvo"));
    for (const char* suffix : {"hex", "mem", "vhd", "v"})
        EXPECT_FALSE(QFile::exists(output(suffix))) << suffix;
    click("Write output files button 1");
    screenshot("example-assembled");
    ASSERT_NE(messageItem("Writing IO device"), nullptr);
    for (QTreeWidgetItem* item : {messageItem("Assembling..."), messageItem("Write IO devices to files...")}) {
        ASSERT_NE(item, nullptr);
        EXPECT_FALSE(item->isExpanded());
    }
    // One word a line: as many as the memory has.
    const QByteArray hex = content(output("hex"));
    EXPECT_EQ(hex.count('\n'), 1024);
    EXPECT_EQ(hex.size(), 1024 * 6);
    EXPECT_TRUE(content(output("mem")).startsWith("@0\r\n"));
    EXPECT_TRUE(content(output("vhd")).contains("INIT_00"));
    EXPECT_TRUE(content(output("v")).contains("INIT_00"));
    EXPECT_FALSE(content(output("vhd")).contains("{INIT"));
}

TEST_F(ExampleProject, equListFillsWithTheRun)
{
    ASSERT_TRUE(open());
    click("Run assembler");
    const auto* list = window->findChild<QTreeView*>("equListView");
    ASSERT_NE(list, nullptr);
    const QAbstractItemModel* lines = list->model();
    EXPECT_GT(lines->rowCount(), 20);
    for (int row = 0; row < lines->rowCount(); ++row) {
        EXPECT_FALSE(lines->index(row, 0).data().toString().isEmpty());
        EXPECT_TRUE(lines->index(row, 1).data().toString().startsWith("0x"));
    }
    const auto* processor = window->findChild<QLabel*>("asmFeStatusBarProcessor");
    ASSERT_NE(processor, nullptr);
    EXPECT_EQ(processor->text(), "Xilinx PicoBlaze 3");
}

TEST_F(ExampleProject, mapsOfTheIODevicesLeadToTheSources)
{
    auto* gui = module<ModGuiHookIf>();
    EXPECT_EQ(window->findChild<nsModAsmFe::IODevViewerList*>(), nullptr) << "without a project there are no maps";
    auto* prj = module<nsModPrj::ModPrj>();
    for (const char* name : {"two_pages", "motor_control", "split_rams"}) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(prj->openPrj(projectDir() + QString("/%1/%1.nalvo").arg(name)));
        auto* view = window->findChild<nsModAsmFe::IODevViewerList*>();
        ASSERT_NE(view, nullptr);
        EXPECT_TRUE(gui->hasWidget(ModGuiHookIf::eLocationDockRight, view));
        // The first run brings the constants to the front; after that the panel stays that the user has chosen.
        click("Run assembler");
        gui->setCurrentWidget(view);
        click("Run assembler");
        EXPECT_EQ(gui->currentWidget(ModGuiHookIf::eLocationDockRight), view);
        screenshot(QString("ioDevViewer-%1").arg(name));
        ASSERT_FALSE(view->elements().isEmpty());
        // The first cell with a value of its own.
        nsModAsmFe::IODevViewerItem* item = view->elements().first().item;
        int addr = 0;
        while (item->kindOf(addr) == nsModAsmFe::IODevViewerItem::eInitValue)
            ++addr;
        auto* editor = module<ModEditorHookIf>();
        editor->closeAllFiles();
        QTest::mouseDClick(item, Qt::LeftButton, Qt::NoModifier, item->cellRect(addr).center());
        QCoreApplication::processEvents();
        QString file;
        int line = -1;
        ASSERT_TRUE(editor->cursorLine(&file, &line));
        const QByteArray text = content(file).split('\n').value(line).simplified();
        EXPECT_FALSE(text.isEmpty() || text.startsWith(';'))
            << qPrintable(file) << ':' << line << ' ' << text.constData();
        ASSERT_TRUE(prj->closePrj());
        EXPECT_EQ(window->findChild<nsModAsmFe::IODevViewerList*>(), nullptr);
    }
    screenshot("ioDevViewer-empty");
}

TEST_F(ExampleProject, anErrorStandsOpenWithItsLinks)
{
    const QString source = projectDir() + "/uart_monitor/src/main.psm";
    QFile file(source);
    ASSERT_TRUE(file.open(QIODevice::Append));
    const int line = content(source).count('\n') + 1;
    file.write("    LOAD s0, not_there\n    LOAD s1, 256\n");
    file.close();
    ASSERT_TRUE(open());
    click("Run assembler");
    screenshot("example-error");
    const QTreeWidgetItem* error = messageItem("Unsupported argument: not_there");
    ASSERT_NE(error, nullptr);
    EXPECT_EQ(error->text(1), "Show help page");
    EXPECT_EQ(error->text(2), QString("src/main.psm#%1").arg(line));
    EXPECT_TRUE(error->parent()->isExpanded());
    EXPECT_TRUE(messageItem("Assembling...")->isExpanded());
    EXPECT_FALSE(QFile::exists(output("hex")));
    EXPECT_FALSE(button("Write output files button 1")->isEnabled());
    EXPECT_TRUE(button("Run assembler")->isEnabled());

    // Mended, it runs again, from the same window.
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    QByteArray text = file.readAll();
    text.replace("    LOAD s0, not_there\n    LOAD s1, 256\n", "");
    file.resize(0);
    file.write(text);
    file.close();
    click("Run assembler");
    EXPECT_EQ(messageItem("Unsupported argument"), nullptr);
    EXPECT_TRUE(button("Write output files button 1")->isEnabled());
}

TEST_F(ExampleProject, everyExampleOpensAssemblesAndCloses)
{
    const QFileInfoList folders = QDir(projectDir()).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
    int projects = 0;
    for (const QFileInfo& folder : folders) {
        for (const QFileInfo& file : QDir(folder.filePath()).entryInfoList({"*.nalvo"}, QDir::Files)) {
            SCOPED_TRACE(qPrintable(file.fileName()));
            ++projects;
            auto* prj = module<nsModPrj::ModPrj>();
            ASSERT_TRUE(prj->openPrj(file.filePath()));
            click("Write output files button 1");
            EXPECT_EQ(messageItem("Failure"), nullptr);
            EXPECT_NE(messageItem("Writing IO device"), nullptr);
            EXPECT_TRUE(prj->closePrj());
            EXPECT_FALSE(button("Run assembler")->isEnabled());
        }
    }
    EXPECT_GE(projects, 3);
}

TEST_F(ExampleProject, savedProjectKeepsTheProcessorAndItsSources)
{
    ASSERT_TRUE(open());
    click("Close project");
    ASSERT_TRUE(open());
    click("Write output files button 1");
    EXPECT_NE(messageItem("Writing IO device"), nullptr);
    EXPECT_EQ(messageItem("Failure"), nullptr);
}

} // namespace
