#pragma once

class QString;

namespace nsModEditor {

class EditorWidget;

/// Makes and removes the pages of the documents, with all that knows of them.
class DocumentPages
{
public:
    virtual ~DocumentPages() = default;

    /// A document without a text. @param path of its file, may be empty. @return owned by the pages
    virtual EditorWidget* newEditorWidget(const QString& path) = 0;
    /// Deletes the document.
    virtual void removeEditorWidget(EditorWidget* widget) = 0;
};

} // namespace nsModEditor
