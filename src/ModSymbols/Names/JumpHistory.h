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

    /// A place to come back to.
    struct sStop
    {
        sTextPlace place; ///< null: there is nothing to come back to
        QPointer<nsModEditor::EditorDocument> document;
        QTextCursor cursor; ///< null for a document that is not open

        sTextPlace now() const;
    };
    enum eWay_t { wayBack, wayForward };

    /// Where the user is. It is asked for before a jump, which may lead nowhere, and handed over after it.
    /// @param document may be null
    static sStop here(nsModEditor::EditorDocument* document);
    /// A jump has led away from there.
    void leave(const sStop& from);
    bool canGoBack() const { return !m_back.empty(); }
    bool canGoForward() const { return !m_forward.empty(); }
    /// Takes the next place to go to from the list: if it can not be shown any more, nobody wants it again.
    sTextPlace take(eWay_t way);
    /// The user has come to the place that was taken.
    /// @param from where the user was
    void arrive(eWay_t way, const sStop& from);
    /// The document is about to be deleted: its places become numbers.
    void documentClosing(const nsModEditor::EditorDocument* document);
    void clear();

private:
    static void push(std::vector<sStop>* stops, const sStop& stop);

    std::vector<sStop> m_back;
    std::vector<sStop> m_forward;
};

} // namespace nsModSymbols
