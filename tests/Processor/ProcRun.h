#pragma once

#include "FakeHooks.h"

#include "ModAsmFe.h"
#include "ModProcessor.h"

#include <QHash>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

/// The real assembler with a real processor on one source of many lines; project, sources and messages are fakes.
class ProcRun
{
public:
    /// Opens a project with this processor.
    /// @param settings keys of the project file with their values
    explicit ProcRun(const QString& processor, const QHash<QString, int>& settings = {});
    ~ProcRun();
    ProcRun(const ProcRun&) = delete;
    ProcRun& operator=(const ProcRun&) = delete;

    /// Assembles the lines as the only source of the project, without a check of the interrupt vector.
    /// @return assembled
    bool assemble(const QStringList& lines);

    /// Machine words by line, counted from 0; -1 for a line without an instruction.
    const QVector<int>& words() const { return m_words; }
    /// Warnings and errors by line, as "errSyntax | Syntax error.".
    const QHash<int, QStringList>& messages() const { return m_messages; }
    /// Warnings and errors without a position, in the same form.
    const QStringList& messagesWithoutLine() const { return m_messagesWithoutLine; }
    /// The first few messages of the run, to show why it failed.
    std::string summary() const;

    FakePrjHook prj;
    FakeMsgHook msg;
    nsModProcessor::ModProcessor processor;
    nsModAsmFe::ModAsmFe asmFe;

private:
    void collectWords(int lineCount);
    void collectMessages();

    QTemporaryDir m_dir;
    FakeSourcesHook m_sources;
    QVector<int> m_words;
    QHash<int, QStringList> m_messages;
    QStringList m_messagesWithoutLine;
};
