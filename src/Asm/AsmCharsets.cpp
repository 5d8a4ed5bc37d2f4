#include "AsmCharsets.h"

#include "AsmFeMsgHndlr.h"

#include <QTextCodec>

namespace nsModAsmFe {

AsmCharsets::AsmCharsets(AsmFeMsgHndlr& messages)
    : m_messages(messages)
{
}

const QStringList& AsmCharsets::names()
{
    if (m_names.isEmpty()) {
        m_names = available();
        m_set = QSet<QString>(m_names.cbegin(), m_names.cend());
    }
    return m_names;
}

QStringList AsmCharsets::available()
{
    QStringList names;
    const QList<QByteArray> codecs = QTextCodec::availableCodecs();
    for (const QByteArray& codec : codecs)
        names.append(QString::fromLatin1(codec).toUpper());
    return names;
}

bool AsmCharsets::contains(const QString& upperName)
{
    names();
    return m_set.contains(upperName);
}

void AsmCharsets::resetDefaultCodec(const QString& name)
{
    m_defaultCodec = QTextCodec::codecForName(name.toLatin1());
}

bool AsmCharsets::setupDefaultCodec(const QString& name)
{
    resetDefaultCodec(name);
    if (m_defaultCodec == nullptr) {
        m_messages.signMsg(errStrIvldDefaultCharset, name);
        return false;
    }
    m_messages.signMsg(infoStrSetDefaultCharset, QString::fromLatin1(m_defaultCodec->name()));
    return true;
}

bool AsmCharsets::syntacticsCheckDefaultTextCodec()
{
    if (m_defaultCodec != nullptr)
        return true;
    m_messages.signMsg(errStrNoDefaultCodec);
    return false;
}

} // namespace nsModAsmFe
