#pragma once

#include "BatchMsg.h"

#include <QString>

class QJsonObject;

namespace nsImport {
class ImportJob;
struct ImportMessage;
} // namespace nsImport

namespace nsNalvoImport {

/// What the program tells its user: messages, and on standard output what was done.
class ImportReport
{
public:
    explicit ImportReport(const nsBatch::BatchMsgStyle& style);

    /// Shows the messages of the job that were not shown yet.
    void showNew(const nsImport::ImportJob& job);
    /// A line of text; nothing with JSON messages.
    void say(const QString& line);
    /// A line of JSON; nothing with text messages.
    void object(const QJsonObject& object);

    int errors() const { return m_msg.errors(); }
    int warnings() const { return m_msg.warnings(); }

private:
    void show(const nsImport::ImportMessage& message);

    nsBatch::BatchMsgStyle m_style;
    nsBatch::BatchMsg m_msg;
    int m_shown = 0; ///< messages of the job
};

} // namespace nsNalvoImport
