#pragma once

#include "ModMsgPluginIf.h"
#include "ModPluginIf.h"

#include <QObject>

namespace nsModFonts {

/// Makes the fonts that ship with the program available to its widgets.
class ModFonts : public QObject, public ModPluginIf, public ModMsgPluginIf
{
    Q_OBJECT

public:
    explicit ModFonts(QObject* parent = nullptr);

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*>) override {}
    void modInit() override {}
    void modInitIntermod() override {}
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override {}
    void modExit() override {}
};

} // namespace nsModFonts
