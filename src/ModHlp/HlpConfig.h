#pragma once

class ModCfgAppHookIf;

namespace nsModHlp {

/// The user's settings of the help.
class HlpConfig
{
public:
    /// Where contents and index stand.
    enum eIndexLocation_t { indexDisabled = 0, indexLeft = 1, indexRight = 2 };

    /// A missing key, or one with an invalid value, leaves the field as it is.
    void rdHlpConfig(ModCfgAppHookIf* cfg);
    void wrHlpConfig(ModCfgAppHookIf* cfg) const;

    int hlpIndexSideRight = indexRight; ///< a value of eIndexLocation_t
    bool showGettingStarted = true;     ///< at the start of the program
    bool showOnlyOneHelpPage = true;    ///< a further page takes the place of the current one
};

} // namespace nsModHlp
