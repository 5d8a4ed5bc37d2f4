#pragma once

#include <QFrame>

namespace nsModGui {

class WidgetAreaStacked;

/// The sunken frame of one area of the status bar; seen while its area is.
class StatusFrame : public QFrame
{
    Q_OBJECT

public:
    explicit StatusFrame(QWidget* parent = nullptr);

    WidgetAreaStacked* area() const { return m_area; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    WidgetAreaStacked* m_area;
};

} // namespace nsModGui
