#pragma once

#include "ModAsmFe.h"
#include "MyLongWork.h"

#include <QTimer>
#include <QToolButton>

#include <functional>

/// A run of the assembler that takes long, for tests of its progress.
namespace longRun {

inline QByteArray program()
{
    return QByteArray("        LOAD s0, 1\n").repeated(20000);
}

/// Runs the assembler and shows the progress at once.
/// @param act once, while the progress is shown. @return false: it never was
inline bool run(nsModAsmFe::ModAsmFe* asmFe, const QWidget* window, const std::function<void(QToolButton* cancel)>& act)
{
    MyLongWork::setDelay(0);
    bool seen = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, window, [&] {
        auto* cancel = window->findChild<QToolButton*>("longWorkCancel");
        if (seen || cancel == nullptr || !cancel->isVisible() || !asmFe->isRunning())
            return;
        seen = true;
        act(cancel);
    });
    timer.start(0);
    asmFe->assemble(nsModAsmFe::AsmFeConfig::eEventButton1);
    timer.stop();
    MyLongWork::setDelay(MyLongWork::usualDelay);
    return seen;
}

} // namespace longRun
