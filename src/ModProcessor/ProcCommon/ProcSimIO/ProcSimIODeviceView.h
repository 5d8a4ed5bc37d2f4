#pragma once

#include "Colors.h"

#include <QFrame>

class QHBoxLayout;
class QToolButton;
class QVBoxLayout;

namespace nsProc {

class ProcSimEdtDirection;
class ProcSimIOAddrLine;
class ProcSimIODevice;

/// The card of one device in the column of ports: a strip that shows the kind, the address line with the close button,
/// the direction, and below what the kind of device shows. Belongs to the column, which deletes it with its device.
class ProcSimIODeviceView : public QFrame
{
    Q_OBJECT

public:
    /// @param type kind of the device, for the strip
    ProcSimIODeviceView(ProcSimIODevice* device, Colors::eRole_t color, const QString& type);
    ~ProcSimIODeviceView() override;

    /// Shows what has changed in the device since the last call; fast if nothing has changed.
    void refresh();
    /// The device is being deleted: input of the user is ignored from now on.
    void forgetDevice();
    /// The user has clicked the close button.
    bool isClosing() const { return m_closing; }

protected:
    /// Shows what this kind of device adds.
    virtual void showDevice() = 0;
    /// The line of the direction: what the kind of device adds stands at its right.
    QHBoxLayout* directionLine() const { return m_directionLine; }
    /// The lines below.
    QVBoxLayout* body() const { return m_body; }
    /// Adds a button left of the close button.
    QToolButton* addButton(const QString& objectName);
    /// A button that opens and closes a list below.
    static void showExpanded(QToolButton* button, bool expanded);

private:
    void closeDevice();
    QToolButton* makeButton(const QString& objectName);

    ProcSimIODevice* m_device;
    QHBoxLayout* m_addrRow;
    ProcSimIOAddrLine* m_addrLine;
    ProcSimEdtDirection* m_direction;
    QHBoxLayout* m_directionLine;
    QVBoxLayout* m_body;
    bool m_closing = false;
};

} // namespace nsProc
