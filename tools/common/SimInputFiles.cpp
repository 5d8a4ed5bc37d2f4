#include "SimInputFiles.h"

#include "BatchNumbers.h"
#include "BatchOutput.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace nsBatch {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("nsBatch", text);
}

} // namespace

bool SimInputFiles::readOptions(const QCommandLineParser& parser)
{
    reads = parser.value("reads");
    if (parser.isSet("reads") && reads.isEmpty())
        return wrongUsage(tr("The name of the file of reads is empty."));
    stimulus = parser.value("stimulus");
    if (parser.isSet("stimulus") && stimulus.isEmpty())
        return wrongUsage(tr("The name of the file is empty: --%1").arg("stimulus"));
    for (const QString& text : parser.values("port")) {
        int port = 0;
        QString file;
        if (!readPortFile(text, &port, &file))
            return false;
        if (ports.contains(port))
            return wrongUsage(tr("Two files for one port: %1").arg(text));
        ports.insert(port, file);
    }
    if (int(reads == "-") + int(stimulus == "-") + ports.values().count("-") > 1)
        return wrongUsage(tr("Only one of the inputs can come from standard input."));
    return true;
}

QStringList SimInputFiles::names() const
{
    QStringList files = QStringList{reads, stimulus} + ports.values();
    files.removeAll(QString());
    files.removeAll("-");
    return files;
}

} // namespace nsBatch
