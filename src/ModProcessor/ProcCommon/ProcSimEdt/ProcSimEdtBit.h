#pragma once

#include <QLabel>

namespace nsProc {

/// One bit as "0" or "1", which a click or the space key toggles.
class ProcSimEdtBit : public QLabel
{
    Q_OBJECT

public:
    explicit ProcSimEdtBit(QWidget* parent = nullptr);

    /// @param value any but 0 is 1
    void setValue(int value);
    int value() const { return m_value; }
    void setHighlightEn(bool enabled);
    bool isHighlighted() const { return m_highlighted; }

signals:
    /// The user is about to toggle the bit: a slot can set the present value before.
    void aboutToToggle();
    /// The user has toggled the bit.
    void valueChanged();

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void toggle();

    int m_value = 0;
    bool m_highlighted = false;
};

} // namespace nsProc
