#pragma once

#include "SourceTree.h"

#include <QHash>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

namespace nsHouse {

/// Compares what the build files and ARCHITECTURE.md say about dependencies with the includes of the files.
///
/// Each operation returns its findings, one a line; none where the tree is as it says.
class Borders
{
public:
    /// Reads the names of all headers. @p qtCoreHeaders: the folder of Qt Core's headers
    Borders(const SourceTree& tree, const QString& qtCoreHeaders);

    /// Headers that share their name: an include that names no folder would find either.
    QStringList doubleNames() const;
    /// USES and CORES of each module and each face, beside the faces and libraries that their files include.
    QStringList declaredUses() const;
    /// The column "uses" of the table of modules in ARCHITECTURE.md, beside USES.
    QStringList documentedUses() const;
    /// The ground floor: no header of the upper floor or of Qt outside Qt Core; USES of each library beside its
    /// includes.
    QStringList groundFloor() const;
    /// The list of modules of the build, beside the modules that the window creates and the folders that there are.
    QStringList moduleList() const;

private:
    /// What the files of one module or library include.
    struct sIncludes_t
    {
        QSet<QString> faces;
        QSet<QString> cores;
    };

    void readCores();
    void readHeaders();
    QString coreOf(const QString& path) const;
    QString faceOf(const QString& header) const;
    sIncludes_t includesOf(const QStringList& files, const QString& self) const;
    void compareDeclaration(const QString& folder, const QString& function, const QStringList& files,
                            QStringList& findings) const;
    void checkCoreFile(const QString& path, QStringList& findings) const;

    SourceTree m_tree;
    QString m_qtCoreHeaders;
    QMap<QString, QString> m_cores;        ///< library to folder
    QHash<QString, QStringList> m_headers; ///< name of a header to its paths
    QStringList m_faces;                   ///< modules with a face, the longest name first
};

/// Names after a keyword in a call of a CMake function, as those of "nalvo_module(NAME ModXxx USES ModYyy ModZzz)".
QStringList cmakeArguments(const QString& text, const QString& function, const QString& keyword);

/// The names in quotes or angle brackets of all #include lines.
QStringList includesIn(const QString& text);

} // namespace nsHouse
