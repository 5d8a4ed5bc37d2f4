#pragma once

#include "TextSearch.h"

#include <QCoreApplication>
#include <QString>
#include <QTextCursor>
#include <QTimer>

class ModFindReplacePluginIf;
class ModGuiPluginIf;

namespace nsModEditor {

class EditorWidget;
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
        bool regExp = false;
        bool inSelection = false;
    };

    /// Reads the strip and the documents, writes the current document and the status bar. Not owned.
    EditorFinder(const ModFindReplacePluginIf* strip, const ModGuiPluginIf* gui, const OpenDocuments* documents);

    /// One search. If the text is not found, only a message is shown; the next search continues at the other end.
    /// @param configChanged the strip has changed since the last call
    void find(bool configChanged, bool backward);
    /// Replaces what is selected if it is a hit, and goes to the next one.
    void replace(bool configChanged);
    void replaceAll(bool configChanged);

    /// Marks and counts the hits of what stands in the strip, and shows the first one after the cursor, which stays
    /// where it is.
    void preview();
    /// Counts again, after the cursor has moved or the text has changed.
    void showCount() const;
    /// The text of a document has changed: counts again when the user pauses.
    void noteChange();
    /// Takes the marks away.
    void end();

private:
    void setFindParameter();
    static sSearch_t searchOf(const sFindParameter_t& parameter);
    sFindParameter_t stripParameter() const;
    void takeRange(const sFindParameter_t& parameter);
    bool hasRange(const EditorWidget* widget) const;
    /// The strip asks for more than the text edit's own search can.
    bool isExtended(const EditorWidget* widget) const;
    bool search(EditorWidget* widget, bool backward, bool fromEdge, SearchTime* time) const;
    QTextCursor hitFrom(EditorWidget* widget, const TextSearch& search, int position, bool backward,
                        SearchTime* time) const;
    static QString notFoundText(const SearchTime& time);
    void replaceHit(EditorWidget* widget) const;
    void replaceAllHits(EditorWidget* widget) const;
    void say(const QString& text) const;

    const ModFindReplacePluginIf* m_strip;
    const ModGuiPluginIf* m_gui;
    const OpenDocuments* m_documents;
    sFindParameter_t m_findParameter;
    QTimer m_pause;
    bool m_isPreviewing = false; ///< the strip is open for a document
    QTextCursor m_range;         ///< what the search is restricted to; null for the whole document
};

} // namespace nsModEditor
