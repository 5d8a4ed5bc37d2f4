#include "ProjectConsent.h"

#include "ModCfgAppHookIf.h"

#include <QCryptographicHash>
#include <QFileInfo>

namespace {

const char* const kindNames[] = {"program", "output"};

} // namespace

ProjectConsent::ProjectConsent(ModCfgAppHookIf* settings, const QString& prjFile)
    : m_settings(settings)
    , m_prjFile(QFileInfo(prjFile).canonicalFilePath())
{
    if (m_prjFile.isEmpty())
        m_prjFile = QFileInfo(prjFile).absoluteFilePath();
}

/// The texts may hold any character, so the key holds their hash, with the length of each, which sets them apart.
QString ProjectConsent::key(eKind_t kind, const QStringList& act) const
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const QString& text : QStringList(m_prjFile) + act) {
        const QByteArray bytes = text.toUtf8();
        hash.addData(QByteArray::number(bytes.size()) + ':' + bytes);
    }
    return QLatin1String("Consent/") + QLatin1String(kindNames[kind]) + '/' +
           QString::fromLatin1(hash.result().toHex());
}

ProjectConsent::eAnswer_t ProjectConsent::answer(eKind_t kind, const QStringList& act) const
{
    if (m_settings == nullptr)
        return answerNone;
    const QString kept = m_settings->value(key(kind, act), QString());
    if (kept == QLatin1String("yes"))
        return answerYes;
    return kept == QLatin1String("no") ? answerNo : answerNone;
}

void ProjectConsent::setAnswer(eKind_t kind, const QStringList& act, bool allowed)
{
    if (m_settings != nullptr)
        m_settings->setValue(key(kind, act), QString(allowed ? "yes" : "no"));
}
