#pragma once

#include "BatchMsg.h"

#include "ImportMsg.h"

class QJsonObject;

namespace nsNalvoImport {

/// What the program tells its user: messages, and on standard output what was done.
class ImportReport
{
public:
    explicit ImportReport(const nsBatch::BatchMsgStyle& style);

    void show(nsImport::eImportMsg_t type, const QStringList& arguments);
    void showAll(const nsImport::ImportMessages& messages);
    /// A line of text; nothing with JSON messages.
    void say(const QString& line);
    /// A line of JSON; nothing with text messages.
    void object(const QJsonObject& object);

    int errors() const { return m_msg.errors(); }
    int warnings() const { return m_msg.warnings(); }

private:
    nsBatch::BatchMsgStyle m_style;
    nsBatch::BatchMsg m_msg;
};

} // namespace nsNalvoImport
