#pragma once

#include "MainWindowFixture.h"

#include "AsmFeFileHndlr.h"
#include "EditorWidget.h"
#include "ModAsmFe.h"
#include "ModEditor.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"
#include "ModProcessor.h"
#include "Opcode.h"
#include "OpcodeList.h"
#include "ProcShell.h"
#include "ProcSim.h"
#include "ProcSimCallStackData.h"
#include "ProcSimClock.h"
#include "ProcSimCoreData.h"
#include "ProcSimPorts.h"

#include <QAction>
#include <QTextBlock>

/// The whole window with a project of one source, and a simulator on it.
class SimWindow : public MainWindowFixture
{
protected:
    using Action = nsProc::ProcActionsSim;

    SimWindow()
    {
        writeSetting("ModGui/width", "1400");
        writeSetting("ModGui/height", "900");
    }
    ~SimWindow() override
    {
        if (window == nullptr)
            return;
        for (nsModEditor::EditorWidget* widget : editor()->editorWidgets())
            widget->clearModified();
        closeWindow();
    }

    /// Opens the window on a project with this source.
    /// @param processor "XPBlze3", "XPBlze6" or "LMico8v3x"
    /// @return assembled
    bool open(const QString& processor, const QStringList& lines, const QHash<QString, QString>& settings = {})
    {
        writeSource(lines);
        const QString project = writeFile("case.nalvo", projectText(processor, settings));
        if (window == nullptr)
            makeWindow();
        return module<nsModPrj::ModPrj>()->openPrj(project) && assemble();
    }
    /// The same with the simulator enabled.
    bool start(const QString& processor, const QStringList& lines, const QHash<QString, QString>& settings = {})
    {
        if (!open(processor, lines, settings))
            return false;
        trigger(Action::eActionEnable);
        return sim() != nullptr;
    }
    static QByteArray projectText(const QString& processor, const QHash<QString, QString>& settings)
    {
        const QHash<QString, QString> names = {
            {"XPBlze3", "Xilinx PicoBlaze 3"}, {"XPBlze6", "Xilinx PicoBlaze 6"}, {"LMico8v3x", "Lattice Mico8 v3.x"}};
        QString text =
            "<project version=\"3\"><sources><srcFiles>main.psm</srcFiles></sources><ModProcessor><processor>" +
            names.value(processor) + "</processor></ModProcessor><" + processor + ">";
        for (auto it = settings.cbegin(); it != settings.cend(); ++it)
            text += '<' + it.key() + '>' + it.value() + "</" + it.key() + '>';
        text += "</" + processor + "><AsmFe><behavior><intVector>2</intVector></behavior></AsmFe></project>";
        return text.toUtf8();
    }
    void writeSource(const QStringList& lines) { writeFile("main.psm", (lines.join('\n') + '\n').toLatin1()); }
    QString source() const { return projectDir() + "/main.psm"; }
    bool assemble()
    {
        asmFe()->behaviorChkIntVector = 2;
        asmFe()->assemble(nsModAsmFe::ModAsmFe::eEventNone);
        return asmFe()->isAssembled();
    }

    nsModAsmFe::ModAsmFe* asmFe() const { return module<nsModAsmFe::ModAsmFe>(); }
    nsModEditor::ModEditor* editor() const { return module<nsModEditor::ModEditor>(); }
    nsProc::ProcShell* shell() const
    {
        return dynamic_cast<nsProc::ProcShell*>(module<nsModProcessor::ModProcessor>()->currentProcessor());
    }
    nsProc::ProcSim* sim() const { return shell() != nullptr ? shell()->sim() : nullptr; }
    QAction* action(Action::eAction_t which) const
    {
        if (shell() == nullptr || shell()->actionsSim() == nullptr)
            return nullptr;
        for (QAction* candidate : shell()->actionsSim()->actions()) {
            if (!candidate->isSeparator() && candidate->data().toInt() == int(which))
                return candidate;
        }
        return nullptr;
    }
    void trigger(Action::eAction_t which) const
    {
        ASSERT_NE(action(which), nullptr);
        EXPECT_TRUE(action(which)->isEnabled()) << "action " << which;
        action(which)->trigger();
    }
    /// The actions that can be used, by their values.
    QString enabledActions() const
    {
        QStringList values;
        for (int value = 0; value < 12; ++value) {
            if (shell()->actionsSim()->isEnabled(Action::eAction_t(value)))
                values.append(QString::number(value));
        }
        return values.join(' ');
    }

    nsModEditor::EditorWidget* document()
    {
        if (!editor()->openFile(source()))
            return nullptr;
        return qobject_cast<nsModEditor::EditorWidget*>(
            module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs));
    }
    /// Line of the next instruction, counted from 0; -1 without one.
    int pcLine() const { return sim()->programCounter() != nullptr ? sim()->programCounter()->srcRef.lineNo : -1; }
    int reg(int index) const { return sim()->core()->regValue(sim()->core()->bank(), index); }
    qint64 clocks() const { return sim()->clock()->clocks; }
    /// Messages that begin with the text.
    int messages(const QString& start) const
    {
        int count = 0;
        for (const QString& text : messageTexts())
            count += int(text.startsWith(start));
        return count;
    }
};
