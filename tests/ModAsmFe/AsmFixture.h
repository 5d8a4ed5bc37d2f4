#pragma once

#include "AsmFakes.h"
#include "FakeHooks.h"
#include "QtPrinters.h"

#include "ModAsmFe.h"

#include <QTemporaryDir>

/// The assembler with a fake in place of each other module, and a folder for its files.
class AsmFixture
{
public:
    /// What a test can have or do without; the editor's words and its menu take their time.
    enum ePart_t { partNone = 0, partBackend = 1, partEditor = 2, partMenu = 4 };

    explicit AsmFixture(int parts = partBackend | partEditor);
    ~AsmFixture();

    QString path(const QString& name) const { return m_dir.filePath(name); }
    /// Writes a file into the folder. @return its absolute path
    QString write(const QString& name, const QByteArray& content) const;
    QByteArray read(const QString& name) const;
    /// Opens the project; its file exists.
    void open();
    /// Makes these texts the sources of the project, without notifying the assembler.
    void setSources(const QList<QByteArray>& texts);
    /// Opens the project if none is open, takes the text as its only source and assembles it.
    /// @return the program was assembled
    bool run(const QByteArray& source, nsModAsmFe::ModAsmFe::eAssembleEvent_t event = nsModAsmFe::ModAsmFe::eEventNone);
    /// Keys of all errors since the last run began.
    QStringList errors() const { return msg.keys(ModMsgHookIf::eMsgError); }
    QStringList warnings() const { return msg.keys(ModMsgHookIf::eMsgWarning); }
    /// The calls of a run without those that a test does not care for.
    QStringList callsStartingWith(const QString& prefix) const { return calls.filter(QRegExp('^' + prefix)); }
    bool actionEnabled(nsModAsmFe::AsmFeActions::eAction_t action);

private:
    QTemporaryDir m_dir;

public:
    QStringList calls;
    LoggingMsgHook msg{&calls};
    LoggingNaviHook navi{&calls};
    LoggingSyscallHook syscall{&calls};
    LoggingEditorHook editor{&calls};
    FakePrjHook prj;
    FakeSourcesHook sources;
    FakeGuiHook gui;
    FakeActionHook action;
    FakeBackend be{&calls};
    nsModAsmFe::ModAsmFe asmFe;
};
