#pragma once

#include <QPointer>

class LineHighlights;

namespace nsModEditor {

class EditorWidget;
class SecondView;
struct sSearch_t;

/// The views of a document: its page, and while that is split a second view of the text. What both look like.
class DocumentViews
{
public:
    /// @param page owns the object @param highlights those of the page; not owned
    DocumentViews(EditorWidget* page, LineHighlights* highlights);
    ~DocumentViews();

    /// Shows another place of the text; null without one.
    SecondView* second() const;
    /// Makes it, at the place of the page, without a parent: whoever makes it shows it. Owned by this object.
    SecondView* makeSecond();
    void dropSecond();
    /// The two views change places on the screen and in the text, so that the user goes on in the other one. It is the
    /// page in which the user works, always.
    void exchange();

    /// What looks the same in both views has changed.
    void takeLook();
    /// Marks have changed.
    void updateMargins();
    /// Marks what the expression finds; an empty one marks nothing.
    void setHits(const sSearch_t& search);
    /// Flags the line; one that there is not takes the flag away.
    void flag(int line);
    /// Lines were hidden or shown.
    void followFolds();

private:
    EditorWidget* m_page;
    LineHighlights* m_highlights;
    QPointer<SecondView> m_second;
};

} // namespace nsModEditor
