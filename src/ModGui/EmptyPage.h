#pragma once

#include <QWidget>

namespace nsModGui {

/// What the centre shows while no page is open: the name of the program and what to do next. Takes no input.
class EmptyPage : public QWidget
{
    Q_OBJECT

public:
    explicit EmptyPage(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace nsModGui
