#include "ModFonts.h"

#include "LateContent.h"
#include "ModMsgHookIf.h"
#include "ShippedFolder.h"

#include <QDir>
#include <QFontDatabase>

namespace nsModFonts {

ModFonts::ModFonts(QObject* parent)
    : QObject(parent)
{
}

void ModFonts::initFonts()
{
    initFonts(ShippedFolder::programDir());
}

void ModFonts::initFonts(const QString& programDir)
{
    if (modMsgHook != nullptr)
        modMsgHook->openMessageGroup(tr("Loading fonts..."));
    const bool success = setupFonts(programDir);
    if (modMsgHook != nullptr)
        modMsgHook->closeMessageGroup(success);
}

bool ModFonts::setupFonts(const QString& programDir)
{
    const QString dir = ShippedFolder::find(programDir, QStringLiteral("fonts"));
    if (dir.isEmpty()) {
        if (modMsgHook != nullptr)
            modMsgHook->showErrorMessage(tr("No font folder found."));
        return false;
    }
    bool success = true;
    for (const QFileInfo& file : QDir(dir).entryInfoList(QDir::Files, QDir::Name)) {
        if (!setupFont(file.filePath()))
            success = false;
    }
    return success;
}

bool ModFonts::setupFont(const QString& path)
{
    const bool success = QFontDatabase::addApplicationFont(path) >= 0;
    if (modMsgHook == nullptr)
        return success;
    if (success)
        modMsgHook->showInfoMessage(tr("Loading font: %1").arg(path));
    else
        modMsgHook->showErrorMessage(tr("Cannot load font: %1").arg(path));
    return success;
}

void ModFonts::modInitIntermod()
{
    // The first sight of the window needs none of them.
    LateContent::later(this, [this] { initFonts(); });
}

} // namespace nsModFonts
