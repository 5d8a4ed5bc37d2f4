#pragma once

#include <QString>
#include <QStringList>

class ModEditorHookIf;

namespace nsModEditor {
class EditorSupportMenu;
}

namespace nsModAsmFe {

class AsmRunListener;
class Assembler;

/// What the editor gets from the assembler: highlighting rules, the insertion menu, words for completion and addresses.
///
/// Each operation does nothing without an editor.
class AsmEditorFeed
{
public:
    /// @param assembler read: words of the processor and the program
    /// @param listener is notified of progress in long lists
    AsmEditorFeed(Assembler& assembler, AsmRunListener& listener);

    // Each takes the editor's hook, which may be null.
    /// The part of the insertion menu that is the same for all programs.
    void setupSupportMenuBasic(ModEditorHookIf* editor);
    /// The names of the program. @param processorDefine empty without a processor
    void setupSupportMenuDynamics(ModEditorHookIf* editor, const QString& processorDefine);
    /// Registers and banks.
    void setupSupportMenuHardware(ModEditorHookIf* editor);
    void setHighlighter(ModEditorHookIf* editor);
    void setupTextCompleter(ModEditorHookIf* editor);
    void setupMemPageAddrMap(ModEditorHookIf* editor, QStringList files);

private:
    void setupSupportMenuNames(nsModEditor::EditorSupportMenu* menu, const QString& title, const QStringList& names,
                               QStringList* shown);

    Assembler& m_assembler;
    AsmRunListener& m_listener;
    QStringList m_menuLabels; ///< names in the insertion menu
    QStringList m_menuDefines;
};

} // namespace nsModAsmFe
