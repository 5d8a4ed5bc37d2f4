#pragma once

#include "ProcSimCallStack.h"
#include "ProcSimCore.h"
#include "ProcSimIO.h"
#include "ProcSimStatusBar.h"
#include "ProcSimWaveViewer.h"

#include <QPointer>

namespace nsProc {

/// The widgets of a simulator. Each belongs to the simulator, also while it is in the main window; if the window is
/// deleted, it deletes them.
struct ProcSimWidgets
{
    QPointer<ProcSimCore> core;
    QPointer<ProcSimIO> io;
    QPointer<ProcSimCallStack> callStack;
    QPointer<ProcSimWaveViewer> waveViewer; ///< made when the user asks for it
    QPointer<ProcSimStatusBar> statusBar;
    QPointer<QWidget> lastBottom; ///< the one of the bottom dock that was shown last
};

} // namespace nsProc
