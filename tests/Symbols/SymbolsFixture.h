#pragma once

#include "AsmFeConfig.h"
#include "AsmFeFileHndlr.h"
#include "AsmFeMsgHndlr.h"
#include "AsmProjectInfo.h"
#include "Assembler.h"
#include "Opcode.h"
#include "ProcTables.h"
#include "Processor.h"
#include "SymbolReader.h"
#include "SymbolRename.h"
#include "SymbolTable.h"

#include <QVector>

#include <memory>

/// Sources that are texts, the assembler, and the table of their names.
class Sources
{
public:
    explicit Sources(const QString& processor = QStringLiteral("Xilinx PicoBlaze 3"))
        : m_messages(&m_files)
        , m_assembler(m_files, m_messages, config)
    {
        config.behaviorCharset = 2;
        if (const nsProc::ProcTable* table = nsProc::procTable(processor))
            m_processor = std::make_unique<nsProc::Processor>(*table);
        m_assembler.setBackend(m_processor.get());
    }
    Sources(const Sources&) = delete;
    Sources& operator=(const Sources&) = delete;

    void add(const QString& name, const QString& text) { m_sources.append({"/none/" + name, text}); }
    QVector<nsModAsmFe::sSymbolSource>& all() { return m_sources; }

    /// @return assembled
    bool assemble()
    {
        QStringList paths;
        for (const nsModAsmFe::sSymbolSource& source : m_sources) {
            m_files.setText(source.path, source.text.toLatin1());
            paths.append(source.path);
        }
        nsModAsmFe::AsmProjectInfo project;
        project.dir = "/none";
        project.fileName = "a.nalvo";
        m_assembler.charsets().resetDefaultCodec(config.defaultCharset);
        return m_assembler.run(paths, project, nsModAsmFe::AsmFeConfig::eEventNone);
    }
    nsModAsmFe::SymbolTable table() const { return m_assembler.symbols(m_sources); }
    const nsModAsmFe::AsmWords& words() const { return m_assembler.words(); }
    /// Address and word of each instruction, then the contents of all devices.
    QVector<int> image()
    {
        QVector<int> words;
        for (const nsModAsmFe::Opcode* opcode : m_assembler.program().opcodes)
            words << opcode->memAddr << opcode->instWord;
        for (const nsModAsmFe::IODev* dev : m_assembler.program().ioDevs.devices()) {
            for (unsigned int value : dev->values)
                words << int(value);
        }
        return words;
    }

    nsModAsmFe::AsmFeConfig config;

private:
    nsModAsmFe::AsmFeFileHndlr m_files;
    nsModAsmFe::AsmFeMsgHndlr m_messages;
    std::unique_ptr<nsProc::Processor> m_processor;
    nsModAsmFe::Assembler m_assembler;
    QVector<nsModAsmFe::sSymbolSource> m_sources;
};
