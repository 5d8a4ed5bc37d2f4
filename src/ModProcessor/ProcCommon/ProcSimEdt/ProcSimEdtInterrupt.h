#pragma once

#include "ProcSimTypes.h"

#include <QLabel>

namespace nsProc {

/// The state of the interrupt logic as a coloured square and a letter. A click requests an interrupt, or withdraws the
/// request.
class ProcSimEdtInterrupt : public QLabel
{
    Q_OBJECT

public:
    using eInt_t = nsProc::eInt_t;

    explicit ProcSimEdtInterrupt(QWidget* parent = nullptr);

    void setValue(eInt_t state);
    eInt_t value() const { return m_state; }
    static QColor color(eInt_t state);

    /// The square and a letter beside it, so that the state is not shown by colour only.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// The user is about to toggle the state: a slot can set the present state before.
    void aboutToToggle();
    /// The user has toggled between enabled and pending.
    void valueChanged();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void toggle();
    void showState();

    eInt_t m_state = eIntDisabled;
};

} // namespace nsProc
