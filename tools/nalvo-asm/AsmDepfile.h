#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace nsModAsmFe {
class AsmFeFileHndlr;
struct AsmProgram;
} // namespace nsModAsmFe

namespace nsNalvoAsm {

/// What the written outputs of a run were made of: the project file, its sources, the templates of these outputs.
/// @param project path of its file
QStringList inputsOf(const QString& project, const nsModAsmFe::AsmFeFileHndlr& files,
                     const nsModAsmFe::AsmProgram& program);

/// A rule for make that the targets depend on the inputs, and an empty rule for each input, so that make can go on
/// where one of them was removed and is not needed any more. Ninja reads it as well.
class AsmDepfile
{
public:
    /// @param targets, inputs as they stand in the rule: relative to the folder in which make runs, or absolute. Each
    /// counts once.
    AsmDepfile(const QStringList& targets, const QStringList& inputs);

    /// A name that no rule can hold, whatever stands before its characters; empty if there is none.
    QString impossibleName() const;
    QByteArray text() const;

private:
    QStringList m_targets;
    QStringList m_inputs;
};

} // namespace nsNalvoAsm
