#pragma once

#include <QList>

class ModPluginIf;

/// Drives the modules through their life: each phase for all modules, in the order of the list, before the next one
/// starts.
///
/// This is the one place where phases run. start() and stop() run their phases once; further calls have no effect.
class ModulePhases
{
public:
    /// Appends a module. The list owns nothing; the modules must live until stop() has returned. A null entry is
    /// skipped.
    void append(ModPluginIf* module);
    /// The module list, in order.
    const QList<ModPluginIf*>& modules() const { return m_modules; }

    /// Registration, set-up, set-up between the modules, run.
    void start();
    /// Asks every module whether the program may stop, and if all agree runs the exit phases.
    /// @return false if a module has refused: the modules after it were not asked, and all modules stay in use
    bool stop();
    /// The exit phases have run.
    bool isStopped() const { return m_state == eState_t::stopped; }

private:
    enum class eState_t { created, running, stopped };

    template <class Phase>
    void run(Phase phase) const;
    bool isExitAllowed() const;

    QList<ModPluginIf*> m_modules;
    eState_t m_state = eState_t::created;
};
