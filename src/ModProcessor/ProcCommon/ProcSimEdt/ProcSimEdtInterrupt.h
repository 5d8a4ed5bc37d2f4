#pragma once

#include "ProcSimTypes.h"

#include <QLabel>

namespace nsProc {

/// The state of the interrupt logic as a coloured square. A click asks for an interrupt, or takes that back.
class ProcSimEdtInterrupt : public QLabel
{
    Q_OBJECT

public:
    using eInt_t = nsProc::eInt_t;

    explicit ProcSimEdtInterrupt(QWidget* parent = nullptr);

    void setValue(eInt_t state);
    eInt_t value() const { return m_state; }
    static QColor color(eInt_t state);

signals:
    /// The user is about to toggle the state: the last moment to show the state as it is by now.
    void aboutToToggle();
    /// The user has toggled between enabled and pending.
    void valueChanged();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void toggle();
    void showState();

    eInt_t m_state = eIntDisabled;
};

} // namespace nsProc
