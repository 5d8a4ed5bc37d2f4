#pragma once

#include "ActionGroup.h"

namespace nsModHlp {

/// The entries that open pages of the help.
class HlpActionsHelp : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionOnlineHelp = 0, eActionAbout = 1, eActionContext = 2, eActionWhatsThis = 3 };
    Q_ENUM(eAction_t)

    explicit HlpActionsHelp(QObject* parent = nullptr);

signals:
    void triggered(nsModHlp::HlpActionsHelp::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

} // namespace nsModHlp
