#pragma once

#include "FakeCfgAppHook.h"
#include "FakeGuiHook.h"
#include "FakeMsgHook.h"
#include "FakePrjHook.h"
#include "FakeSmallHooks.h"
#include "ModSyscall.h"
#include "ProjectConsent.h"
#include "QtPrinters.h"
#include "SyscallMonWidget.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>

const int syscallTimeout = 120000; ///< milliseconds; only a test that hangs takes so long

/// The text of a monitor's output.
inline QString outputOf(const QWidget* monitor)
{
    return monitor->findChild<QPlainTextEdit*>("syscallOutput")->toPlainText();
}
inline QString statusOf(const QWidget* monitor)
{
    return monitor->findChild<QLabel*>("syscallStatus")->text();
}
inline QPushButton* buttonOf(const QWidget* monitor, const char* name)
{
    return monitor->findChild<QPushButton*>(name);
}
/// The number after a word at the start of the output.
inline int numberInOutput(const QWidget* monitor, const QString& word)
{
    const QString line = outputOf(monitor).section('\n', 0, 0);
    return line.startsWith(word + ' ') ? line.mid(word.size() + 1).toInt() : 0;
}
/// Is there no process of this number, not even a zombie?
inline bool isGone(int pid)
{
    return pid > 0 && ::kill(pid, 0) != 0;
}

/// The module with fakes around it, and a project in a folder of its own.
class SyscallFixture : public ::testing::Test
{
protected:
    SyscallFixture()
    {
        make();
        QFile file(prjFile());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }
    ~SyscallFixture() override
    {
        module.reset();
        QTest::qWait(0);
    }

    void make()
    {
        module = std::make_unique<nsModSyscall::ModSyscall>();
        msg.attach(static_cast<ModMsgPluginIf*>(module.get()));
        gui.registerPlugin(static_cast<ModGuiPluginIf*>(module.get()));
        config.registerPlugin(module.get());
        prj.registerPlugin(static_cast<ModPrjPluginIf*>(module.get()));
        cfgApp.registerPlugin(static_cast<ModCfgAppPluginIfInterMod*>(module.get()));
        module->modInit();
        module->modInitIntermod();
    }

    QString prjFile() const { return folder.filePath("p.nalvo"); }
    /// Sets a program of the project that is opened next; it is enabled and runs at button 1.
    void setProgram(int index, const QString& exe, const QString& arg)
    {
        set(index, "En", 1);
        set(index, "ExecEventBut1", 1);
        set(index, "StoreRelToPrj", 0);
        prj.tree.set(key(index, "Exe"), exe);
        prj.tree.set(key(index, "Arg"), arg);
    }
    void setHelper(int index, const QString& arg) { setProgram(index, NALVO_HELPER, arg); }
    void set(int index, const char* name, int value) { prj.tree.set(key(index, name), value); }
    static QString key(int index, const char* name) { return QString("Syscall/syscall%1%2").arg(index).arg(name); }
    /// Opens the project, after the user has allowed its programs.
    void open()
    {
        prj.open(prjFile());
        for (const nsModSyscall::SyscallRecord& program : module->programs)
            allow(program);
    }
    void allow(const nsModSyscall::SyscallRecord& program)
    {
        ProjectConsent(&cfgApp, prjFile())
            .setAnswer(ProjectConsent::kindProgram,
                       nsModSyscall::SyscallCommand::of(program, QDir(folder.path())).act(), true);
    }
    /// The answer for program and arguments in the folder of the project.
    ProjectConsent::eAnswer_t answer(const QStringList& command)
    {
        return ProjectConsent(&cfgApp, prjFile())
            .answer(ProjectConsent::kindProgram, command + QStringList(QDir(folder.path()).canonicalPath()));
    }
    nsModSyscall::SyscallMonWidget* monitor(int index)
    {
        return static_cast<nsModSyscall::SyscallMonWidget*>(
            gui.widgetNamed(QString("External program %1").arg(index + 1)));
    }
    /// Keys of all messages since the last call.
    QStringList keys()
    {
        QStringList result;
        for (const FakeMsgHook::Entry& entry : msg.messages())
            result.append(entry.key());
        msg.log.clear();
        return result;
    }
    bool run() { return module->run(nsModSyscall::eEventButton1); }
    /// Waits until the program has written this.
    bool waitForOutput(int index, const QString& text)
    {
        return QTest::qWaitFor([&] { return outputOf(monitor(index)).contains(text); }, syscallTimeout);
    }
    bool waitForState(int index, int state)
    {
        return QTest::qWaitFor([&] { return monitor(index)->state() == state; }, syscallTimeout);
    }

    QTemporaryDir folder;
    FakeMsgHook msg;
    FakeGuiHook gui;
    FakeConfigHook config;
    FakePrjHook prj;
    FakeCfgAppHook cfgApp;
    std::unique_ptr<nsModSyscall::ModSyscall> module;
};
