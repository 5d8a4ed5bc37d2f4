#pragma once

#include "ActionGroup.h"

namespace nsModHlp {

/// The entries that go through the history of the current help page.
class HlpActionsNavi : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionGoBack = 0, eActionGoForward = 1 };
    Q_ENUM(eAction_t)

    explicit HlpActionsNavi(QObject* parent = nullptr);

signals:
    void triggered(nsModHlp::HlpActionsNavi::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

} // namespace nsModHlp
