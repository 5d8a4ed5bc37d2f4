#include "ProcSimOutcome.h"

#include <QCoreApplication>

namespace nsProc {

QString sSimReport_t::key() const
{
    switch (kind) {
    case eKindMessage:
        return QString::fromLatin1(simMsg(msg)->key);
    case eKindUnsupported:
        return QStringLiteral("errOcUnsupported");
    case eKindInternal:
        break;
    }
    return QStringLiteral("internal");
}

QString sSimReport_t::text() const
{
    const auto translated = [](const char* text) { return QCoreApplication::translate("nsProc::ProcSim", text); };
    if (kind == eKindInternal)
        return translated("Internal error: ") + arg;
    const QString pattern = translated(simMsg(msg)->text);
    return pattern.contains("%1") ? pattern.arg(arg.isEmpty() ? QString::number(value) : arg) : pattern;
}

void SimOutcome::report(eSimMsg_t msg, const QString& arg, int value)
{
    reports.push_back({sSimReport_t::eKindMessage, msg, arg, value});
}

void SimOutcome::reportInternal(const QString& text)
{
    reports.push_back({sSimReport_t::eKindInternal, errNoOpcodeToExec, text, 0});
}

} // namespace nsProc
