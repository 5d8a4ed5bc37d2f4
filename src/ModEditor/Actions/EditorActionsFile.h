#pragma once

#include "ActionGroup.h"

namespace nsModEditor {

/// What can be done with files, in menu and tool bar.
class EditorActionsFile : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t {
        eActionNew = 0,
        eActionOpen = 1,
        eActionSaveAll = 2,
        eActionSave = 3,
        eActionSaveAs = 4,
        eActionReloadAll = 5,
        eActionReload = 6,
        eActionPrint = 7,
        eActionClose = 8,
        eActionCloseAll = 9,
        eActionCloseOthers = 10,
    };

    explicit EditorActionsFile(QObject* parent);

    /// The first two.
    QList<QAction*> toolBarActions() const override
    {
        return actions().mid(0, 2) + QList<QAction*>{entry(eActionSave)};
    }

signals:
    void triggered(nsModEditor::EditorActionsFile::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

} // namespace nsModEditor
