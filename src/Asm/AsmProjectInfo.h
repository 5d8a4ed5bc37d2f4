#pragma once

#include <QDir>
#include <QString>

namespace nsModAsmFe {

/// What a run must know of the project that it assembles.
struct AsmProjectInfo
{
    QString dir; ///< absolute folder of the project file
    QString fileName;
    QString title;
    QString version;
    QString comment;

    /// A path of the project made absolute.
    QString absPath(const QString& path) const { return QDir(dir).absoluteFilePath(path); }
};

} // namespace nsModAsmFe
