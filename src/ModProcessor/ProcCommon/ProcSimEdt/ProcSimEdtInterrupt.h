#pragma once

#include "ProcSimTypes.h"

#include <QLabel>

namespace nsProc {

/// The state of the interrupt logic as a coloured square and a letter. A click asks for an interrupt, or takes that back.
class ProcSimEdtInterrupt : public QLabel
{
    Q_OBJECT

public:
    using eInt_t = nsProc::eInt_t;

    explicit ProcSimEdtInterrupt(QWidget* parent = nullptr);

    void setValue(eInt_t state);
    eInt_t value() const { return m_state; }
    static QColor color(eInt_t state);

    /// The square and a letter beside it: a state is not told by its colour alone.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

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
