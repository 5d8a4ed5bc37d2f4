#include "ExampleProjects.h"

#include "CfgStore.h"
#include "PrjConfig.h"
#include "PrjFile.h"
#include "ShippedFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace nsModPrj {

namespace {

const QLatin1String folderOfExamples("examples");
const QLatin1String folderOfTemplates("templates"); ///< beside an example

bool copyFile(const QString& from, const QString& to, QString* error)
{
    QFile source(from);
    if (!source.copy(to)) {
        *error = ExampleProjects::tr("Can not write %1: %2").arg(QDir::toNativeSeparators(to), source.errorString());
        return false;
    }
    // What ships may be read-only, and the copy is there to be changed.
    QFile::setPermissions(to, QFile::permissions(to) | QFile::ReadOwner | QFile::WriteOwner);
    return true;
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What a run of the shipped example has written is no part of it.
bool isWritten(const QFileInfo& file)
{
    return file.dir().dirName() == QLatin1String("output") && !file.fileName().startsWith(QLatin1Char('.'));
}

} // namespace

ExampleProjects::ExampleProjects(const QString& dir)
    : m_dir(dir)
{
}

ExampleProjects ExampleProjects::shipped()
{
    return ExampleProjects(ShippedFolder::find(ShippedFolder::programDir(), folderOfExamples));
}

QVector<ExampleProject> ExampleProjects::list() const
{
    QVector<ExampleProject> examples;
    if (m_dir.isEmpty())
        return examples;
    for (const QString& folder : QDir(m_dir).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QDir dir(m_dir + QLatin1Char('/') + folder);
        const QStringList files = dir.entryList({QStringLiteral("*.nalvo")}, QDir::Files, QDir::Name);
        CfgStore tree;
        QString error;
        if (files.isEmpty() || !PrjFile::read(&tree, dir.filePath(files.constFirst()), &error))
            continue;
        PrjConfig info;
        info.rdPrjConfig(&tree);
        examples.append({folder, files.constFirst(), info.cfgTitle.isEmpty() ? folder : info.cfgTitle.simplified(),
                         info.cfgComment.simplified()});
    }
    std::sort(examples.begin(), examples.end(), [](const ExampleProject& a, const ExampleProject& b) {
        return QString::localeAwareCompare(a.title, b.title) < 0;
    });
    return examples;
}

QString ExampleProjects::freeName(const QString& targetDir, const ExampleProject& example)
{
    const QDir dir(targetDir);
    const auto isTaken = [&dir](const QString& name) {
        const QFileInfo info(dir.filePath(name));
        return info.exists() || info.isSymLink();
    };
    QString name = example.folder;
    for (int number = 2; isTaken(name); ++number)
        name = QStringLiteral("%1_%2").arg(example.folder).arg(number);
    return name;
}

QString ExampleProjects::copy(const ExampleProject& example, const QString& targetDir, QString* error) const
{
    const QString from = m_dir + QLatin1Char('/') + example.folder;
    if (m_dir.isEmpty() || !QFileInfo(from).isDir()) {
        *error = tr("The example is not there any more: %1").arg(QDir::toNativeSeparators(from));
        return QString();
    }
    if (targetDir.isEmpty() || !QFileInfo(targetDir).isDir()) {
        *error = tr("The folder does not exist: %1").arg(QDir::toNativeSeparators(targetDir));
        return QString();
    }
    const QString name = freeName(targetDir, example);
    QDir target(targetDir);
    if (!target.mkdir(name)) {
        *error = tr("Can not make a folder in %1").arg(QDir::toNativeSeparators(targetDir));
        return QString();
    }
    const QString to = target.absoluteFilePath(name);
    // The folder of the outputs is empty where an installation ships it.
    bool success = true;
    for (QDirIterator it(from, QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories); it.hasNext();)
        success = target.mkpath(to + QLatin1Char('/') + QDir(from).relativeFilePath(it.next())) && success;
    for (const QString& file : ShippedFolder::filesBelow(from)) {
        const QFileInfo info(file);
        const QString path = to + QLatin1Char('/') + QDir(from).relativeFilePath(file);
        success = success && target.mkpath(QFileInfo(path).path()) && (isWritten(info) || copyFile(file, path, error));
    }
    if (success && copyTemplates(from, target.absolutePath(), error))
        return to + QLatin1Char('/') + example.file;
    if (error->isEmpty())
        *error = tr("Can not make a folder in %1").arg(QDir::toNativeSeparators(to));
    QDir(to).removeRecursively();
    return QString();
}

bool ExampleProjects::copyTemplates(const QString& exampleDir, const QString& targetDir, QString* error) const
{
    static const QRegularExpression named(QStringLiteral("\\.\\./templates/([A-Za-z0-9_.-]+)"));
    const QDir from(m_dir + QLatin1Char('/') + folderOfTemplates);
    QStringList names;
    for (const QString& file : ShippedFolder::filesBelow(exampleDir)) {
        // In a project file the slash is escaped.
        const QString text = QString::fromUtf8(contentOf(file)).replace(QLatin1String("&amp;#47;"), QLatin1String("/"));
        for (auto it = named.globalMatch(text); it.hasNext();) {
            const QString name = it.next().captured(1);
            if (!names.contains(name) && QFileInfo(from.filePath(name)).isFile())
                names.append(name);
        }
    }
    const QDir target(targetDir + QLatin1Char('/') + folderOfTemplates);
    for (const QString& name : qAsConst(names)) {
        const QString path = target.filePath(name);
        if (QFileInfo::exists(path)) {
            if (contentOf(path) == contentOf(from.filePath(name)))
                continue;
            *error =
                tr("The example needs the template %1, but a file of this name with another content is there already. "
                   "Choose another folder.")
                    .arg(QDir::toNativeSeparators(path));
            return false;
        }
        if (!QDir(targetDir).mkpath(folderOfTemplates) || !copyFile(from.filePath(name), path, error)) {
            if (error->isEmpty())
                *error = tr("Can not make a folder in %1").arg(QDir::toNativeSeparators(targetDir));
            return false;
        }
    }
    return true;
}

} // namespace nsModPrj
