// The import page, and the dialog that imports whole programs.

#include "PictureWindow.h"
#include "Pictures.h"

#include "ImportProgramDialog.h"
#include "ImportWidget.h"
#include "ModGuiHookIf.h"
#include "ModImport.h"

#include <QCoreApplication>

using nsModImport::ImportProgramConfig;
using nsModImport::ImportProgramDialog;
using nsModImport::ImportWidget;
using nsModImport::ModImport;

namespace {

const QSize pageSize(1000, 720);

void takeImportPage(PictureWindow& stage, const QString& source)
{
    auto* import = stage.module<ModImport>();
    import->importFile(source, QStringLiteral("KCPSM3"));
    auto* page = stage.window()->findChild<ImportWidget*>();
    if (page == nullptr)
        return;
    const int shownLines = 24;
    for (int i = 0; i < shownLines; ++i)
        page->convertLine();
    stage.take(QStringLiteral("filesImport"), page);
    import->closeImportDialog();
}

void takeImportDialog(PictureWindow& stage, const QString& folder)
{
    stage.module<ModImport>()->openImportProgramDialog();
    auto* dialog = stage.window()->findChild<ImportProgramDialog*>();
    if (dialog == nullptr)
        return;
    ImportProgramConfig config;
    config.source = folder + QStringLiteral("/belt_counter.psm");
    config.reference = folder + QStringLiteral("/belt_counter.log");
    config.dialect = QStringLiteral("kcpsm3");
    dialog->setConfig(config);
    dialog->convert();
    while (dialog->isBusy())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    PictureWindow::rest();
    stage.take(QStringLiteral("importProgram"), dialog);
    dialog->close();
}

} // namespace

void takeImport(PictureWindow& stage)
{
    const QString folder = stage.example(QStringLiteral("import/kcpsm3"));
    stage.open(QStringLiteral("uart_monitor"));
    stage.resize(pageSize);
    for (const auto dock :
         {ModGuiHookIf::eLocationDockLeft, ModGuiHookIf::eLocationDockRight, ModGuiHookIf::eLocationDockBottom})
        stage.module<ModGuiHookIf>()->setWidgetVisible(dock, false);
    takeImportPage(stage, folder + QStringLiteral("/belt_counter.psm"));
    takeImportDialog(stage, folder);
    for (const auto dock :
         {ModGuiHookIf::eLocationDockLeft, ModGuiHookIf::eLocationDockRight, ModGuiHookIf::eLocationDockBottom})
        stage.module<ModGuiHookIf>()->setWidgetVisible(dock, true);
    stage.resize(PictureWindow::fullSize);
}
