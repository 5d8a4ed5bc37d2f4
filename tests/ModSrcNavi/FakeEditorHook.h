#pragma once

#include "EditorSupportMenu.h"
#include "ModEditorHookIf.h"
#include "ModEditorPluginIf.h"

#include <QRegExp>
#include <QUrl>

#include <functional>

/// Stands in for the editor: records where the cursor was sent.
class FakeEditorHook : public ModEditorHookIf
{
public:
    struct Cursor
    {
        QString path;
        QString lineRef;
        int line;
    };

    void registerPlugin(ModEditorPluginIf* plugin) override { plugin->modEditorHook = this; }
    void unregisterPlugin(ModEditorPluginIf* plugin) override { plugin->modEditorHook = nullptr; }
    void registerPlugin(ModEditorPluginIfAssembler*) override {}
    void unregisterPlugin(ModEditorPluginIfAssembler*) override {}
    void registerPlugin(ModEditorPluginIfInterMod*) override {}
    void unregisterPlugin(ModEditorPluginIfInterMod*) override {}
    void registerPlugin(ModEditorPluginIfSimulator*) override {}
    void unregisterPlugin(ModEditorPluginIfSimulator*) override {}
    void newFile(QString) override {}
    bool openFile(QString) override { return false; }
    void reloadAllFiles() override {}
    void reloadFile() override {}
    bool selectFile(QString) override { return false; }
    void saveAllFiles() override {}
    bool saveFile() override { return false; }
    bool saveFileAs() override { return false; }
    bool saveFileAs(QString) override { return false; }
    void closeAllFiles() override {}
    void closeOtherFiles() override {}
    void closeFile() override {}
    void printFile() override {}
    void setCursorToLine(QString path, QString lineRef, int line) override
    {
        if (whenCursor)
            whenCursor();
        cursors.append({path, lineRef, line});
    }
    void setCursorToLine(QString path, int line) override { setCursorToLine(path, QString(), line); }
    void setCursorToLine(QUrl) override {}
    bool cursorLine(QString*, int*) override { return false; }
    void clearLineHighlited() override {}
    void setLineHighlighted(QUrl) override {}
    void setLineHighlighted(QString, int) override {}
    void clearHighlighter() override {}
    void configHighlighterAddRegExp(eHighlightRule_t, QRegExp) override {}
    void setTabIndent(int) override {}
    void setMemPageAddrMap(nsModEditor::EditorMemPageAddrMap*) override {}
    QMap<QString, QList<int>> simBreakpoints() override { return {}; }
    bool simBreakpointsChanged() override { return false; }
    bool simStartPointer(QString*, int*) override { return false; }
    void simEn(bool) override {}
    void markLine(QString, int) override {}
    void setTextCompletionList(QStringList&) override {}
    nsModEditor::EditorSupportMenu* supportMenu() override { return nullptr; }
    int simBreakpointsRevision() override { return 0; }

    QList<Cursor> cursors;
    std::function<void()> whenCursor; ///< knob: what happens inside of a call, before it uses its arguments
};
