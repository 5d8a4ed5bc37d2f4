#pragma once

#include "ModMsgPluginIf.h"
#include "ModPluginIf.h"

#include <QObject>

namespace nsModFonts {

/// Makes the fonts that ship with the program available to its widgets, so that the default fonts of the settings are
/// there on a machine without them.
class ModFonts : public QObject, public ModPluginIf, public ModMsgPluginIf
{
    Q_OBJECT

public:
    explicit ModFonts(QObject* parent = nullptr);

    /// Loads the fonts of the running program.
    void initFonts();
    /// The same for a program somewhere else; reports what is loaded and what is not.
    /// @param programDir folder of the program file
    void initFonts(const QString& programDir);

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*>) override {}
    void modInit() override {}
    void modInitIntermod() override;
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override {}
    void modExit() override {}

private:
    /// @return false: there is no such folder, or a file of it is no font
    bool setupFonts(const QString& programDir);
    bool setupFont(const QString& path);
};

} // namespace nsModFonts
