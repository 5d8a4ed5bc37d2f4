#pragma once

#include <QFrame>

namespace nsModGui {

class WidgetAreaStacked;

/// The sunken frame of one area of the status bar. It stays visible while its area is empty, so that the others keep
/// their places.
class StatusFrame : public QFrame
{
    Q_OBJECT

public:
    explicit StatusFrame(QWidget* parent = nullptr);

    WidgetAreaStacked* area() const { return m_area; }

private:
    WidgetAreaStacked* m_area;
};

} // namespace nsModGui
