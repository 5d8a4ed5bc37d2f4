#include "ProcSimIOTypeIdentifier.h"

#include <QPainter>

namespace nsProc {

ProcSimIOTypeIdentifier::ProcSimIOTypeIdentifier(Colors::eRole_t color, const QString& type, QWidget* parent)
    : QWidget(parent)
    , m_color(color)
{
    setObjectName(QStringLiteral("procSimIOType"));
    setToolTip(type);
    setFixedWidth(5);
}

void ProcSimIOTypeIdentifier::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), Colors::of(m_color));
}

} // namespace nsProc
