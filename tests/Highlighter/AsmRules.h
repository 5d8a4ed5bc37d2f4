#pragma once

#include "EditorSyntaxHighlighterConfig.h"
#include "ProcRun.h"
#include "RecordingHooks.h"

#include <QTextCharFormat>

const char* const highlightProcessors[] = {"Xilinx PicoBlaze 3", "Xilinx PicoBlaze 6", "Lattice Mico8 v3.x"};

/// The editor's usual format of a kind of rule.
inline QTextCharFormat usualFormat(ModEditorHookIf::eHighlightRule_t rule)
{
    struct Look
    {
        int weight; ///< -1 for none
        QColor color;
    };
    static const Look looks[] = {
        {75, Qt::darkGreen},  {75, Qt::black},      {75, Qt::darkBlue},   {75, Qt::darkMagenta}, {75, Qt::blue},
        {75, Qt::darkYellow}, {75, QRgb(0xF56D05)}, {75, Qt::black},      {0, Qt::darkGray},     {0, Qt::darkRed},
        {0, Qt::darkRed},     {75, Qt::darkGray},   {-1, QRgb(0xC18A46)}, {-1, Qt::darkRed},     {75, Qt::black},
    };
    const Look& look = looks[rule];
    QTextCharFormat format;
    if (look.weight >= 0)
        format.setFontWeight(look.weight);
    format.setForeground(look.color);
    return format;
}

/// An editor that puts what the assembler gives it into a list of rules.
class RuleRecorder : public RecordingEditorHook
{
public:
    explicit RuleRecorder(nsModEditor::EditorSyntaxHighlighterConfig* config)
        : RecordingEditorHook(&m_log)
        , m_config(config)
    {
    }
    void clearHighlighter() override { m_config->clear(); }
    void configHighlighterAddRegExp(eHighlightRule_t rule, QRegExp regExp) override
    {
        m_config->addRule(regExp, usualFormat(rule));
    }

private:
    QStringList m_log;
    nsModEditor::EditorSyntaxHighlighterConfig* m_config;
};

/// Fills the list with the rules of the assembler for a processor and a program with two IO devices.
/// @return the devices are among the rules
inline bool setAsmRules(const QString& processor, nsModEditor::EditorSyntaxHighlighterConfig* config)
{
    ProcRun run(processor);
    run.assemble({" #SET IODEV::screen::EN, TRUE", " #SET IODEV::screen::SIZE, 4", " #SET IODEV::screen::VALUE, 1",
                  " #SET IODEV::keys_2::EN, TRUE", " #SET IODEV::keys_2::SIZE, 4", " #SET IODEV::keys_2::VALUE, 1",
                  " NOP"});
    RuleRecorder recorder(config);
    run.asmFe.modEditorHook = &recorder;
    run.asmFe.prjOpen();
    run.asmFe.modEditorHook = nullptr;
    for (const auto& rule : config->rules()) {
        if (rule.first.pattern().startsWith("::\\b") && rule.first.pattern().contains("keys_2"))
            return true;
    }
    return false;
}
