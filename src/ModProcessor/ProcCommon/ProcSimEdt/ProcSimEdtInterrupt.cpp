#include "ProcSimEdtInterrupt.h"

#include "Colors.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>

namespace nsProc {

namespace {

const int squareWidth = 10;
const int gap = 4; ///< pixels between the square and the letter

/// By the values of eInt_t.
const struct
{
    const char* name;
    const char* letter;
} states[] = {{QT_TRANSLATE_NOOP("nsProc::ProcSimEdtInterrupt", "enabled"), "E"},
              {QT_TRANSLATE_NOOP("nsProc::ProcSimEdtInterrupt", "disabled"), "D"},
              {QT_TRANSLATE_NOOP("nsProc::ProcSimEdtInterrupt", "pending"), "P"},
              {QT_TRANSLATE_NOOP("nsProc::ProcSimEdtInterrupt", "in service"), "S"}};

} // namespace

ProcSimEdtInterrupt::ProcSimEdtInterrupt(QWidget* parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("procSimEdtInterrupt"));
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    // Space for the focus frame.
    setMargin(2);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    showState();
}

QColor ProcSimEdtInterrupt::color(eInt_t state)
{
    switch (state) {
    case eIntEnabled:
        return Colors::of(Colors::eInterruptEnabled);
    case eIntPending:
        return Colors::of(Colors::eInterruptPending);
    case eIntService:
        return Colors::of(Colors::eInterruptService);
    case eIntDisabled:
        break;
    }
    return Colors::of(Colors::eInterruptDisabled);
}

QSize ProcSimEdtInterrupt::sizeHint() const
{
    // Room for the widest letter, so that nothing moves.
    return QLabel::sizeHint() + QSize(gap + fontMetrics().horizontalAdvance(QLatin1Char('D')) + 2, 0);
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
    setAccessibleName(tr("Interrupt: %1").arg(tr(states[m_state].name)));
    setToolTip(tr("If interrupt is enabled click to change status.") + '\n' + accessibleName());
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

void ProcSimEdtInterrupt::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showState();
}

void ProcSimEdtInterrupt::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect().adjusted(margin() + squareWidth + gap, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                     QLatin1String(states[m_state].letter));
    if (!hasFocus())
        return;
    painter.setPen(Colors::of(Colors::eAccent));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace nsProc
