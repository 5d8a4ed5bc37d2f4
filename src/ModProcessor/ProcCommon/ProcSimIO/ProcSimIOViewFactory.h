#pragma once

namespace nsProc {

class ProcSimIODeviceView;
class ProcSimIOPluginIf;

/// Makes the card of a device, by the kind of the device. The devices themselves know no view.
class ProcSimIOViewFactory
{
public:
    /// @return a new card without a parent, which shows the device; belongs to the caller. Null for a kind without a
    /// card
    static ProcSimIODeviceView* createView(ProcSimIOPluginIf* device);
};

} // namespace nsProc
