#pragma once

#include "Colors.h"

#include <QWidget>

namespace nsProc {

/// A coloured strip at the side of a device by which its kind is seen at a glance.
class ProcSimIOTypeIdentifier : public QWidget
{
    Q_OBJECT

public:
    /// @param type kind of the device for the tool tip
    ProcSimIOTypeIdentifier(Colors::eRole_t color, const QString& type, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Colors::eRole_t m_color;
};

} // namespace nsProc
