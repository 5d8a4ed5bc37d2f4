#pragma once

#include "FakeMsgHook.h"

#include "AsmFeConfig.h"
#include "AsmFeFileHndlr.h"
#include "AsmFeMsgHndlr.h"
#include "AsmProjectInfo.h"
#include "Assembler.h"
#include "ProcTables.h"
#include "Processor.h"

#include <QFile>
#include <QTemporaryDir>

#include <memory>

/// A text, assembled for a processor by the ground floor alone: neither modules nor a project file.
class AsmText
{
public:
    /// @param processor display name; with an unknown one, nothing assembles
    explicit AsmText(const QString& processor)
        : m_links(&m_files)
        , m_assembler(m_files, m_links, config)
    {
        msg.attach(&m_files);
        msg.attach(&m_links);
        if (const nsProc::ProcTable* table = nsProc::procTable(processor))
            m_processor = std::make_unique<nsProc::Processor>(*table);
        m_assembler.setBackend(m_processor.get());
    }
    AsmText(const AsmText&) = delete;
    AsmText& operator=(const AsmText&) = delete;

    /// Assembles the text as the only source. @return assembled
    bool assemble(const QByteArray& text)
    {
        QFile file(m_dir.filePath("main.psm"));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            return false;
        file.close();
        nsModAsmFe::AsmProjectInfo project;
        project.dir = m_dir.path();
        project.fileName = "case.nalvo";
        m_files.setPrjDir(m_dir.filePath(project.fileName));
        msg.reset();
        m_assembler.charsets().setupDefaultCodec(config.defaultCharset);
        return m_assembler.run({file.fileName()}, project, nsModAsmFe::AsmFeConfig::eEventNone);
    }

    nsModAsmFe::AsmProgram& program() { return m_assembler.program(); }
    /// Null if the name is unknown.
    nsProc::Processor* processor() { return m_processor.get(); }
    /// All errors and warnings of the run, as "line 3: errSyntax Syntax error."
    QStringList complaints() const
    {
        QStringList lines;
        for (const FakeMsgHook::Entry& entry : msg.messages()) {
            if (entry.type != ModMsgHookIf::eMsgInfo)
                lines.append(QString("line %1: %2 %3").arg(entry.line() + 1).arg(entry.key(), entry.text));
        }
        return lines;
    }

    nsModAsmFe::AsmFeConfig config; ///< knob: settings of the next run
    FakeMsgHook msg;

private:
    QTemporaryDir m_dir;
    nsModAsmFe::AsmFeFileHndlr m_files;
    nsModAsmFe::AsmFeMsgHndlr m_links;
    std::unique_ptr<nsProc::Processor> m_processor;
    nsModAsmFe::Assembler m_assembler;
};
