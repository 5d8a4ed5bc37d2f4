#pragma once

#include "ActionGroup.h"

namespace nsModImport {

/// The entry that opens the import page.
class ImportActions : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionImportFiles = 0 };
    Q_ENUM(eAction_t)

    explicit ImportActions(QObject* parent = nullptr);

    /// The tool bar has none: a file is imported once in the life of a project.
    QList<QAction*> toolBarActions() const override { return {}; }

signals:
    void triggered(nsModImport::ImportActions::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

/// The entry that imports a whole program. It needs no project, as it makes one.
class ImportProgramActions : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionImportProgram = 0 };
    Q_ENUM(eAction_t)

    explicit ImportProgramActions(QObject* parent = nullptr);

    QList<QAction*> toolBarActions() const override { return {}; }

signals:
    void triggered(nsModImport::ImportProgramActions::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

} // namespace nsModImport
