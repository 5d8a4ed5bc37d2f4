#pragma once

#include <QJsonObject>
#include <Qt>

namespace nsModEditor {

class EditorWidget;
class OpenDocuments;

/// Documents whose page shows two places of their text.
class SplitViews
{
public:
    /// @param documents not owned
    explicit SplitViews(const OpenDocuments* documents)
        : m_documents(documents)
    {
    }

    /// Shows a second view, beside (Qt::Horizontal) or below (Qt::Vertical) the present one. A page that is split
    /// already changes to this direction.
    void split(EditorWidget* widget, Qt::Orientation orientation) const;
    /// Shows one view only, that in which the user works.
    void unsplit(EditorWidget* widget) const;

    /// How the page is split, and where the second view is; empty for a page that is not.
    QJsonObject stateOf(const EditorWidget* widget) const;
    /// Splits the page as it was; an empty state changes nothing.
    void restore(EditorWidget* widget, const QJsonObject& state) const;

private:
    const OpenDocuments* m_documents;
};

} // namespace nsModEditor
