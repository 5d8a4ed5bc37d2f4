#pragma once

#include <QTimer>
#include <QToolButton>

namespace nsModMsg {

/// The number of errors and warnings of the last run in the status bar. A click leads to the first of the worst.
class MsgStatusBar : public QToolButton
{
    Q_OBJECT

public:
    explicit MsgStatusBar(QWidget* parent = nullptr);

    /// Without any, there is nothing to be seen. Shown when control returns to the event loop, so that a run with
    /// thousands of messages stays fast.
    void setCounts(int errors, int warnings);
    /// In a narrow window the icon does, so that nothing else in the bar is cut.
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showCounts();
    void fitText();

    QTimer m_timer;
    QString m_sum; ///< the whole text
    int m_errors = 0;
    int m_warnings = 0;
};

} // namespace nsModMsg
