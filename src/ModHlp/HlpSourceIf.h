#pragma once

namespace nsModHlp {

class HlpNetworkAccessManager;

/// Where the pages of the help come from.
class HlpSourceIf
{
public:
    virtual ~HlpSourceIf() = default;

    /// Loads the pages. Made at the first call, as it takes a tenth of the start of the program. Not owned by the
    /// caller, lives as long as this object.
    virtual HlpNetworkAccessManager* network() = 0;
    /// Has the collection been opened, with or without success?
    virtual bool isReady() const = 0;
};

} // namespace nsModHlp
