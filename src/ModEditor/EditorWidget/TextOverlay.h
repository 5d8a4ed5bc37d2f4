#pragma once

#include "TextSearch.h"

class QPainter;

namespace nsModEditor {

class SourceEdit;

/// What a document shows above its text: the ruler, the pair of brackets at the cursor, the hits of a search.
class TextOverlay
{
public:
    /// @param editor not owned
    explicit TextOverlay(SourceEdit* editor);

    /// Where the ruler stands, in characters from the start of the line; 0 for none.
    void setRulerColumn(int column);
    /// Marks what the search finds; one without a text marks nothing.
    void setHits(const sSearch_t& search);
    const sSearch_t& hits() const { return m_hits.search(); }

    void paint(QPainter* painter) const;

private:
    void paintRuler(QPainter* painter) const;
    void paintBrackets(QPainter* painter) const;
    void paintHits(QPainter* painter) const;

    SourceEdit* m_editor;
    int m_rulerColumn = 0;
    TextSearch m_hits;
    mutable bool m_takesLong = false; ///< the search: its hits are not marked any more
};

} // namespace nsModEditor
