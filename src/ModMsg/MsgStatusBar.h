#pragma once

#include <QToolButton>

namespace nsModMsg {

/// The number of errors and warnings of the last run in the status bar. A click leads to the first of the worst.
class MsgStatusBar : public QToolButton
{
    Q_OBJECT

public:
    explicit MsgStatusBar(QWidget* parent = nullptr);

    /// Without any, there is nothing to be seen.
    void setCounts(int errors, int warnings);
};

} // namespace nsModMsg
