#include "ImportFilter.h"

#include "FilterText.h"
#include "ImportFilterT001.h"

#include "ShippedFolder.h"

#include <QDebug>
#include <QDirIterator>
#include <QFileInfo>
#include <QRegExp>

namespace nsModImport {

ImportFilter::ImportFilter(QObject* parent)
    : ImportFilter(filterDir(ShippedFolder::programDir()), parent)
{
}

ImportFilter::ImportFilter(const QString& dir, QObject* parent)
    : QObject(parent)
{
    initFilterList(dir);
}

QString ImportFilter::filterDir(const QString& programDir)
{
    return ShippedFolder::find(programDir, QStringLiteral("asmImportFilter"));
}

QStringList ImportFilter::scanDirectory(const QString& dir)
{
    QStringList files;
    // Links to folders are not followed, so a circle of them does no harm.
    QDirIterator it(dir, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext())
        files.append(it.next());
    files.sort();
    return files;
}

void ImportFilter::initFilterList(const QString& dir)
{
    if (dir.isEmpty())
        return;
    for (const QString& path : scanDirectory(dir))
        setupFilterIf(path);
}

void ImportFilter::setupFilterIf(const QString& path)
{
    // A file that can be opened may still be none to read, such as a device.
    if (!QFileInfo(path).isReadable()) {
        qDebug().noquote() << "Cannot open filter file: " + path;
        return;
    }
    QRegExp type(QStringLiteral("^type:[\\s\\t]*(\\S+.*)[\\r\\n]+"));
    for (const QString& line : filterLines(path)) {
        if (!type.exactMatch(line))
            continue;
        if (type.cap(1) == QLatin1String("T001")) {
            auto* filter = new ImportFilterT001(path, this);
            // The same name again replaces the earlier filter.
            delete filters.take(filter->filterName());
            filters.insert(filter->filterName(), filter);
        }
        return;
    }
}

QStringList ImportFilter::filterNames() const
{
    QStringList names = filters.keys();
    names.sort(Qt::CaseInsensitive);
    return names;
}

ImportFilterIf* ImportFilter::filter(const QString& name) const
{
    return filters.value(name, nullptr);
}

} // namespace nsModImport
