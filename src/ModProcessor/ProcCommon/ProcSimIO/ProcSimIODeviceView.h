#pragma once

#include <QFrame>

namespace nsProc {

class ProcSimIODevice;

/// The card of one device in the column of ports. Belongs to its device.
class ProcSimIODeviceView : public QFrame
{
    Q_OBJECT

public:
    explicit ProcSimIODeviceView(ProcSimIODevice* device);
    ~ProcSimIODeviceView() override;

    /// Shows what has changed in the device since the last call; costs next to nothing if that is nothing.
    void refresh();
    /// The device ends: nothing that the user still does here has a meaning.
    void forgetDevice();
    /// The user has clicked the close button.
    bool isClosing() const { return m_closing; }

protected:
    virtual void showDevice() {}

private:
    ProcSimIODevice* m_device;
    bool m_closing = false;
};

} // namespace nsProc
