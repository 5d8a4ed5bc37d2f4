#include "SecondView.h"

#include "DocumentViews.h"
#include "EditorWidget.h"
#include "EditorWidgetLeftMargin.h"
#include "Folding.h"
#include "MessageMarks.h"
#include "ViewPlace.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QHelpEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>

namespace nsModEditor {

SecondView::SecondView(EditorWidget* page)
    : SourceEdit(nullptr)
    , m_page(page)
    , m_lineHighlights(this)
{
    setObjectName(QStringLiteral("secondView"));
    setAccessibleName(tr("Other view of the document"));
    setFocusPolicy(Qt::NoFocus);
    // The document takes font and wrapping of each view that it gets.
    QPlainTextEdit::setFont(page->font());
    setLineWrapMode(page->lineWrapMode());
    setDocument(page->document());
    setupTools();
    setUnfolding(false);
    m_leftMargin = new EditorWidgetLeftMargin(page, this);
    takeLook();
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { m_lineHighlights.followCursor(); });
    connect(this, &QPlainTextEdit::updateRequest, this,
            [this](const QRect& rect) { m_leftMargin->update(0, rect.y(), m_leftMargin->width(), rect.height()); });
    connect(this, &QPlainTextEdit::blockCountChanged, this, &SecondView::updateLeftMarginWidth);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &SecondView::noteTop);
    connect(document(), &QTextDocument::contentsChanged, this, &SecondView::keepTop);
    // The last one that is installed is the first one that is asked.
    viewport()->installEventFilter(this);
    showPlace(sViewPlace::of(page));
    m_lineHighlights.followCursor();
    connect(folding(), &Folding::changed, m_page, [this] { m_page->views()->followFolds(); });
}

SecondView::~SecondView()
{
    document()->disconnect(this);
    disconnect(this);
    deleteTools();
}

QString SecondView::filePath() const
{
    return m_page->filePath();
}

QString SecondView::text() const
{
    return m_page->text();
}

void SecondView::setMessageMarks(const QVector<sMessageMark>& marks)
{
    m_page->setMessageMarks(marks);
}

QStringList SecondView::messagesAt(int line) const
{
    return m_page->messagesAt(line);
}

QTextCursor SecondView::messagePlace(int index) const
{
    return m_page->messagePlace(index);
}

void SecondView::showPlace(const sViewPlace& place)
{
    place.show(this);
    noteTop();
}

void SecondView::takeLook()
{
    if (font() != m_page->font())
        QPlainTextEdit::setFont(m_page->font());
    setTabIndent(m_page->indentStyle().width);
    setLineWrapMode(m_page->lineWrapMode());
    setComfort(m_page->comfort());
    setTextInteractionFlags(m_page->textInteractionFlags());
    setOverwriteMode(m_page->overwriteMode());
    updateLeftMarginWidth();
    viewport()->update();
}

void SecondView::updateLeftMarginWidth()
{
    const int width = m_page->leftMarginWidth();
    if (viewportMargins().left() != width)
        setViewportMargins(width, 0, 0, 0);
    const QRect rect = contentsRect();
    m_leftMargin->setGeometry(rect.left(), rect.top(), width, rect.height());
    m_leftMargin->update();
}

void SecondView::resizeEvent(QResizeEvent* event)
{
    SourceEdit::resizeEvent(event);
    updateLeftMarginWidth();
}

void SecondView::paintEvent(QPaintEvent* event)
{
    // Not each way to scroll is reported.
    noteTop();
    SourceEdit::paintEvent(event);
    QPainter painter(viewport());
    const QTextBlock block = firstVisibleBlock();
    m_leftMargin->messageMarks()->paint(
        &painter, block, blockBoundingGeometry(block).translated(contentOffset()).topLeft(), event->rect().bottom());
}

void SecondView::noteTop()
{
    const QTextBlock top = firstVisibleBlock();
    m_top = QTextCursor(top);
    m_topRow = verticalScrollBar()->value() - top.firstLineNumber();
}

/// Lines that come and go above the view do not move what it shows.
void SecondView::keepTop()
{
    if (m_top.isNull())
        return;
    const int row = m_top.block().firstLineNumber() + m_topRow;
    if (row != verticalScrollBar()->value())
        verticalScrollBar()->setValue(row);
    noteTop();
}

void SecondView::enterPage()
{
    m_page->views()->exchange();
    m_page->setFocus(Qt::MouseFocusReason);
}

/// The page stands where the pointer is since it went down, so it gets what belongs to this click.
bool SecondView::mouseEvent(QEvent* event)
{
    const auto* mouse = static_cast<QMouseEvent*>(event);
    const bool isPress = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    // A press whose release went elsewhere has ended, too.
    const bool isFirst = isPress && mouse->buttons() == Qt::MouseButtons(mouse->button());
    if (isFirst)
        enterPage();
    else if (!m_isPressed)
        return false;
    m_isPressed = mouse->buttons() != Qt::NoButton;
    QWidget* target = m_page->viewport();
    QMouseEvent handed(event->type(), target->mapFromGlobal(mouse->globalPos()), mouse->windowPos(), mouse->screenPos(),
                       mouse->button(), mouse->buttons(), mouse->modifiers(), mouse->source());
    QApplication::sendEvent(target, &handed);
    return true;
}

bool SecondView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != viewport())
        return SourceEdit::eventFilter(watched, event);
    QWidget* target = m_page->viewport();
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return mouseEvent(event);
    case QEvent::ContextMenu: {
        const auto* menu = static_cast<QContextMenuEvent*>(event);
        if (!target->rect().contains(target->mapFromGlobal(menu->globalPos())))
            enterPage();
        QContextMenuEvent handed(menu->reason(), target->mapFromGlobal(menu->globalPos()), menu->globalPos(),
                                 menu->modifiers());
        QApplication::sendEvent(target, &handed);
        return true;
    }
    case QEvent::Wheel:
        if ((static_cast<QWheelEvent*>(event)->modifiers() & Qt::ControlModifier) == 0)
            return false;
        // The zoom is that of the document.
        QApplication::sendEvent(target, event);
        return true;
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        // Files are opened, wherever they are dropped.
        if (!static_cast<QDropEvent*>(event)->mimeData()->hasUrls())
            return false;
        QApplication::sendEvent(target, event);
        return true;
    case QEvent::ToolTip:
        emit m_page->tipRequested(this, static_cast<QHelpEvent*>(event));
        return true;
    default:
        return false;
    }
}

} // namespace nsModEditor
