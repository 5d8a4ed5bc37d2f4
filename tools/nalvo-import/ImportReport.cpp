#include "ImportReport.h"

#include "BatchOutput.h"

#include "ImportJob.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

namespace nsNalvoImport {

using namespace nsBatch;
using namespace nsImport;

ImportReport::ImportReport(const BatchMsgStyle& style)
    : m_style(style)
    , m_msg(style)
{
}

void ImportReport::showNew(const ImportJob& job)
{
    for (; m_shown < job.messages().size(); ++m_shown)
        show(job.messages().at(m_shown));
}

void ImportReport::show(const ImportMessage& message)
{
    QUrl help;
    help.setScheme(QStringLiteral("pageid"));
    help.setHost(QStringLiteral("importMessages"));
    help.setFragment(message.key());
    nsModMsg::MsgUrl place;
    if (!message.file.isEmpty()) {
        place.setPath(message.file);
        if (message.line > 0)
            place.setFragment(QString::number(message.line - 1));
    }
    m_msg.showMessage(message.grade(), message.text, help, place);
}

void ImportReport::say(const QString& line)
{
    if (!m_style.quiet && !m_style.json)
        printLine(stdout, oneLine(line).toLocal8Bit());
}

void ImportReport::object(const QJsonObject& object)
{
    if (m_style.json)
        printLine(stdout, QJsonDocument(object).toJson(QJsonDocument::Compact));
}

} // namespace nsNalvoImport
