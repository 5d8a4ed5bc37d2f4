#pragma once

#include "ProgramImage.h"
#include "ProgramLayout.h"

#include <QByteArray>

namespace nsImport {

/// A source of the result.
struct ImportSource
{
    QString name; ///< path relative to the project
    QByteArray text;
    QVector<int> statements; ///< by line, from 0 on: the statement that it comes from; -1: none
};

/// Writes the sources of the result.
class ProgramWriter
{
public:
    /// Both not owned.
    ProgramWriter(const ForeignProgram& program, const ProgramLayout& layout);

    /// @param replaceBroken what has no counterpart becomes a NOP, to see whether all others are right
    QVector<ImportSource> write(bool replaceBroken) const;
    /// The words that the sources must become.
    ProgramImage image() const;

private:
    QString sourceName(const LayoutSource& source, QStringList* taken) const;
    QStringList knownConstants() const;
    QString fillerText() const;
    quint32 fillerWord(int address) const;

    const ForeignProgram& m_program;
    const ProgramLayout& m_layout;
};

} // namespace nsImport
