#pragma once

#include "ProcSimIOPluginIf.h"

#include <QComboBox>

namespace nsProc {

/// The direction in which a device answers. The items have the data 1 (read), 2 (write), 4 (read and write).
class ProcSimEdtDirection : public QComboBox
{
    Q_OBJECT

public:
    explicit ProcSimEdtDirection(QWidget* parent = nullptr);

    void setDirection(ProcSimIOPluginIf::eDirection_t direction);
    /// @return the selection serves the direction
    bool chkDirection(ProcSimIOPluginIf::eDirection_t direction) const;
    /// @param data 1, 2 or 4
    void setData(int data);
    int data() const { return currentData().toInt(); }

signals:
    /// The user has selected.
    void directionSelected(int data);

protected:
    /// The wheel scrolls the column of devices, it does not change a direction by accident.
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace nsProc
