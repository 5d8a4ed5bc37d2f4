#include "MyColorSelector.h"

#include "Colors.h"

#include <QColorDialog>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace {

const qreal disabledOpacity = 0.35;

} // namespace

MyColorSelector::MyColorSelector(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("colorSelector"));
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setColor(Colors::of(Colors::eFormatCmd));
}

void MyColorSelector::setColor(QColor color)
{
    if (!color.isValid())
        return;
    m_color = color;
    setToolTip(tr("Colour %1. Click or press Space to select another.").arg(color.name()));
    update();
}

QSize MyColorSelector::sizeHint() const
{
    // As high as the input fields beside it.
    const int height = fontMetrics().height() + 8;
    return {2 * height + 8, height};
}

QSize MyColorSelector::minimumSizeHint() const
{
    return sizeHint();
}

void MyColorSelector::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1.0 : disabledOpacity);
    painter.fillRect(rect(), m_color);
    painter.setOpacity(1.0);

    const QRect frame = rect().adjusted(0, 0, -1, -1);
    if (!hasFocus()) {
        const bool hot = isEnabled() && underMouse();
        painter.setPen(Colors::of(!isEnabled() ? Colors::eHairLine : hot ? Colors::eAccent : Colors::eControlBorder));
        painter.drawRect(frame);
        return;
    }
    // The inner line separates the frame from a similar colour inside.
    painter.setPen(Colors::of(Colors::eAccent));
    painter.drawRect(frame);
    painter.drawRect(frame.adjusted(1, 1, -1, -1));
    painter.setPen(Colors::of(Colors::ePage));
    painter.drawRect(frame.adjusted(2, 2, -2, -2));
}

void MyColorSelector::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        selectColor();
    else
        QWidget::mousePressEvent(event);
}

void MyColorSelector::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Select)
        selectColor();
    else
        QWidget::keyPressEvent(event);
}

void MyColorSelector::enterEvent(QEvent* event)
{
    update();
    QWidget::enterEvent(event);
}

void MyColorSelector::leaveEvent(QEvent* event)
{
    update();
    QWidget::leaveEvent(event);
}

void MyColorSelector::selectColor()
{
    // The page of this field can be deleted while the dialog is open, and the dialog with it.
    const QPointer<MyColorSelector> self(this);
    const QPointer<QColorDialog> dialog(new QColorDialog(m_color, this));
    dialog->setWindowTitle(tr("Select color"));
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return;
    const QColor selected = dialog->selectedColor();
    delete dialog;
    if (!self || !accepted || !selected.isValid() || selected == m_color)
        return;
    setColor(selected);
    emit colorChanged(selected);
}
