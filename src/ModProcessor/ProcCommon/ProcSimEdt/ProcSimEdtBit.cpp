#include "ProcSimEdtBit.h"

#include "Colors.h"
#include "ProcSimFont.h"
#include "ProcSimHighlight.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

namespace nsProc {

ProcSimEdtBit::ProcSimEdtBit(QWidget* parent)
    : QLabel(QStringLiteral("0"), parent)
{
    setObjectName(QStringLiteral("procSimEdtBit"));
    setFont(monospaceFont());
    setAlignment(Qt::AlignCenter);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setFixedWidth(fontMetrics().horizontalAdvance(QLatin1Char('0')) + 8);
}

void ProcSimEdtBit::setValue(int value)
{
    const int bit = value != 0;
    if (bit == m_value)
        return;
    m_value = bit;
    setText(bit != 0 ? QStringLiteral("1") : QStringLiteral("0"));
}

bool ProcSimEdtBit::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && m_highlighted &&
        showHighlightToolTip(this, static_cast<QHelpEvent*>(event)))
        return true;
    return QLabel::event(event);
}

void ProcSimEdtBit::setHighlightEn(bool enabled)
{
    if (enabled == m_highlighted)
        return;
    m_highlighted = enabled;
    showHighlight(this, enabled);
}

void ProcSimEdtBit::toggle()
{
    emit aboutToToggle();
    setValue(1 - m_value);
    emit valueChanged();
}

void ProcSimEdtBit::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    toggle();
}

void ProcSimEdtBit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return)
        toggle();
    else
        QLabel::keyPressEvent(event);
}

void ProcSimEdtBit::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    QPainter painter(this);
    painter.setPen(QPen(Colors::of(hasFocus() ? Colors::eAccent : Colors::eQuietBorder), 1));
    painter.drawLine(2, height() - 2, width() - 3, height() - 2);
}

} // namespace nsProc
