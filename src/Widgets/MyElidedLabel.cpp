#include "MyElidedLabel.h"

#include <QStylePainter>

MyElidedLabel::MyElidedLabel(Qt::TextElideMode mode, QWidget* parent)
    : QLabel(parent)
    , m_mode(mode)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize MyElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void MyElidedLabel::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    painter.drawItemText(contentsRect(), int(alignment()), palette(), isEnabled(),
                         fontMetrics().elidedText(text(), m_mode, contentsRect().width()), foregroundRole());
}
