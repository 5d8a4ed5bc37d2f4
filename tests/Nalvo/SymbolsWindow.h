#pragma once

#include "MainWindowFixture.h"
#include "ModalHelper.h"

#include "EditorWidget.h"
#include "EditorWidgetLeftMargin.h"
#include "ModAsmFe.h"
#include "ModEditor.h"
#include "ModGuiHookIf.h"
#include "ModMsgHookIf.h"
#include "ModPrj.h"
#include "ModSymbols.h"
#include "Opcode.h"
#include "QtPrinters.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>
#include <QTextBlock>

/// A project of two sources in the window, for tests of what documents know of the program.
namespace symbolsWindow {

const char* const project = "<project version=\"3\"><sources><srcFiles>main.psm:sub/other.psm</srcFiles></sources>"
                            "<ModProcessor><processor>Xilinx PicoBlaze 3</processor></ModProcessor></project>";
const char* const mainText = "#EQU limit, 26\n"
                             "#EQU twice, limit * 2\n"
                             "start: LOAD s0, limit\n"
                             "ADD s0, twice ; limit in a comment\n"
                             "CALL ns::work\n"
                             "JUMP start\n"
                             "#IFDEF nothing\n"
                             "LOAD s1, limit\n"
                             "#ENDIF\n";
const char* const otherText = "#NAMESPACE ns\n"
                              "work: LOAD s2, ::limit\n"
                              "start: JUMP start\n"
                              "RET\n"
                              "#ENDNAMESPACE\n";

} // namespace symbolsWindow

class SymbolsWindow : public MainWindowFixture
{
protected:
    using EditorWidget = nsModEditor::EditorWidget;

    SymbolsWindow()
    {
        writeSetting("ModGui/width", "1400");
        writeSetting("ModGui/height", "900");
        QDir(projectDir()).mkpath("sub");
    }
    ~SymbolsWindow() override
    {
        if (window == nullptr)
            return;
        for (EditorWidget* widget : editor()->editorWidgets())
            widget->clearModified();
    }

    void open(const QByteArray& main, const QByteArray& other)
    {
        writeFile("main.psm", main);
        writeFile("sub/other.psm", other);
        makeWindow();
        EXPECT_TRUE(module<nsModPrj::ModPrj>()->openPrj(writeFile("names.nalvo", symbolsWindow::project)));
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
        document = openFile("main.psm");
    }
    void open() { open(symbolsWindow::mainText, symbolsWindow::otherText); }

    nsModEditor::ModEditor* editor() const { return module<nsModEditor::ModEditor>(); }
    EditorWidget* openFile(const QString& name)
    {
        EXPECT_TRUE(editor()->openFile(projectDir() + '/' + name));
        EditorWidget* widget = documentOf(name);
        if (widget != nullptr)
            widget->setFocus();
        return widget;
    }
    EditorWidget* documentOf(const QString& name) const
    {
        for (EditorWidget* widget : editor()->editorWidgets()) {
            if (widget->filePath() == projectDir() + '/' + name)
                return widget;
        }
        return nullptr;
    }
    QAction* action(const QString& text) const
    {
        for (QAction* candidate : window->findChildren<QAction*>()) {
            if (candidate->text() == text)
                return candidate;
        }
        // Those of a processor do not belong to the window.
        for (const QMenu* menu : window->findChildren<QMenu*>()) {
            for (QAction* candidate : menu->actions()) {
                if (candidate->text() == text)
                    return candidate;
            }
        }
        return nullptr;
    }
    EditorWidget* current() const
    {
        return qobject_cast<EditorWidget*>(module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs));
    }
    /// Puts the cursor into the first occurrence of the text, two characters from its start.
    void setCursorInto(EditorWidget* widget, const QString& text, int nth = 0)
    {
        int pos = -1;
        for (int i = 0; i <= nth; ++i)
            pos = widget->toPlainText().indexOf(text, pos + 1);
        ASSERT_GE(pos, 0) << qPrintable(text);
        widget->setCursorPos(pos + 1);
    }
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        // A dialog has taken the focus along.
        if (QApplication::activeWindow() == nullptr) {
            window->activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
            if (current() != nullptr)
                current()->setFocus();
        }
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus != nullptr ? focus : window.get(), Qt::Key(key), modifiers);
    }
    /// From the first document to a definition in the other one, and from there back to one in the first.
    void openAndJumpTwice()
    {
        open();
        setCursorInto(document, "work");
        key(Qt::Key_F2);
        ASSERT_EQ(place(), "sub/other.psm:2 work");
        setCursorInto(current(), "limit");
        key(Qt::Key_F2);
    }
    /// File, line and selected text of the cursor: "main.psm:3 limit".
    QString place() const
    {
        const EditorWidget* widget = current();
        return widget == nullptr ? QString("none")
                                 : QStringLiteral("%1:%2 %3")
                                       .arg(QDir(projectDir()).relativeFilePath(widget->filePath()))
                                       .arg(widget->textCursor().blockNumber() + 1)
                                       .arg(widget->textCursor().selectedText());
    }
    QString statusText() const
    {
        QStringList texts{window->statusBar()->currentMessage()};
        for (const QLabel* label : window->findChildren<QLabel*>())
            texts.append(label->text());
        return texts.join('\n');
    }
    QTreeWidget* usages() const { return window->findChild<QTreeWidget*>("usages"); }
    QStringList usageRows() const
    {
        QStringList rows;
        for (int i = 0; usages() != nullptr && i < usages()->topLevelItemCount(); ++i) {
            const QTreeWidgetItem* item = usages()->topLevelItem(i);
            rows.append(item->text(0) + '|' + item->text(1) + '|' + item->text(2));
        }
        return rows;
    }
    QVector<int> words() const
    {
        QVector<int> result;
        auto* assembler = module<nsModAsmFe::ModAsmFe>();
        EXPECT_TRUE(assembler->isAssembled());
        for (const nsModAsmFe::Opcode* opcode : *assembler->opcodeList())
            result << opcode->memAddr << opcode->instWord;
        return result;
    }
    /// Renames the name at the cursor through the dialog. @return what the dialog has said against the name
    QString rename(const QString& name)
    {
        QString fault = "no dialog";
        ModalHelper answer([&](QDialog* dialog) {
            if (dialog->objectName() != "renameDialog")
                return;
            auto* edit = dialog->findChild<QLineEdit*>();
            edit->selectAll();
            QTest::keyClicks(edit, name);
            fault = dialog->findChild<QLabel*>("fault")->text();
            QTest::keyClick(edit, Qt::Key_Return);
        });
        key(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
        return fault;
    }

    EditorWidget* document = nullptr;
};
