#pragma once

#include <QObject>

namespace nsModAction {

/// Names the keys of a command in the tool tip of its button.
class ToolTipKeys : public QObject
{
    Q_OBJECT

public:
    explicit ToolTipKeys(QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace nsModAction
