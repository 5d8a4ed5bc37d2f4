// How long it takes to bring 5,000 shown lines up to date after a change of selection, with the rules of the assembler;
// and how long a plain loop over all rules takes for the same.

#include "AsmRules.h"
#include "EditorSyntaxHighlighter.h"
#include "NaiveHighlighter.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QTextStream>

#include <algorithm>
#include <vector>

namespace {

const int lineCount = 5000;

/// A program in which no line comes twice.
QString program()
{
    const char* const lines[] = {
        "label_%1:                      ; state of channel %2",
        "    LOAD    s%3, 0x%4          ; next word %1",
        "    JUMP    Z, label_%1",
        "#EQU limit_%1,      %2         ; upper bound of \"channel %1\"",
        "    ADD     s%3, limit_%1      ; \\navSep \"Part %1\"",
        "#SET IODEV::screen::VALUE, 'UTF-8\"text of line %1\"",
        "    WRPRT   s%3, keys_2::status_%1",
        ";## --- part %1 --------------------------------",
    };
    QString text;
    for (int line = 0; line < lineCount; ++line) {
        QString one = lines[line % 8];
        one.replace("%1", QString::number(line));
        one.replace("%2", QString::number(line % 1000));
        one.replace("%3", QString::number(line % 16, 16).toUpper());
        one.replace("%4", QString::number(line % 256, 16));
        text += one + (line + 1 < lineCount ? "\n" : "");
    }
    return text;
}

/// Milliseconds from the new selection until the window is painted; the median.
template <class Highlighter>
double rehighlight(QPlainTextEdit* editor, Highlighter* highlighter, const QStringList& selections)
{
    std::vector<double> times;
    for (const QString& selection : selections) {
        QElapsedTimer clock;
        clock.start();
        highlighter->setSelection(selection);
        highlighter->rehighlight();
        QApplication::processEvents();
        editor->grab();
        times.push_back(double(clock.nsecsElapsed()) * 1e-6);
    }
    std::sort(times.begin(), times.end());
    return times.at(times.size() / 2);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    nsModEditor::EditorSyntaxHighlighterConfig config;
    if (!setAsmRules(highlightProcessors[1], &config))
        return 1;
    const QString text = program();
    QTextStream out(stdout);

    QPlainTextEdit editor;
    auto* highlighter = new nsModEditor::EditorSyntaxHighlighter(editor.document());
    highlighter->setSyntaxHighlighterConfig(&config);
    editor.resize(900, 700);
    editor.show();
    QElapsedTimer clock;
    clock.start();
    editor.setPlainText(text);
    out << "rules: " << config.rules().size() << "\n";
    out << "first_ms_5000: " << double(clock.nsecsElapsed()) * 1e-6 << "\n";
    // Words that occur in many lines, words that occur in one line, and no selection.
    const QStringList selections = {"LOAD", "label_8", "screen", "", "state", "s1",
                                    "part", "s[0-9]",  "x+",     "", "value", "JUMP"};
    QStringList all;
    for (int i = 0; i < 5; ++i)
        all += selections;
    const double fast = rehighlight(&editor, highlighter, all);

    QPlainTextEdit other;
    NaiveHighlighter naive(other.document(), &config);
    other.resize(900, 700);
    other.show();
    other.setPlainText(text);
    const double slow = rehighlight(&other, &naive, selections.mid(0, 4));

    out << "naive_ms_5000: " << slow << "\n";
    out << "rehighlight_ms_5000: " << fast << "\n";
    out << "speedup: " << slow / fast << "\n";
    return 0;
}
