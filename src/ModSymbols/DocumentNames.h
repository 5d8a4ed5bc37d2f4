#pragma once

#include "CompletionWords.h"

#include <QObject>
#include <QPointer>

class QHelpEvent;
class QKeyEvent;
class QMouseEvent;
class QPlainTextEdit;
class QTextCursor;

namespace nsModEditor {
class EditorDocument;
}

namespace nsModSymbols {

class CompletionPopup;
class ModSymbols;

/// What a document does with the names of the program: the list of words, the click with Ctrl, and tips. Sees the
/// events of the document before it does.
class DocumentNames : public QObject
{
    Q_OBJECT

public:
    /// @param document owns the object
    DocumentNames(nsModEditor::EditorDocument* document, ModSymbols* module);

    /// Shows the words that can stand at the cursor, whatever is typed of them.
    void complete();
    /// The document is about to be deleted.
    void detach();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool keyPressed(QKeyEvent* event);
    bool keyPressedInList(QKeyEvent* event);
    bool mouseEvent(QMouseEvent* event);
    bool showTip(QPlainTextEdit* view, const QHelpEvent* event);
    void textChanged();
    void showList(bool isAsked);
    void hideList();
    void takeWord();
    QString textToCursor() const;
    bool placeAt(const QPoint& pos, int* line, int* column) const;
    static bool placeIn(QPlainTextEdit* view, const QPoint& pos, int* line, int* column);
    void showLink(const QPoint& pos);
    void hideLink();

    nsModEditor::EditorDocument* m_document;
    QPointer<ModSymbols> m_module;
    QPointer<CompletionPopup> m_list; ///< null until it is wanted
    sCompletionPlace m_place;
    bool m_isTyped = false; ///< the key that is being handled has a text
    bool m_isLink = false;  ///< the name below the pointer is underlined
    bool m_isTaking = false;
};

} // namespace nsModSymbols
