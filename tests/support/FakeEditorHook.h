#pragma once

#include "EditorMemPageAddrMap.h"
#include "EditorSupportMenu.h"
#include "ModEditorHookIf.h"
#include "ModEditorPluginIf.h"

#include <QRegExp>
#include <QUrl>

/// Stands in for the editor: it has no documents, and an insertion menu if a test gives it one. What a test wants to
/// see of it, a class derived from this one records.
class FakeEditorHook : public ModEditorHookIf
{
public:
    void registerPlugin(ModEditorPluginIf* plugin) override { setHook(plugin, this); }
    void unregisterPlugin(ModEditorPluginIf* plugin) override { setHook(plugin, nullptr); }
    void registerPlugin(ModEditorPluginIfAssembler* plugin) override { setHook(plugin, this); }
    void unregisterPlugin(ModEditorPluginIfAssembler* plugin) override { setHook(plugin, nullptr); }
    void registerPlugin(ModEditorPluginIfInterMod* plugin) override { setHook(plugin, this); }
    void unregisterPlugin(ModEditorPluginIfInterMod* plugin) override { setHook(plugin, nullptr); }
    void registerPlugin(ModEditorPluginIfSimulator* plugin) override { setHook(plugin, this); }
    void unregisterPlugin(ModEditorPluginIfSimulator* plugin) override { setHook(plugin, nullptr); }

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
    void setCursorToLine(QString, QString, int) override {}
    void setCursorToLine(QString, int) override {}
    void setCursorToLine(QUrl) override {}
    bool cursorLine(QString*, int*) override { return false; }
    void clearLineHighlited() override {}
    void setLineHighlighted(QUrl) override {}
    void setLineHighlighted(QString, int) override {}
    void clearHighlighter() override {}
    void configHighlighterAddRegExp(eHighlightRule_t, QRegExp) override {}
    void setTabIndent(int) override {}
    void setMemPageAddrMap(nsModEditor::EditorMemPageAddrMap* map) override { delete map; }
    QMap<QString, QList<int>> simBreakpoints() override { return {}; }
    bool simBreakpointsChanged() override { return false; }
    bool simStartPointer(QString*, int*) override { return false; }
    void simEn(bool) override {}
    void setTextCompletionList(QStringList&) override {}
    nsModEditor::EditorSupportMenu* supportMenu() override { return menu; }
    void markLine(QString, int) override {}
    int simBreakpointsRevision() override { return 0; }

    nsModEditor::EditorSupportMenu* menu = nullptr; ///< knob: what supportMenu() answers; not owned

private:
    template <class Plugin>
    void setHook(Plugin* plugin, ModEditorHookIf* hook)
    {
        if (plugin != nullptr)
            plugin->modEditorHook = hook;
    }
};
