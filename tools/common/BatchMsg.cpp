#include "BatchMsg.h"

#include "BatchOutput.h"

#include "ModMsgPluginIf.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace nsBatch {

namespace {

const char* severity(ModMsgHookIf::eMsgType_t type)
{
    switch (type) {
    case ModMsgHookIf::eMsgInfo:
        return "info";
    case ModMsgHookIf::eMsgWarning:
        return "warning";
    case ModMsgHookIf::eMsgError:
        break;
    }
    return "error";
}

} // namespace

BatchMsg::BatchMsg(const BatchMsgStyle& style)
    : m_style(style)
{
}

void BatchMsg::registerPlugin(ModMsgPluginIfInterMod* plugin)
{
    if (plugin != nullptr)
        plugin->modMsgHook = this;
}

void BatchMsg::unregisterPlugin(ModMsgPluginIfInterMod* plugin)
{
    if (plugin != nullptr)
        plugin->modMsgHook = nullptr;
}

void BatchMsg::registerPlugin(ModMsgPluginIf* plugin)
{
    if (plugin != nullptr)
        plugin->modMsgHook = this;
}

void BatchMsg::unregisterPlugin(ModMsgPluginIf* plugin)
{
    if (plugin != nullptr)
        plugin->modMsgHook = nullptr;
}

void BatchMsg::openMessageGroup(QString text, QUrl hlpDoc)
{
    if (m_style.verbose && !m_style.json)
        printText(eMsgInfo, text, hlpDoc.fragment(), QString(), -1);
    m_groups.append(text);
}

void BatchMsg::closeMessageGroup(bool)
{
    if (!m_groups.isEmpty())
        m_groups.removeLast();
}

bool BatchMsg::isShown(eMsgType_t type, const QString& key) const
{
    // A warning that makes the run fail is always printed.
    const bool warningIsShown = !m_style.quiet || isFatal(key);
    return type == eMsgError || (type == eMsgWarning && warningIsShown) || (type == eMsgInfo && m_style.verbose);
}

void BatchMsg::showMessage(eMsgType_t type, QString text, QUrl hlpDoc, nsModMsg::MsgUrl srcFile)
{
    if (type < eMsgInfo || type > eMsgError)
        return;
    m_errors += int(type == eMsgError);
    m_warnings += int(type == eMsgWarning);
    m_fatalWarnings += int(type == eMsgWarning && isFatal(hlpDoc.fragment()));
    if (!isShown(type, hlpDoc.fragment()))
        return;
    const QString file = shownPath(srcFile.path());
    const int line = srcFile.hasFragment() ? srcFile.fragment().toInt() + 1 : -1;
    if (m_style.json)
        printJson(type, text, hlpDoc.fragment(), file, line);
    else
        printText(type, text, hlpDoc.fragment(), file, line);
}

void BatchMsg::showInfoMessage(QString text, QUrl hlpDoc, nsModMsg::MsgUrl srcFile)
{
    showMessage(eMsgInfo, text, hlpDoc, srcFile);
}

void BatchMsg::showWarningMessage(QString text, QUrl hlpDoc, nsModMsg::MsgUrl srcFile)
{
    showMessage(eMsgWarning, text, hlpDoc, srcFile);
}

void BatchMsg::showErrorMessage(QString text, QUrl hlpDoc, nsModMsg::MsgUrl srcFile)
{
    showMessage(eMsgError, text, hlpDoc, srcFile);
}

void BatchMsg::printText(eMsgType_t type, const QString& text, const QString& key, const QString& file, int line)
{
    QString shown;
    if (!file.isEmpty() && line > 0)
        shown = file + ':' + QString::number(line) + ": ";
    else if (!file.isEmpty())
        shown = file + ": ";
    shown += QLatin1String(severity(type)) + QLatin1String(": ") + readable(text);
    if (!key.isEmpty())
        shown += " [" + key + ']';
    printLine(stderr, oneLine(shown).toLocal8Bit());
}

void BatchMsg::printJson(eMsgType_t type, const QString& text, const QString& key, const QString& file, int line)
{
    const QJsonObject object{{"severity", severity(type)},
                             {"key", key},
                             {"text", readable(text)},
                             {"file", file.isEmpty() ? QJsonValue() : QJsonValue(file)},
                             {"line", line > 0 ? QJsonValue(line) : QJsonValue()},
                             {"groups", QJsonArray::fromStringList(m_groups)}};
    printLine(stdout, QJsonDocument(object).toJson(QJsonDocument::Compact));
}

} // namespace nsBatch
