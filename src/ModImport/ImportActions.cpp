#include "ImportActions.h"

namespace nsModImport {

ImportActions::ImportActions(QObject* parent)
    : ActionGroup(parent, ":/ModImport/img/actions/")
{
    addEntries({
        {eActionImportFiles, QT_TR_NOOP("Import files..."), QT_TR_NOOP("Starts import files dialog."), "import-files"},
    });
}

ImportProgramActions::ImportProgramActions(QObject* parent)
    : ActionGroup(parent, ":/ModImport/img/actions/")
{
    addEntries({
        {eActionImportProgram, QT_TR_NOOP("Import program..."),
         QT_TR_NOOP("Makes a project of a program for another assembler, or of an image."), "import-program"},
    });
}

} // namespace nsModImport
