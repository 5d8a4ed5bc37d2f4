// How the window answers while an external program floods both of its outputs, how much memory that takes and how fast
// the flood is read.
//
// The whole window runs the program at the event of a button, with its monitor in front. A second thread asks the event
// loop for an answer again and again and notes how long each takes, first while the window has nothing to do: that is
// the share of the machine.

#include "ModAsmFe.h"
#include "ModCfgAppHookIf.h"
#include "ModPrj.h"
#include "ModSyscall.h"
#include "Nalvo.h"
#include "ProjectConsent.h"
#include "SyscallCommand.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QPlainTextEdit>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <vector>

namespace {

const int megabytes = 200;      ///< on each of both outputs
const int scriptsMegabytes = 5; ///< the same of characters that are slow to show
const int idleTime = 5000;      ///< milliseconds of the loop that has nothing to do
const int askInterval = 2;      ///< milliseconds between an answer and the next question
const int settleInterval = 50;  ///< milliseconds between two looks whether the view has got all

/// Asks the event loop of the object's thread for answers.
class Asker : public QThread
{
public:
    explicit Asker(QObject* target)
        : m_target(target)
    {
    }
    /// @return milliseconds that the answers took, the shortest first
    std::vector<double> finish()
    {
        m_ends = true;
        while (!wait(1))
            QCoreApplication::processEvents();
        std::sort(m_times.begin(), m_times.end());
        return m_times;
    }

protected:
    void run() override
    {
        while (!m_ends) {
            QElapsedTimer time;
            time.start();
            QMetaObject::invokeMethod(
                m_target, [] {}, Qt::BlockingQueuedConnection);
            m_times.push_back(double(time.nsecsElapsed()) * 1e-6);
            msleep(askInterval);
        }
    }

private:
    QObject* m_target;
    std::atomic_bool m_ends{false};
    std::vector<double> m_times;
};

/// A figure of this process's memory in megabytes.
double memory(const QByteArray& figure)
{
    QFile file("/proc/self/status");
    if (file.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (line.startsWith(figure + ':'))
                return line.simplified().split(' ').value(1).toDouble() / 1024;
        }
    }
    qFatal("no figure of the memory");
}

template <class Type>
Type* moduleOf(const Nalvo& window)
{
    for (ModPluginIf* candidate : window.modules()) {
        if (Type* found = dynamic_cast<Type*>(candidate))
            return found;
    }
    qFatal("a module is missing");
}

void write(const QString& path, const QString& text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        qFatal("can not write %s", qPrintable(path));
}

/// Opens a project whose first program is the flood, which is allowed.
/// @param name of the project, which must not be open: its close would write it anew
/// @param arguments of the flood
void openProject(const Nalvo& window, const QString& folder, const QString& name, const QString& arguments)
{
    const QString project = folder + '/' + name + ".nalvo";
    write(folder + "/p.psm", "start: JUMP start\n");
    write(project, QString("<project version=\"3\"><sources><srcFiles>p.psm</srcFiles></sources>"
                           "<Syscall><syscall0ExecEventBut1>1</syscall0ExecEventBut1>"
                           "<syscall0StoreRelToPrj>0</syscall0StoreRelToPrj>"
                           "<syscall0Exe>%1</syscall0Exe><syscall0Arg>%2</syscall0Arg></Syscall></project>")
                       .arg(NALVO_FLOOD)
                       .arg(arguments));
    if (!moduleOf<nsModPrj::ModPrj>(window)->openPrj(project))
        qFatal("can not open the project");
    const nsModSyscall::SyscallRecord& program = moduleOf<nsModSyscall::ModSyscall>(window)->programs[0];
    ProjectConsent(moduleOf<ModCfgAppHookIf>(window), project)
        .setAnswer(ProjectConsent::kindProgram, nsModSyscall::SyscallCommand::of(program, QDir(folder)).act(), true);
}

/// Returns when the view has shown all that is kept.
void settle(const QPlainTextEdit* view)
{
    QEventLoop loop;
    QTimer timer;
    int revision = -1;
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        if (view->document()->revision() == revision)
            loop.quit();
        revision = view->document()->revision();
    });
    timer.start(settleInterval);
    loop.exec();
}

void print(const QString& name, double value)
{
    QTextStream(stdout) << name << ": " << QString::number(value, 'f', 2) << '\n';
}

void printTimes(const QString& name, const std::vector<double>& times)
{
    print(name + "_median_ms", times[times.size() / 2]);
    print(name + "_p99_ms", times[times.size() * 99 / 100]);
    print(name + "_longest_ms", times.back());
}

/// Runs the program at its event and prints the figures.
void runProgram(const Nalvo& window, const QString& name, int megabytes)
{
    const auto* view = window.findChild<QPlainTextEdit*>("syscallOutput");
    const double before = memory("VmRSS");
    Asker asker(moduleOf<nsModSyscall::ModSyscall>(window));
    asker.start();
    // The messages may come to the front with the end of the program.
    bool wasInFront = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] { wasInFront = wasInFront || view->isVisible(); });
    look.start(0);
    QElapsedTimer time;
    time.start();
    if (!moduleOf<nsModSyscall::ModSyscall>(window)->run(nsModSyscall::eEventButton1))
        qFatal("the program failed");
    look.stop();
    if (!wasInFront)
        qFatal("the monitor is not in front");
    const double seconds = double(time.nsecsElapsed()) * 1e-9;
    settle(view);
    printTimes(name, asker.finish());
    print(name + "_megabytes_per_second", 2 * megabytes / seconds);
    print(name + "_growth_megabytes", memory("VmHWM") - before);
    print(name + "_lines_kept", view->blockCount());
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir folder;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path() + "/settings");
    QApplication application(argc, argv);
    QApplication::setStyle("fusion");
    Nalvo window(1, argv);
    window.resize(1400, 900);
    openProject(window, folder.path(), "flood", QString::number(megabytes));

    Asker idle(&window);
    idle.start();
    QEventLoop loop;
    QTimer::singleShot(idleTime, &loop, &QEventLoop::quit);
    loop.exec();
    printTimes("idle", idle.finish());

    runProgram(window, "flood", megabytes);
    openProject(window, folder.path(), "scripts", QString("%1 scripts").arg(scriptsMegabytes));
    runProgram(window, "scripts", scriptsMegabytes);
    return 0;
}
