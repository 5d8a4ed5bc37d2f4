#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

class ModEditorPluginIf;
class ModEditorPluginIfAssembler;
class ModEditorPluginIfInterMod;
class ModEditorPluginIfSimulator;
class ModEditorPluginIfText;
class QRegExp;
class QUrl;

namespace nsModEditor {
class EditorDocument;
class EditorMemPageAddrMap;
class EditorSupportMenu;
} // namespace nsModEditor

/// The documents and what the rest of the program does with them. Served by nsModEditor::ModEditor.
///
/// Lines are counted from 0.
class ModEditorHookIf
{
public:
    /// Kind of text that a highlighting rule paints; each has a format of its own in the editor's settings.
    enum eHighlightRule_t : int {
        eHighlightRuleDirective = 0,
        eHighlightRuleCmd = 1,
        eHighlightRuleHw = 2,
        eHighlightRuleHexNumber = 3,
        eHighlightRuleDecNumber = 4,
        eHighlightRuleOctNumber = 5,
        eHighlightRuleBinNumber = 6,
        eHighlightRuleLabel = 7,
        eHighlightRuleComment = 8,
        eHighlightRuleDoc = 9,
        eHighlightRuleSeparator = 10,
        eHighlightRuleNaviCmd = 11,
        eHighlightRuleAttr = 12,
        eHighlightRuleString = 13,
        eHighlightRuleKeyWords = 14,
    };

    virtual ~ModEditorHookIf() = default;

    virtual void registerPlugin(ModEditorPluginIf* plugin) = 0;
    virtual void unregisterPlugin(ModEditorPluginIf* plugin) = 0;
    virtual void registerPlugin(ModEditorPluginIfAssembler* plugin) = 0;
    virtual void unregisterPlugin(ModEditorPluginIfAssembler* plugin) = 0;
    virtual void registerPlugin(ModEditorPluginIfInterMod* plugin) = 0;
    virtual void unregisterPlugin(ModEditorPluginIfInterMod* plugin) = 0;
    virtual void registerPlugin(ModEditorPluginIfSimulator* plugin) = 0;
    virtual void unregisterPlugin(ModEditorPluginIfSimulator* plugin) = 0;

    virtual void newFile(QString name) = 0;
    virtual bool openFile(QString path) = 0;
    virtual void reloadAllFiles() = 0;
    virtual void reloadFile() = 0;
    virtual bool selectFile(QString path) = 0;
    virtual void saveAllFiles() = 0;
    virtual bool saveFile() = 0;
    virtual bool saveFileAs() = 0;
    virtual bool saveFileAs(QString path) = 0;
    virtual void closeAllFiles() = 0;
    virtual void closeOtherFiles() = 0;
    virtual void closeFile() = 0;
    virtual void printFile() = 0;
    /// Moves the cursor to the text where the file has it exactly once, else to the line number. A name with a colon is
    /// a label: the nearest of the lines that begin with it is used.
    virtual void setCursorToLine(QString path, QString lineRef, int line) = 0;
    virtual void setCursorToLine(QString path, int line) = 0;
    /// @param url scheme "file", the line as fragment
    virtual void setCursorToLine(QUrl url) = 0;
    /// File and line of the text cursor.
    /// @return false without a current document
    virtual bool cursorLine(QString* path, int* line) = 0;
    virtual void clearLineHighlited() = 0;
    /// Opens the file, goes to the line and flags it. One line is flagged at a time, over all documents.
    virtual void setLineHighlighted(QUrl url) = 0;
    virtual void setLineHighlighted(QString path, int line) = 0;
    /// Empties the list of highlighting rules.
    virtual void clearHighlighter() = 0;
    /// Appends a rule; a later rule wins over an earlier one.
    virtual void configHighlighterAddRegExp(eHighlightRule_t rule, QRegExp regExp) = 0;
    /// @param indent tab width in characters
    virtual void setTabIndent(int indent) = 0;
    /// Takes the ownership of the map.
    virtual void setMemPageAddrMap(nsModEditor::EditorMemPageAddrMap* map) = 0;
    /// Lines with a breakpoint, by absolute path.
    virtual QMap<QString, QList<int>> simBreakpoints() = 0;
    virtual bool simBreakpointsChanged() = 0;
    virtual bool simStartPointer(QString* path, int* line) = 0;
    /// A simulator was enabled or disabled.
    virtual void simEn(bool enabled) = 0;
    virtual void setTextCompletionList(QStringList& words) = 0;
    /// The insertion menu; owned by the server.
    virtual nsModEditor::EditorSupportMenu* supportMenu() = 0;
    /// Sets the same flag as setLineHighlighted() without going to the line: page, cursor, view and focus stay. Has no
    /// effect on a file that is not open.
    virtual void markLine(QString path, int line) = 0;
    /// Changes whenever the result of simBreakpoints() may have changed. Fast enough to be called before each simulated
    /// instruction.
    virtual int simBreakpointsRevision() = 0;

    /// How a list of words that complete what is typed is to be shown.
    struct sCompletionConfig
    {
        bool comesByItself = true; ///< as the user types
        int prefixLength = 3;      ///< characters that are typed before it comes by itself
        int itemCount = 10;        ///< entries that are seen at a time
    };

    /// Adds a client; it is told about the documents that are opened from now on.
    virtual void registerPlugin(ModEditorPluginIfText*) {}
    virtual void unregisterPlugin(ModEditorPluginIfText*) {}
    /// All open documents, in the order of their creation.
    virtual QList<nsModEditor::EditorDocument*> documents() { return {}; }
    /// The document on the current page; null if there is none.
    virtual nsModEditor::EditorDocument* currentDocument() { return nullptr; }
    virtual sCompletionConfig completionConfig() { return {}; }
};
