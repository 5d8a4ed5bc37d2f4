#pragma once

#include "DocumentFormat.h"
#include "EditorDocument.h"
#include "EditorMemPageAddrMap.h"
#include "LineHighlights.h"
#include "LineMarks.h"
#include "MessageMarks.h"
#include "PrintedPages.h"
#include "SourceEdit.h"

#include <QColor>
#include <QPointer>

#include <memory>

class QAction;
class QHelpEvent;
class QMenu;
class QStringListModel;
class MyNoticeBar;

namespace nsModEditor {

class DocumentViews;
class EditorNotices;
class EditorSupportMenu;
class EditorSyntaxHighlighter;
class EditorSyntaxHighlighterConfig;
class EditorTipManager;
class EditorWidgetLeftMargin;
class MarkFollower;
class TextCompletion;
class WordMarks;

/// The page of one document: a text edit for assembler sources, with commands for whole lines and a margin.
///
/// The margin carries marks for the simulator, addresses of the assembled code and line numbers. Marks are plain line
/// numbers that stay where they are when lines come and go above them, unless the user wants them to follow their text.
/// All lines are counted from 0.
class EditorWidget : public SourceEdit
{
    Q_OBJECT

public:
    /// Where a search begins.
    enum eFindOrigin_t { eFindOriginStart = 0, eFindOriginCursor = 1, eFindOriginEnd = 2 };

    explicit EditorWidget(QWidget* parent = nullptr);
    ~EditorWidget() override;

    // Shared objects, none of them owned; each may be null.
    void setSyntaxHighlighterConfig(EditorSyntaxHighlighterConfig* config);
    void setTipManager(EditorTipManager* manager);
    void setSupportMenu(EditorSupportMenu* menu);
    void setTextCompletionList(QStringListModel* words);

    // ---- Document (EditorWidget.cpp)
    /// @param path absolute; empty for a document that has no file yet
    void setFilePath(const QString& path);
    QString filePath() const override { return m_filePath; }
    /// Replaces the whole text. Undo history and modification are gone, the cursor stands at the start; marks stay.
    void setText(const QString& text);
    /// The text for a file, one line feed between lines. Unlike toPlainText() it keeps non-breaking blanks.
    QString text() const override;
    /// setText() is at work: what changes is no edit.
    bool isSettingText() const { return m_settingText; }
    bool isModified() const;
    void clearModified();
    bool isUndoAvailable() const;
    bool isRedoAvailable() const;
    /// Inserts at the cursor, in place of the selection if there is one.
    void insertText(const QString& text);
    /// What is to be printed, in the font of the settings.
    /// @param name name of the document on the pages
    /// @param selectionOnly print the selected text only, if there is some
    sPrintJob printJob(const QString& name, bool selectionOnly) const;
    /// Brings the formats of all lines up to date with the rules.
    void rehighlight();

    // ---- File (EditorWidgetFile.cpp)
    /// The format in which the text will be written. If it differs from the format of the file, the document is
    /// modified.
    const DocumentFormat& format() const { return m_format; }
    void setFormat(const DocumentFormat& format);
    /// The format that the file has now.
    void setFormatOnDisk(const DocumentFormat& format);
    /// For a document that can not be shown as it is: the text can be read and copied, and no command changes it.
    void setLocked(bool locked);
    /// Takes over a text that was changed elsewhere, as one step to undo of the part that differs: the cursor keeps its
    /// text, the view its lines, marks their numbers.
    void changeText(const QString& text);
    /// Shows a bar at the upper edge, below the present ones. The document owns it; F6 moves the focus to the bars and
    /// back.
    void addNotice(MyNoticeBar* bar);
    /// Moves the focus from the text to the first bar, and back. Nothing where there is no bar.
    void switchToNotice();

    /// This one, and a second one while the page is split.
    DocumentViews* views() const { return m_views.get(); }

    // ---- Look and behaviour (EditorWidget.cpp)
    /// The point size and the zoom of the document make its font size.
    void setFont(const QFont& font);
    /// Points, from EditorConfig::minFontSize to EditorConfig::maxFontSize; the wheel with Ctrl changes it.
    int fontSize() const { return m_fontSize; }
    /// What the user has added to the size of the font, in points.
    int zoom() const { return m_zoom; }
    void setZoom(int points);
    /// Resets the zoom.
    void resetZoom();
    void setAutoReturnIndentEn(bool enabled);
    void setSelectionHighlightEn(bool enabled);
    void setTextCompletionEn(bool enabled);
    /// @param length characters
    void setTextCompleterPrefixLength(int length);
    /// @param count entries that the list shows at a time
    void setTextCompleterItemCount(int count);
    void setCursorBgColor(const QColor& color);
    void setHighlightBgColor(const QColor& color);

    // ---- Commands for lines, which take the marks along
    void moveLineUp();
    void moveLineDown();

    // ---- Places (EditorWidgetPlaces.cpp)
    void setCursorToLine(int line);
    /// Selects the text where the document has it exactly once; goes to the line otherwise. A name with a colon is a
    /// label: it is found at the start of a line; if there are several, the one nearest to the line.
    void setCursorToLine(const QString& text, int line);
    int cursorLine() const;
    /// Position in characters from the start of the document.
    int cursorPos() const;
    void setCursorPos(int pos);
    /// Flags the line and goes to it. A document has no more than one flagged line.
    void setLineHighlighted(int line);
    /// Flags a line without going to it: cursor and view stay.
    void markLine(int line);
    void clearLineHighlighted();
    /// @return whether the text was found; it is selected then
    bool find(const QString& text, bool caseSensitive, bool wholeWords, bool backward, eFindOrigin_t origin);
    /// The selection is what a search for the text finds there.
    bool isHit(const QString& text, bool caseSensitive, bool wholeWords) const;
    /// Replaces the selection; does nothing without one.
    void replace(const QString& text);
    /// One step to undo. @return always true
    bool replaceAll(const QString& text, const QString& replacement, bool caseSensitive, bool wholeWords);
    /// Marks the word below the pointer wherever it occurs. @return true, the event is done
    bool handleTipEvent(QHelpEvent* event);

    // ---- Marks (EditorWidgetMargin.cpp)
    const sDocumentMarks_t& marks() const { return m_marks; }
    /// All marks at once, such as those of the last session.
    void setMarks(const sDocumentMarks_t& marks);
    QList<int> simBreakpoints() const { return m_marks.simBreakpoints.lines(); }
    /// Sets the breakpoint, or clears it where there is one.
    void setSimBreakpoint(int line);
    void clearSimBreakpoints();
    /// Moves the simulator's start mark of all documents to the line; a second call for the line clears it.
    void setSimStartPointer(int line);
    /// @return false without a mark; *line is then unchanged
    bool simStartPointer(int* line) const;
    void clearSimStartPointer();
    QList<int> bookmarks() const { return m_marks.bookmarks.lines(); }
    void setBookmark(int line);
    void clearBookmarks();

    // ---- Messages (EditorWidgetMargin.cpp)
    void setMessageMarks(const QVector<sMessageMark>& marks) override;
    QStringList messagesAt(int line) const override { return m_messageMarks.texts(line); }
    QTextCursor messagePlace(int index) const override { return m_messageMarks.place(index); }

    // ---- Margin (EditorWidgetMargin.cpp); widths in pixels, 0 for a column that is off
    void setLineNumberEn(bool enabled);
    void setMemPageAddrEn(bool enabled);
    /// @param base of the numbers, 2 to 36; others are ignored
    void setMemPageAddrBase(int base);
    /// @param addr the largest address that the column has room for
    void setMemPageMaxAddr(int addr);
    /// Takes the document's addresses from the map. Not owned: before it is deleted, another one or null must be set.
    void setMemPageAddrMap(EditorMemPageAddrMap* map);
    int symbolMarginWidth() const;
    int memPageAddrMarginWidth() const;
    int lineNumberMarginWidth() const;
    int leftMarginWidth() const;
    /// The line at the height of the margin, 0 where there is none.
    int blockNumberFromPos(int y) const;
    void leftMarginPaintEvent(QPaintEvent* event);
    /// @param pos in the margin
    void showLeftMarginToolTip(const QPoint& pos);
    EditorWidgetLeftMargin* leftMargin() const { return m_leftMargin; }

    void reportActions() override { emit actionChanged(this); }

public slots:
    void undo();
    void redo();
    /// The text has changed: emits modifiedChanged() if isModified() has changed.
    void setModified();

signals:
    /// Undo, redo, selection, font size or insert mode have changed.
    void actionChanged(nsModEditor::EditorWidget* widget);
    void modifiedChanged(nsModEditor::EditorWidget* widget);
    void simBreakpointChanged();
    // Requests to all documents.
    void clearAllBreakpoints();
    void clearAllSimStartPointer();
    void clearAllBookmarks();
    /// Files were dropped on the document.
    void filesDropped(const QStringList& paths);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private slots:
    void setActionChanged();
    void setMemPageAddrInvalid(int blockCount);
    void updateLeftMarginWidth();
    void updateLeftMargin(const QRect& rect, int dy);
    void layoutNotices();

private:
    void insertAutoReturnIndent(QKeyEvent* event);
    void insertLineBreak(QKeyEvent* event);
    void applyFont(const QFont& font);
    void moveLines(bool up);

    QTextDocument* m_textDocument;
    EditorSyntaxHighlighter* m_syntaxHighlighter;
    EditorWidgetLeftMargin* m_leftMargin = nullptr;
    TextCompletion* m_completion = nullptr;
    QPointer<EditorSupportMenu> m_supportMenu;
    QPointer<EditorTipManager> m_tipManager;
    QString m_filePath;
    DocumentFormat m_format;
    DocumentFormat m_cleanFormat; ///< of the file
    EditorNotices* m_notices = nullptr;
    int m_noticeHeight = 0; ///< pixels

    int m_baseFontSize = 0; ///< points, of the font that was set
    int m_zoom = 0;         ///< points that the user has added
    int m_fontSize = 0;     ///< points, the sum of both
    bool m_autoReturnIndentEn = false;

    bool m_reportedModified = false; ///< value of isModified() that was reported last
    bool m_settingText = false;

    LineHighlights m_lineHighlights;
    std::unique_ptr<DocumentViews> m_views;
    WordMarks* m_wordMarks = nullptr;
    sDocumentMarks_t m_marks;
    MessageMarks m_messageMarks;
    MarkFollower* m_markFollower = nullptr;
};

} // namespace nsModEditor
