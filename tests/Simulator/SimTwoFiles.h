#pragma once

#include "QtPrinters.h"
#include "SimWindow.h"

#include "EditorConfig.h"

#include <QPlainTextEdit>
#include <QTextBlock>

/// The window with a simulator on a program of two sources, "main.psm" and "sub.psm".
class SimTwoFiles : public SimWindow
{
protected:
    /// @return assembled
    bool openTwo(const QStringList& mainLines, const QStringList& subLines)
    {
        writeSource(mainLines);
        writeFile("sub.psm", (subLines.join('\n') + '\n').toLatin1());
        QByteArray text = projectText("XPBlze3", {});
        text.replace("<srcFiles>main.psm</srcFiles>", "<srcFiles>main.psm:sub.psm</srcFiles>");
        const QString project = writeFile("case.nalvo", text);
        if (window == nullptr)
            makeWindow();
        return module<nsModPrj::ModPrj>()->openPrj(project) && assemble();
    }
    /// The same with the simulator enabled.
    bool startTwo(const QStringList& mainLines, const QStringList& subLines)
    {
        if (!openTwo(mainLines, subLines))
            return false;
        trigger(Action::eActionEnable);
        return sim() != nullptr;
    }
    QString otherSource() const { return projectDir() + "/sub.psm"; }
    using SimWindow::document;
    /// Brings a document to the front, opened if it is not yet.
    nsModEditor::EditorWidget* document(const QString& path)
    {
        return editor()->openFile(path) ? currentDocument() : nullptr;
    }
    /// The open document of the file, wherever it stands; null if there is none.
    nsModEditor::EditorWidget* openDocument(const QString& path) const
    {
        for (nsModEditor::EditorWidget* widget : editor()->editorWidgets()) {
            if (widget->filePath() == path)
                return widget;
        }
        return nullptr;
    }
    nsModEditor::EditorWidget* currentDocument() const
    {
        return qobject_cast<nsModEditor::EditorWidget*>(
            module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs));
    }
    /// The lines that a document shows as flagged, in the colour of the settings.
    QList<int> flaggedLines(const QString& path) const
    {
        QList<int> lines;
        const nsModEditor::EditorWidget* widget = openDocument(path);
        if (widget == nullptr)
            return lines;
        const QColor color = dynamic_cast<nsModEditor::EditorConfig*>(editor())->highlightBgColor;
        for (const QTextEdit::ExtraSelection& selection : widget->extraSelections()) {
            if (selection.format.background().color() == color)
                lines.append(selection.cursor.blockNumber());
        }
        return lines;
    }
};
