#pragma once

#include <QString>
#include <QStringList>

class ModCfgAppHookIf;

namespace nsModImport {

/// What the user enters to import a program. Kept for this user, as he tries again until it is right.
struct ImportProgramConfig
{
    enum eMode_t { modeSources = 0, modeImage = 1 };

    int mode = modeSources; ///< of eMode_t
    QString source;         ///< main source
    QString dialect;        ///< its key; empty: told by the source
    QStringList folders;    ///< of included files
    QString reference;      ///< image of the old tool; may be empty
    QString folder;         ///< of the project made of sources
    QString image;          ///< in mode modeImage
    QString processor;      ///< key of its processor
    QString imageFolder;    ///< of the project made of the image

    /// @param settings not owned
    void rdConfig(ModCfgAppHookIf* settings);
    void wrConfig(ModCfgAppHookIf* settings) const;
};

} // namespace nsModImport
