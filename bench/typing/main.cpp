// Keys in a source of 20,000 lines with 10,000 labels, in the whole window with an open project: how long each is
// handled, with the list of words, marks of messages and all else that follows the text.

#include "CompletionPopup.h"
#include "CompletionWords.h"
#include "EditorWidget.h"
#include "ModAsmFeHookIf.h"
#include "ModEditor.h"
#include "ModPrj.h"
#include "ModSymbols.h"
#include "Nalvo.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>
#include <QtTest>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

const int lineCount = 20000;

template <class Type>
Type* moduleOf(Nalvo* window)
{
    for (ModPluginIf* candidate : window->modules()) {
        if (Type* found = dynamic_cast<Type*>(candidate))
            return found;
    }
    return nullptr;
}

QByteArray program()
{
    QByteArray text = "#EQU limit, 26\n";
    for (int line = 1; line < lineCount; ++line) {
        if (line % 2 == 0)
            text += "label" + QByteArray::number(line / 2) + ":\tADD s1, limit ; a comment\n";
        else if (line % 400 == 1)
            text += "\tLOAD s0, missing" + QByteArray::number(line) + "\n";
        else
            text += "\tLOAD s0, 0x1F\n";
    }
    return text;
}

bool write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

double percentile(std::vector<double> times, double part)
{
    std::sort(times.begin(), times.end());
    return times.at(std::min(times.size() - 1, size_t(double(times.size()) * part)));
}

/// Milliseconds of each key, without and with the painting after it.
struct sTimes
{
    std::vector<double> handled;
    std::vector<double> painted;
};

void typeKey(QWidget* widget, Qt::Key key, const QString& text, sTimes* times)
{
    QElapsedTimer clock;
    clock.start();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(widget, &press);
    times->handled.push_back(double(clock.nsecsElapsed()) * 1e-6);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(widget, &release);
    QApplication::processEvents();
    times->painted.push_back(double(clock.nsecsElapsed()) * 1e-6);
}

void typeText(QWidget* widget, const QString& text, sTimes* times)
{
    for (QChar c : text) {
        if (c == '\n')
            typeKey(widget, Qt::Key_Return, QStringLiteral("\r"), times);
        else
            typeKey(widget, Qt::Key(c.toUpper().unicode()), QString(c), times);
    }
}

/// New lines with labels, names that open the list of words, comments, and what erases them.
sTimes typeProgram(QWidget* document)
{
    sTimes times;
    for (int round = 0; round < 60; ++round) {
        typeText(document, "\nhere" + QString::number(round) + ": load s1, 12\n", &times);
        // The list of words is open while a name is typed.
        typeText(document, "call label12", &times);
        typeKey(document, Qt::Key_Escape, QString(), &times);
        typeText(document, " ; words of a comment", &times);
        for (int i = 0; i < 6; ++i)
            typeKey(document, Qt::Key_Backspace, QStringLiteral("\b"), &times);
    }
    return times;
}

bool writeProject(const QString& source, const QString& project)
{
    return write(source, program()) &&
           write(project, "<project version=\"3\"><sources><srcFiles>main.psm</srcFiles></sources>"
                          "<ModProcessor><processor>Xilinx PicoBlaze 6</processor></ModProcessor>"
                          "<XPBlze6><memMap><pageSize>4096</pageSize></memMap></XPBlze6></project>");
}

/// Milliseconds of the list of words after a run.
struct sAfterRun_t
{
    double makeMs;    ///< at once
    double prepareMs; ///< what the window does by itself
    double firstMs;   ///< after that
};

sAfterRun_t completeAfterRun(nsModSymbols::ModSymbols* symbols)
{
    nsModSymbols::CompletionWords& words = symbols->completionWords();
    const auto timeOf = [](auto&& work) {
        QElapsedTimer clock;
        clock.start();
        work();
        return double(clock.nsecsElapsed()) * 1e-6;
    };
    const auto complete = [&] { words.wordsAt(words.placeOf(QStringLiteral("  CALL la"))); };
    words.clear();
    const double makeMs = timeOf(complete);
    symbols->asmRunEnded();
    const double prepareMs = timeOf([] {
        QApplication::processEvents();
        QApplication::processEvents();
    });
    return {makeMs, prepareMs, timeOf(complete)};
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir folder;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.filePath("settings"));
    qputenv("XDG_DATA_HOME", folder.filePath("data").toLocal8Bit());
    {
        QSettings settings(folder.filePath("settings/Brelmont/Nalvo.ini"), QSettings::IniFormat);
        settings.setValue("ModSymbols/completionEn", 1);
        settings.setValue("ModEditor/textCompleterPrefixLength", 2);
        settings.setValue("ModEditor/memPageAddrEn", 1);
    }
    QApplication application(argc, argv);
    const QString source = folder.filePath("main.psm");
    const QString project = folder.filePath("typing.nalvo");
    if (!writeProject(source, project))
        return 1;
    char name[] = "nalvo";
    char* arguments[] = {name, nullptr};
    Nalvo window(1, arguments);
    window.resize(1400, 900);
    if (!moduleOf<nsModPrj::ModPrj>(&window)->openPrj(project))
        return 1;
    auto* editor = moduleOf<nsModEditor::ModEditor>(&window);
    QElapsedTimer clock;
    clock.start();
    if (!editor->openFile(source))
        return 1;
    QApplication::processEvents();
    const double openMs = double(clock.nsecsElapsed()) * 1e-6;
    nsModEditor::EditorWidget* document = editor->editorWidgets().first();
    QApplication::setActiveWindow(&window);
    document->setFocus();
    document->setCursorToLine(lineCount / 2);
    document->moveCursor(QTextCursor::EndOfLine);
    QApplication::processEvents();

    const sTimes times = typeProgram(document);
    auto* symbols = moduleOf<nsModSymbols::ModSymbols>(&window);
    nsModSymbols::CompletionWords& words = symbols->completionWords();
    std::vector<double> lookups;
    for (int i = 0; i < 50; ++i) {
        clock.start();
        const auto hits = words.wordsAt(words.placeOf(QStringLiteral("  CALL la")));
        lookups.push_back(double(clock.nsecsElapsed()) * 1e-6);
        if (hits.size() < 9000)
            return 1;
    }
    const sAfterRun_t afterRun = completeAfterRun(symbols);
    document->moveCursor(QTextCursor::Start);
    document->insertText(";\n");
    clock.start();
    symbols->names().table();
    const double tableMs = double(clock.nsecsElapsed()) * 1e-6;

    QTextStream out(stdout);
    out << "keys: " << times.handled.size() << "\n";
    out << "handled_median_ms: " << percentile(times.handled, 0.5) << "\n";
    out << "handled_p99_ms: " << percentile(times.handled, 0.99) << "\n";
    out << "painted_p99_ms: " << percentile(times.painted, 0.99) << "\n";
    out << "open_ms_20000: " << openMs << "\n";
    out << "completion_ms_10000: " << percentile(lookups, 0.99) << "\n";
    out << "completion_after_run_ms_10000: " << afterRun.firstMs << "\n";
    out << "completion_make_ms_10000: " << afterRun.makeMs << "\n";
    out << "completion_prepare_ms_20000: " << afterRun.prepareMs << "\n";
    out << "names_ms_20000: " << tableMs << "\n";
    out.flush();
    for (nsModEditor::EditorWidget* widget : editor->editorWidgets())
        widget->clearModified();
    // What the window owns need not be taken apart for these figures.
    std::_Exit(0);
}
