#pragma once

#include <QPlainTextDocumentLayout>

namespace nsModEditor {

/// The layout of a document, which stands questions while the document changes.
///
/// Inside an edit block the document tells the layout nothing. A text edit asks all the same, for instance where the
/// cursor has come to, and follows the answer into lines that the text no longer has.
class EditorDocumentLayout : public QPlainTextDocumentLayout
{
    Q_OBJECT

public:
    explicit EditorDocumentLayout(QTextDocument* document);

    /// @param unsettled an edit block stays open
    void setUnsettled(bool unsettled) { m_unsettled = unsettled; }
    QRectF blockBoundingRect(const QTextBlock& block) const override;

private:
    bool m_unsettled = false;
};

} // namespace nsModEditor
