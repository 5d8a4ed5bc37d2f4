#include "ImportActions.h"

namespace nsModImport {

ImportActions::ImportActions(QObject* parent)
    : ActionGroup(parent, ":/ModImport/img/actions/")
{
    addEntries({
        {eActionImportFiles, QT_TR_NOOP("Import files..."), QT_TR_NOOP("Starts import files dialog."), "import-files"},
    });
}

} // namespace nsModImport
