#pragma once

#include <QString>
#include <QStringList>

namespace nsHouse {

/// How the build calls the compiler, and what the compiler says of other texts with the same options.
class CompileCommands
{
public:
    /// Reads what the build has written down.
    CompileCommands();

    /// All sources of programs that the build compiles, absolute.
    const QStringList& sources() const { return m_sources; }
    /// These and those of the tests.
    const QStringList& allSources() const { return m_allSources; }
    /// The whole call for a source.
    QString command(const QString& source) const;
    /// Compiler, language, definitions and include paths for a source; without precompiled headers. Empty if it is not
    /// built.
    QStringList options(const QString& source) const;

private:
    QStringList m_sources;
    QStringList m_allSources;
    QStringList m_commands;
};

/// What the compiler says of a file with this text; empty where it compiles.
QString compilerOutput(QStringList options, const QString& text);

} // namespace nsHouse
