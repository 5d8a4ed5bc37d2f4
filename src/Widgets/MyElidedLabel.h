#pragma once

#include <QLabel>

/// One line of plain text that takes the width it gets; what does not fit is left out.
class MyElidedLabel : public QLabel
{
    Q_OBJECT

public:
    /// @param mode where something is left out
    explicit MyElidedLabel(Qt::TextElideMode mode, QWidget* parent = nullptr);

    /// Any width will do.
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override { return minimumSizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Qt::TextElideMode m_mode;
};
