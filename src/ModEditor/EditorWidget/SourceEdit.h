#pragma once

#include "EditorComfort.h"
#include "EditorDocument.h"
#include "LineCommands.h"

#include <memory>

namespace nsModEditor {

class ColumnSelection;
class Folding;
class TextOverlay;

/// A text edit for the lines of sources: commands for whole lines, selected columns, hidden lines, and what is painted
/// above the text. It knows nothing of files and marks.
class SourceEdit : public EditorDocument
{
    Q_OBJECT

public:
    explicit SourceEdit(QWidget* parent = nullptr);
    ~SourceEdit() override;

    /// @param indent width of a tab in characters
    void setTabIndent(int indent);
    void setDynamicLineWrapEn(bool enabled);
    void setComfort(const sEditorComfort_t& comfort);
    const sEditorComfort_t& comfort() const { return m_comfort; }
    /// What Tab inserts.
    LineCommands::sIndent_t indentStyle() const { return {m_tabIndent, m_comfort.indentWithBlanks}; }
    /// Of text or of a column.
    bool hasSelection() const;
    /// What is shown above the text.
    TextOverlay* overlay() const { return m_overlay.get(); }
    /// What is hidden of the text.
    Folding* folding() const { return m_folding; }
    /// The commands at the cursor, with the indent of the document. A selected column ends.
    LineCommands lineCommands();

    void indent();
    void deindent();
    void commentOut();
    void commentIn();
    void duplicateLine();

    /// Selection, undo or the like have changed.
    virtual void reportActions() = 0;

    /// The line at a height of the viewport, 0 where there is none.
    int lineAt(int y) const;

    // Where the lines are on the screen.
    using QPlainTextEdit::blockBoundingGeometry;
    using QPlainTextEdit::blockBoundingRect;
    using QPlainTextEdit::contentOffset;
    using QPlainTextEdit::firstVisibleBlock;

public slots:
    // Of a column where one is selected.
    void cut();
    void copy();
    void paste();

protected:
    /// To be called once the text edit has its document.
    void setupTools();
    void deleteTools();
    /// Whether hidden lines are shown as soon as the cursor comes into them; they are at first.
    void setUnfolding(bool unfolds);
    void calculateTabWidth();
    /// The keys that do more where the user has set it. @return the key is done
    bool comfortKey(const QKeyEvent* event);
    void paintEvent(QPaintEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    int m_tabIndent = 4;
    sEditorComfort_t m_comfort;
    ColumnSelection* m_columns = nullptr;
    Folding* m_folding = nullptr;
    std::unique_ptr<TextOverlay> m_overlay;
};

} // namespace nsModEditor
