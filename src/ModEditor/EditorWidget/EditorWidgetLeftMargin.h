#pragma once

#include "Colors.h"
#include "EditorMemPageAddrMap.h"

#include <QColor>
#include <QIcon>
#include <QWidget>

#include <memory>

class QMenu;
class QPainter;
class QTextBlock;

namespace nsModEditor {

class EditorWidget;
class MessageMarks;
class SourceEdit;

/// The strip on the left of a document with its marks, memory page addresses and line numbers.
///
/// It reads the marks of the document and the visible lines of its view. Widths are in pixels, 0 for a column that is
/// off; whoever changes columns asks the document to make room.
class EditorWidgetLeftMargin : public QWidget
{
    Q_OBJECT

public:
    /// Right-most x at which a click sets a mark, in pixels.
    static const int maxMarkX = 17;

    /// @param editor the document; owns the margin, and gets its menu as an action for those without a mouse
    explicit EditorWidgetLeftMargin(EditorWidget* editor);
    /// The margin of another view of the document. It looks as that of the document always does.
    /// @param view owns the margin
    EditorWidgetLeftMargin(EditorWidget* editor, SourceEdit* view);

    void setLineNumberEn(bool enabled) { m_look->lineNumberEn = enabled; }
    void setAddrEn(bool enabled) { m_look->addrEn = enabled; }
    /// @param addr the largest address that the column has room for
    void setMaxAddr(int addr) { m_look->maxAddr = addr; }
    /// @param base of the addresses, 2 to 36. @return false for others, which change nothing
    bool setAddrBase(int base);
    /// Takes the addresses of the file from the map. Not owned: before it is deleted, another one or null must be set.
    void setAddrMap(EditorMemPageAddrMap* map, const QString& path);
    /// The lines have moved: the addresses of all documents are out of date.
    void setAddrInvalid();
    /// @param marks of the document; not owned
    void setMessageMarks(const MessageMarks* marks) { m_look->messageMarks = marks; }
    const MessageMarks* messageMarks() const { return m_look->messageMarks; }
    void setBgColor(const QColor& color);
    void setFgColor(const QColor& color);
    void setBreakpointColor(const QColor& color);
    void setStartPointerColor(const QColor& color);
    void setBookmarkColor(const QColor& color);

    int symbolColumnWidth() const;
    int addrColumnWidth() const;
    int lineNumberColumnWidth() const;
    QSize sizeHint() const override;

    void paint(QPaintEvent* event);
    /// @param pos in the margin
    void showToolTipAt(const QPoint& pos);

    /// The menu of the line of the cursor.
    void showMenuAtCursor();

protected:
    /// Shows the messages about a line as its tip.
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    /// Left button on the symbols: toggles a breakpoint, with Ctrl the simulator's start mark, with Shift a bookmark.
    void mousePressEvent(QMouseEvent* event) override;
    /// Scrolls and zooms like the text.
    void wheelEvent(QWheelEvent* event) override;

private slots:
    void showMenu(const QPoint& pos);

private:
    /// What all margins of a document have in common.
    struct sLook_t
    {
        const MessageMarks* messageMarks = nullptr;
        bool lineNumberEn = true;
        bool addrEn = false;
        int maxAddr = 999;
        int addrBase = 16;
        EditorMemPageAddrMap* addrMap = nullptr;           ///< not owned; null without addresses of this file
        EditorMemPageAddrMap::sItem_t* addrList = nullptr; ///< not owned
        QColor fgColor = Colors::of(Colors::eMarginText);
        QColor bgColor = Colors::of(Colors::eMarginGround);
        QColor breakpointColor = Colors::of(Colors::eMarkBreakpoint);
        QColor startPointerColor = Colors::of(Colors::eMarkStart);
        QColor bookmarkColor = Colors::of(Colors::eMarkBookmark);
    };

    void paintBlock(QPainter* painter, const QTextBlock& block, int top, int symbolHeight);
    void paintAddr(QPainter* painter, int top, int addr);
    QIcon iconOf(const QColor& color) const;
    void addMenuEntries(QMenu* menu, int line);
    void runMenu(int line, const QPoint& globalPos);

    EditorWidget* m_editor; ///< not owned
    SourceEdit* m_view;     ///< not owned; the editor itself, or another view of its document
    std::shared_ptr<sLook_t> m_look;
};

} // namespace nsModEditor
