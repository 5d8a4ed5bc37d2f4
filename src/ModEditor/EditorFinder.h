#pragma once

#include <QCoreApplication>
#include <QString>

class ModFindReplacePluginIf;
class ModGuiPluginIf;

namespace nsModEditor {

class OpenDocuments;

/// Finds and replaces in the current document what the find and replace strip asks for.
class EditorFinder
{
    Q_DECLARE_TR_FUNCTIONS(nsModEditor::EditorFinder)

public:
    /// What the find and replace strip asks for.
    struct sFindParameter_t
    {
        bool caseSensitive = false;
        bool wholeWords = false;
        bool wrapPending = false; ///< the end of the document was reached; the next search continues at the other end
        QString findString;
        QString replaceString;
    };

    /// Reads the strip and the documents, writes the current document and the status bar. Not owned.
    EditorFinder(const ModFindReplacePluginIf* strip, const ModGuiPluginIf* gui, const OpenDocuments* documents)
        : m_strip(strip)
        , m_gui(gui)
        , m_documents(documents)
    {
    }

    /// One search. If the text is not found, only a message is shown; the next search continues at the other end.
    /// @param configChanged the strip has changed since the last call
    void find(bool configChanged, bool backward);
    /// Replaces what is selected if it is a hit, and goes to the next one.
    void replace(bool configChanged);
    void replaceAll(bool configChanged);

private:
    void setFindParameter();

    const ModFindReplacePluginIf* m_strip;
    const ModGuiPluginIf* m_gui;
    const OpenDocuments* m_documents;
    sFindParameter_t m_findParameter;
};

} // namespace nsModEditor
