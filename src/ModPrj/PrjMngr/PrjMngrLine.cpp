#include "PrjMngrLine.h"

#include <QPainter>
#include <QStyle>

namespace nsModPrj {

PrjMngrLine::PrjMngrLine(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize PrjMngrLine::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void PrjMngrLine::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    style()->drawItemText(&painter, contentsRect(), int(alignment()), palette(), isEnabled(), shown, foregroundRole());
}

} // namespace nsModPrj
