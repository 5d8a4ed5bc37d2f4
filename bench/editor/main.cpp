// A document of 20,000 lines in its editor: what each key and each command costs until all is painted.

#include "EditorMemPageAddrMap.h"
#include "EditorSyntaxHighlighterConfig.h"
#include "EditorWidget.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTextBlock>
#include <QTextStream>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <vector>

namespace {

using nsModEditor::EditorMemPageAddrMap;
using nsModEditor::EditorSyntaxHighlighterConfig;
using nsModEditor::EditorWidget;

QString program(int lineCount)
{
    QString text;
    for (int line = 0; line < lineCount; ++line)
        text += QString("label%1:\tLOAD s%2, 0x%3 ; word%4\n").arg(line).arg(line % 16).arg(line % 256).arg(line % 300);
    return text;
}

void setRules(EditorSyntaxHighlighterConfig* config)
{
    QTextCharFormat format;
    format.setFontWeight(QFont::Bold);
    for (int word = 0; word < 250; ++word)
        config->addKeyword(QString("word%1").arg(word), format);
    config->addRule(QString(";[^\n]*"), format);
    config->addRule(QString("\\b0[xX]{1}[0-9A-Fa-f]+\\b"), format);
}

/// Milliseconds of a call until all is painted; the median.
double paintedAfter(const std::function<void()>& call, int rounds = 21)
{
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        QApplication::processEvents();
        QElapsedTimer clock;
        clock.start();
        call();
        QApplication::processEvents();
        times.push_back(double(clock.nsecsElapsed()) * 1e-6);
    }
    std::sort(times.begin(), times.end());
    return times.at(times.size() / 2);
}

/// A document with a mark of each kind on every line, near its end.
class Document
{
public:
    explicit Document(int lineCount)
        : m_files{"/p/a.psm"}
        , m_map(&m_files)
    {
        setRules(&m_config);
        editor.setSyntaxHighlighterConfig(&m_config);
        editor.setFont(QFont("DejaVu Sans Mono", 9));
        editor.resize(900, 700);
        editor.show();
        editor.setSelectionHighlightEn(true);
        nsModEditor::sEditorComfort_t comfort;
        comfort.indentWithBlanks = true;
        comfort.smartHomeEn = true;
        comfort.showBlanksEn = true;
        comfort.rulerColumn = 100;
        comfort.marksFollowTextEn = true;
        editor.setComfort(comfort);
        const QString text = program(lineCount);
        openMs = paintedAfter([&] { editor.setText(text); }, 1);
        for (int line = 0; line < lineCount; ++line) {
            editor.setSimBreakpoint(line);
            editor.setBookmark(line);
            m_map.addItem(0, line, line);
        }
        editor.setFilePath("/p/a.psm");
        editor.setMemPageAddrEn(true);
        editor.setMemPageAddrMap(&m_map);
        editor.setCursorToLine(lineCount - 100);
    }
    ~Document() { editor.setMemPageAddrMap(nullptr); }

    double key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        return paintedAfter([&] { QTest::keyClick(&editor, key, modifiers); });
    }

    EditorWidget editor;
    double openMs = 0;

private:
    EditorSyntaxHighlighterConfig m_config;
    QStringList m_files;
    EditorMemPageAddrMap m_map;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    QTextStream out(stdout);
    Document small(5000);
    Document large(20000);
    const double letter = large.key(Qt::Key_A);
    out << "open_ms_20000: " << large.openMs << "\n";
    out << "open_growth: " << large.openMs / small.openMs / 4 << "\n";
    out << "letter_ms: " << letter << "\n";
    out << "letter_growth: " << letter / small.key(Qt::Key_A) << "\n";
    out << "line_break_ms: " << large.key(Qt::Key_Return) << "\n";
    out << "line_down_ms: " << large.key(Qt::Key_Down) << "\n";
    out << "page_up_ms: " << large.key(Qt::Key_PageUp) << "\n";
    out << "select_ms: " << large.key(Qt::Key_Right, Qt::ShiftModifier) << "\n";
    const double selectAll = paintedAfter([&] {
        large.editor.moveCursor(QTextCursor::Start);
        large.editor.selectAll();
    });
    out << "select_all_ms: " << selectAll << "\n";
    out << "comment_all_ms: " << paintedAfter([&] { large.editor.commentOut(); }, 1) << "\n";
    out << "undo_all_ms: " << paintedAfter([&] { large.editor.undo(); }, 1) << "\n";
    out << "replace_all_ms: " << paintedAfter([&] { large.editor.replaceAll("LOAD", "STORE", true, true); }, 1) << "\n";
    return 0;
}
