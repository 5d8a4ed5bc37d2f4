#include "StatusFrame.h"

#include "WidgetAreaStacked.h"

#include <QHBoxLayout>

namespace nsModGui {

StatusFrame::StatusFrame(QWidget* parent)
    : QFrame(parent)
    , m_area(new WidgetAreaStacked(this))
{
    setFrameStyle(QFrame::Panel | QFrame::Sunken);
    // As wide as its content; the rest of the bar is for the text at its left.
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_area);
}

} // namespace nsModGui
