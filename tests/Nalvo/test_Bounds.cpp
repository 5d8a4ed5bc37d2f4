// Numbers that no user would write, in every key of the settings and of the project.

#include "KeyTable.h"
#include "MainWindowFixture.h"

#include "EditorWidget.h"
#include "ModAsmFe.h"
#include "ModEditor.h"
#include "ModPrj.h"
#include "ModProcessor.h"
#include "ProcShell.h"
#include "QtPrinters.h"

#include <QAction>
#include <QScreen>

#include <string>

namespace {

const char* const extremes[] = {"2147483647", "-2147483648", "20000000", "-1", "0", "99999999999999999999", "abc", ""};
const char* const processors[] = {"Xilinx PicoBlaze 3", "Xilinx PicoBlaze 6", "Lattice Mico8 v3.x"};

bool isNumber(const sKey_t& key)
{
    return std::string(key.type) == "int" || std::string(key.type) == "bool";
}

/// The whole program at work on settings and a project whose numbers are all the same.
class Bounds : public MainWindowFixture, public ::testing::WithParamInterface<const char*>
{
protected:
    ~Bounds() override
    {
        if (window != nullptr)
            closeWindow();
    }
    void work()
    {
        auto* editor = module<nsModEditor::ModEditor>();
        ASSERT_TRUE(editor->openFile(projectDir() + "/main.psm"));
        for (nsModEditor::EditorWidget* document : editor->editorWidgets()) {
            document->setFocus();
            QTest::keyClick(document, Qt::Key_Tab);
            QTest::keyClick(document, Qt::Key_Return);
            document->grab();
        }
        auto* asmFe = module<nsModAsmFe::ModAsmFe>();
        asmFe->assemble(nsModAsmFe::ModAsmFe::eEventNone);
        auto* shell = dynamic_cast<nsProc::ProcShell*>(module<nsModProcessor::ModProcessor>()->currentProcessor());
        ASSERT_NE(shell, nullptr);
        QAction* enable = shell->actionsSim()->actions().first();
        enable->trigger();
        QCoreApplication::processEvents();
        for (QWidget* child : window->findChildren<QWidget*>())
            EXPECT_LE(child->width(), 30000) << qPrintable(child->objectName());
        if (shell->sim() != nullptr)
            enable->trigger();
        for (nsModEditor::EditorWidget* document : editor->editorWidgets())
            document->clearModified();
    }
};

TEST_P(Bounds, areKeptBySettings)
{
    for (const sKey_t& key : settingsKeys()) {
        if (isNumber(key))
            writeSetting(key.key, GetParam());
        else if (std::string(key.type) == "font")
            writeSetting(key.key, QString("DejaVu Sans Mono,%1,-1,7,%1,0,0,0,0,0").arg(GetParam()));
    }
    makeWindow();
    EXPECT_GE(window->width(), 800);
    EXPECT_LE(window->width(), 8192);
    EXPECT_GE(window->height(), 600);
    EXPECT_LE(window->height(), 8192);
    EXPECT_TRUE(window->frameGeometry().intersects(window->screen()->geometry()));
    // A window of that size takes long to paint, and what follows is about what stands in it.
    window->resize(1200, 800);
    writeFile("main.psm", "start:\tLOAD s0, 1\n");
    writeFile("case.nalvo", projectOf({{"sources/srcFiles", "main.psm"}, {"ModProcessor/processor", processors[0]}}));
    ASSERT_TRUE(module<nsModPrj::ModPrj>()->openPrj(projectDir() + "/case.nalvo"));
    work();
}

TEST_P(Bounds, areKeptByProjects)
{
    makeWindow();
    for (const char* processor : processors) {
        SCOPED_TRACE(processor);
        KeyValues values = {{"sources/srcFiles", "main.psm"}, {"ModProcessor/processor", processor}};
        for (const KeyTable& table : {projectKeys(), imageKeys(), documentKeys(), processorKeys(processor)}) {
            for (const sKey_t& key : table) {
                if (isNumber(key))
                    values.insert(key.key, GetParam());
            }
        }
        values.insert("ModEditor/lastFile", "main.psm");
        writeFile("main.psm", "start:\tLOAD s0, 1\n");
        ASSERT_TRUE(module<nsModPrj::ModPrj>()->openPrj(writeFile("case.nalvo", projectOf(values))));
        work();
        ASSERT_TRUE(module<nsModPrj::ModPrj>()->closePrj());
    }
}

INSTANTIATE_TEST_SUITE_P(Extremes, Bounds, ::testing::ValuesIn(extremes));

} // namespace
