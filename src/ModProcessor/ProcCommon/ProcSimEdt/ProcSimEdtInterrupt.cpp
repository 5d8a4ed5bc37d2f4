#include "ProcSimEdtInterrupt.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>

namespace nsProc {

namespace {

const int squareWidth = 10;

} // namespace

ProcSimEdtInterrupt::ProcSimEdtInterrupt(QWidget* parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("procSimEdtInterrupt"));
    setToolTip(tr("If interrupt is enabled click to change status."));
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    // Room for the frame of the focus.
    setMargin(2);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    showState();
}

QColor ProcSimEdtInterrupt::color(eInt_t state)
{
    switch (state) {
    case eIntEnabled:
        return Qt::green;
    case eIntPending:
        return Qt::darkGreen;
    case eIntService:
        return Qt::darkRed;
    case eIntDisabled:
        break;
    }
    return Qt::darkGray;
}

void ProcSimEdtInterrupt::setValue(eInt_t state)
{
    if (state == m_state)
        return;
    m_state = state;
    showState();
}

void ProcSimEdtInterrupt::showState()
{
    QPixmap square(squareWidth, fontMetrics().height());
    square.fill(color(m_state));
    setPixmap(square);
    const char* const names[] = {QT_TR_NOOP("enabled"), QT_TR_NOOP("disabled"), QT_TR_NOOP("pending"), QT_TR_NOOP("in service")};
    setAccessibleName(tr("Interrupt: %1").arg(tr(names[m_state])));
}

void ProcSimEdtInterrupt::toggle()
{
    emit aboutToToggle();
    if (m_state != eIntEnabled && m_state != eIntPending)
        return;
    setValue(m_state == eIntEnabled ? eIntPending : eIntEnabled);
    emit valueChanged();
}

void ProcSimEdtInterrupt::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton || event->button() == Qt::RightButton)
        toggle();
}

void ProcSimEdtInterrupt::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space)
        toggle();
    else
        QLabel::keyPressEvent(event);
}

void ProcSimEdtInterrupt::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setPen(QColor(0x204398));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace nsProc
