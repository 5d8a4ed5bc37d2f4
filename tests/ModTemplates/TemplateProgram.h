#pragma once

#include "AsmText.h"

#include <QStringList>

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

/// The source around a template, assembled.
class TemplateProgram
{
public:
    TemplateProgram(const QString& source, const QString& processor, bool needsVector);

    bool isAssembled() const { return m_isAssembled; }
    /// All errors and warnings, one line each.
    QStringList complaints() const { return m_text.complaints(); }
    /// The first instruction of a routine, or null.
    nsModAsmFe::Opcode* entry(const QString& routine);
    nsModAsmFe::OpcodeList* opcodes() { return &m_text.program().opcodes; }

private:
    AsmText m_text;
    bool m_isAssembled;
};
