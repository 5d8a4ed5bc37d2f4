#pragma once

#include <QLabel>

namespace nsModPrj {

/// One line of plain text that takes the width it gets; its end is elided if it does not fit.
class PrjMngrLine : public QLabel
{
    Q_OBJECT

public:
    explicit PrjMngrLine(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace nsModPrj
