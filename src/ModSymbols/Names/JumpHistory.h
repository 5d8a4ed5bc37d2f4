#pragma once

#include "TextPlace.h"

#include <QPointer>
#include <QTextCursor>

#include <vector>

namespace nsModEditor {
class EditorDocument;
}

namespace nsModSymbols {

/// The places between which the user has jumped. A place in an open document moves with the text.
class JumpHistory
{
public:
    static constexpr size_t maxCount = 200;

    /// The user leaves this place by a jump.
    void leave(nsModEditor::EditorDocument* document);
    bool canGoBack() const { return !m_back.empty(); }
    bool canGoForward() const { return !m_forward.empty(); }
    /// The place to go to. @param document that the user is in; null for none
    sTextPlace back(nsModEditor::EditorDocument* document);
    sTextPlace forward(nsModEditor::EditorDocument* document);
    /// The document is about to be deleted: its places become numbers.
    void documentClosing(const nsModEditor::EditorDocument* document);
    void clear();

private:
    struct sStop
    {
        sTextPlace place;
        QPointer<nsModEditor::EditorDocument> document;
        QTextCursor cursor; ///< null for a document that is not open

        sTextPlace now() const;
    };

    static bool stopOf(nsModEditor::EditorDocument* document, sStop* stop);
    static sTextPlace move(std::vector<sStop>* from, std::vector<sStop>* to, nsModEditor::EditorDocument* document);

    std::vector<sStop> m_back;
    std::vector<sStop> m_forward;
};

} // namespace nsModSymbols
