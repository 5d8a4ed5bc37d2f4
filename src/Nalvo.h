#pragma once

#include "ModulePhases.h"

#include <QMainWindow>

namespace nsModArgs {
class ModArgs;
}
namespace nsModPrj {
class ModPrj;
}
namespace nsModScript {
class ModScript;
}

/// The main window: makes the modules, drives them through their phases, and hands over what the command line names.
///
/// Visible to scripts as "app". The modules are children of the window; it uses only the module list, except for the
/// three modules that the command line needs.
class Nalvo : public QMainWindow
{
    Q_OBJECT

public:
    /// Makes and starts all modules, shows the window, opens the project and runs the script that the command line
    /// names.
    Nalvo(int argc, char** argv);

    /// Ends the event loop at once: no exit phase runs, neither settings nor project are saved.
    Q_INVOKABLE void exit();

    /// The module list, in order.
    const QList<ModPluginIf*>& modules() const { return m_phases.modules(); }

    /// The menu that shows and hides tool bars; the docks have no part in it, as they cannot be closed.
    QMenu* createPopupMenu() override;

protected:
    /// While a script runs, it is stopped instead, and the window closes when it has ended: the exit phases would take
    /// the objects from under it.
    void closeEvent(QCloseEvent* event) override;

private:
    void makeModules();
    void handleArgs();

    ModulePhases m_phases;
    nsModArgs::ModArgs* m_modArgs = nullptr;
    nsModPrj::ModPrj* m_modPrj = nullptr;
    nsModScript::ModScript* m_modScript = nullptr;
};
