#pragma once

#include <QColor>
#include <QWidget>

/// A field that shows a colour. A click with the left button, or the space bar, opens the dialog that chooses another.
class MyColorSelector : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor USER true)

public:
    /// Starts in the colour of text.
    explicit MyColorSelector(QWidget* parent = nullptr);

    /// An invalid colour is ignored.
    void setColor(QColor color);
    QColor color() const { return m_color; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The user has chosen another colour; setColor() does not emit this.
    void colorChanged(QColor color);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void selectColor();

    QColor m_color;
};
