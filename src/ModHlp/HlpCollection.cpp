#include "HlpCollection.h"

#include "HlpCollectionDescription.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHelpEngine>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace nsModHlp {

namespace {

const int keptDays = 30; ///< copies of other releases are removed after this time without use

/// Names a state of the shipped files.
QString stateOf(const QFileInfo& collection)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const QFileInfo& file : collection.dir().entryInfoList(QDir::Files, QDir::Name)) {
        const QString line = QStringLiteral("%1 %2 %3\n")
                                 .arg(file.absoluteFilePath())
                                 .arg(file.size())
                                 .arg(file.lastModified().toMSecsSinceEpoch());
        hash.addData(line.toUtf8());
    }
    return QString::fromLatin1(hash.result().toHex().left(16));
}

void removeOldCopies(const QDir& cache, const QString& used)
{
    const QDateTime limit = QDateTime::currentDateTime().addDays(-keptDays);
    for (const QFileInfo& info : cache.entryInfoList({QStringLiteral("help-*")}, QDir::Dirs)) {
        if (info.fileName() != used && info.lastModified() < limit)
            QDir(info.filePath()).removeRecursively();
    }
}

} // namespace

HlpCollection::HlpCollection() = default;
HlpCollection::~HlpCollection() = default;

QString HlpCollection::find(const QString& programDir)
{
    // Beside the folder of an installed program, one further up, and in the source tree seen from a build tree.
    for (const char* place : {"/../hlp/", "/../../hlp/", "/../../Common/hlp/"}) {
        const QString file = QDir::cleanPath(programDir + QLatin1String(place) + QLatin1String("hlpCollection.qhc"));
        if (QFileInfo(file).isFile())
            return file;
    }
    return QString();
}

/// @return path of the copy's collection file; empty if there is none to copy or no place for it
QString HlpCollection::workingCopy(const QString& file)
{
    const QFileInfo info(file);
    const QDir cache(QStandardPaths::writableLocation(QStandardPaths::CacheLocation));
    if (!info.isFile() || !cache.mkpath(QStringLiteral(".")))
        return QString();
    const QString name = QStringLiteral("help-") + stateOf(info);
    const QString copy = cache.filePath(name + '/' + info.fileName());
    removeOldCopies(cache, name);
    if (QFileInfo(copy).isFile())
        return copy;
    // Another running program may make the same copy: each makes its own, and one of them gets the name.
    QTemporaryDir part(cache.filePath(QStringLiteral("help-part-XXXXXX")));
    if (!part.isValid())
        return QString();
    for (const QString& each : info.dir().entryList({info.fileName(), QStringLiteral("*.qch")}, QDir::Files)) {
        const QString target = part.filePath(each);
        if (!QFile::copy(info.dir().filePath(each), target))
            return QString();
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
    }
    if (QDir().rename(part.path(), cache.filePath(name)))
        part.setAutoRemove(false);
    return QFileInfo(copy).isFile() ? copy : QString();
}

/// @return false: it can not be read, or it is not ours
bool HlpCollection::openCopy(const QString& copy)
{
    m_engine = std::make_unique<QHelpEngine>(copy);
    return !copy.isEmpty() && m_engine->setupData() &&
           !m_engine->fileData(HlpCollectionDescription().pageTableUrl()).isEmpty();
}

void HlpCollection::close()
{
    m_engine.reset();
}

bool HlpCollection::open(const QString& file)
{
    const QString copy = workingCopy(file);
    if (openCopy(copy))
        return true;
    if (copy.isEmpty())
        return false;
    // The copy may be damaged, and what was shipped may not.
    m_engine.reset();
    QFileInfo(copy).dir().removeRecursively();
    return openCopy(workingCopy(file));
}

} // namespace nsModHlp
