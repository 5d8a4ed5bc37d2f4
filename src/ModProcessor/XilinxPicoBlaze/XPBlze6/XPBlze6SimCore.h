#pragma once

#include "ProcSimCore.h"

namespace nsXPBlze6 {

/// The dock of a simulated PicoBlaze 6.
class XPBlze6SimCore : public nsProc::ProcSimCore
{
    Q_OBJECT

public:
    XPBlze6SimCore(const std::shared_ptr<nsProc::ProcSimCoreData>& data, int pcMax, QWidget* parent = nullptr);
    /// With a state of its own.
    XPBlze6SimCore(int scrpdSize, int pcMax, QWidget* parent = nullptr);

    void setBank(int bank);
    void toggleBank();
    void setHwbld(int value);
    /// @return false, with nothing changed, while the field is empty
    bool hwbld(int* value) const;
};

} // namespace nsXPBlze6
