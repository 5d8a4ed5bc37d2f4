#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

class ModScriptHookIf;

namespace nsModAsmFe {

class ModAsmFe;

/// The assembler as scripts see it, under the name "assembler".
///
/// An operation that can not be carried out is a script error, whose text says why.
class AsmScriptApi : public QObject
{
    Q_OBJECT

public:
    /// @param module not owned, must outlive this
    explicit AsmScriptApi(ModAsmFe* module);

    /// Runs the assembler on the open project, as the action does: the sources are read from the disk.
    /// @param button 1, 2: writes the output files of this button; 0: those of the save event
    /// @return the program was assembled and all files were written; the messages say what was wrong
    Q_INVOKABLE bool assemble(int button = 1);
    /// There is an assembled program.
    Q_INVOKABLE bool isAssembled() const;
    /// Output files that the last run has written, with their folders, in order.
    Q_INVOKABLE QStringList writtenFiles() const;
    /// Number of instructions of the program.
    Q_INVOKABLE int instructionCount() const;
    /// Names of all labels, in the order of the sources, with namespace and "::" where there is one.
    Q_INVOKABLE QStringList labels() const;
    /// Address of the instruction that the label stands at, within its page.
    Q_INVOKABLE int labelAddress(const QString& name) const;

private:
    bool needsProgram() const;
    void fail(const QString& text) const;

    ModAsmFe* m_module;
};

} // namespace nsModAsmFe
