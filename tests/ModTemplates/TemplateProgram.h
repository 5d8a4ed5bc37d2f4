#pragma once

#include "FakeMsgHook.h"

#include "ModAsmFe.h"
#include "ModPrj.h"
#include "ModProcessor.h"
#include "ModSources.h"

#include <QStringList>
#include <QTemporaryDir>

/// A template file: what its free text says, and what it inserts.
struct TemplateFile
{
    explicit TemplateFile(const QString& filePath);

    /// The template file of a name that is for a processor; the path is empty if there is none.
    static TemplateFile named(const QString& name, const QString& processor);
    /// All template files that are shipped, in sorted order.
    static QStringList all();

    /// A complete source around the inserted text, as the free text describes.
    QString source() const;

    QString path;
    QStringList processors;
    QString kind;         ///< "program", "routines", "interrupt" or "start"
    QStringList routines; ///< with their namespaces
    QStringList menuItems;
    QString inserted;
};

/// A source, assembled with the real modules.
class TemplateProgram
{
public:
    TemplateProgram(const QString& source, const QString& processor, bool needsVector);
    ~TemplateProgram();

    bool isAssembled() { return m_asmFe.isAssembled(); }
    /// All errors and warnings, one line each.
    QStringList complaints() const;
    /// The first instruction of a routine, or null.
    nsModAsmFe::Opcode* entry(const QString& routine);
    nsModAsmFe::OpcodeList* opcodes() { return m_asmFe.opcodeList(); }

private:
    QTemporaryDir m_dir;
    FakeMsgHook m_msg;
    nsModPrj::ModPrj m_prj;
    nsModSources::ModSources m_sources;
    nsModAsmFe::ModAsmFe m_asmFe;
    nsModProcessor::ModProcessor m_processor;
};
