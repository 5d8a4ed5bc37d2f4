#include "BatchMsg.h"

#include "ModMsgPluginIf.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace nsNalvoAsm {

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

void printLine(FILE* stream, const QByteArray& line)
{
    std::fwrite(line.constData(), 1, size_t(line.size()), stream);
    std::fputc('\n', stream);
}

/// A message is one line, whatever its text holds.
QString oneLine(QString text)
{
    return text.replace('\n', ' ').remove('\r');
}

} // namespace

QString shownPath(const QString& path)
{
    static const QDir working = QDir::current();
    return path.isEmpty() ? path : working.relativeFilePath(path);
}

BatchMsg::BatchMsg(const BatchOptions& options) : m_options(options) {}

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
    if (m_plugins.add(plugin))
        plugin->modMsgHook = this;
}

void BatchMsg::unregisterPlugin(ModMsgPluginIf* plugin)
{
    if (m_plugins.remove(plugin))
        plugin->modMsgHook = nullptr;
}

void BatchMsg::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<ModMsgPluginIf>(modules, this);
    registerPluginsOf<ModMsgPluginIfInterMod>(modules, this);
}

void BatchMsg::openMessageGroup(QString text, QUrl hlpDoc)
{
    if (m_options.verbose && m_options.format == BatchOptions::formatText)
        printText(eMsgInfo, text, hlpDoc.fragment(), QString(), -1);
    m_groups.append(text);
}

void BatchMsg::closeMessageGroup(bool)
{
    if (!m_groups.isEmpty())
        m_groups.removeLast();
}

bool BatchMsg::isShown(eMsgType_t type) const
{
    return type == eMsgError || (type == eMsgWarning && !m_options.quiet) || (type == eMsgInfo && m_options.verbose);
}

void BatchMsg::showMessage(eMsgType_t type, QString text, QUrl hlpDoc, nsModMsg::MsgUrl srcFile)
{
    if (type < eMsgInfo || type > eMsgError)
        return;
    m_errors += int(type == eMsgError);
    m_warnings += int(type == eMsgWarning);
    if (!isShown(type))
        return;
    const QString file = shownPath(srcFile.path());
    const int line = srcFile.hasFragment() ? srcFile.fragment().toInt() + 1 : -1;
    if (m_options.format == BatchOptions::formatJson)
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
    shown += QLatin1String(severity(type)) + QLatin1String(": ") + oneLine(text);
    if (!key.isEmpty())
        shown += " [" + key + ']';
    printLine(stderr, shown.toLocal8Bit());
}

void BatchMsg::printJson(eMsgType_t type, const QString& text, const QString& key, const QString& file, int line)
{
    const QJsonObject object{{"severity", severity(type)},
                             {"key", key},
                             {"text", text},
                             {"file", file.isEmpty() ? QJsonValue() : QJsonValue(file)},
                             {"line", line > 0 ? QJsonValue(line) : QJsonValue()},
                             {"groups", QJsonArray::fromStringList(m_groups)}};
    printLine(stdout, QJsonDocument(object).toJson(QJsonDocument::Compact));
}

void BatchMsg::showSummary(bool success, int instructions, const QStringList& files)
{
    QStringList shown;
    for (const QString& file : files)
        shown.append(shownPath(file));
    const char* const result = success ? "assembled" : "failed";
    if (m_options.format == BatchOptions::formatJson) {
        const QJsonObject object{{"result", result},
                                 {"errors", m_errors},
                                 {"warnings", m_warnings},
                                 {"instructions", instructions},
                                 {"files", QJsonArray::fromStringList(shown)}};
        printLine(stdout, QJsonDocument(object).toJson(QJsonDocument::Compact));
    } else if (!m_options.quiet) {
        std::fprintf(stderr, "nalvo-asm: %s, %d errors, %d warnings, %d instructions, %d files written\n", result,
                     m_errors, m_warnings, instructions, int(shown.size()));
    }
    std::fflush(stdout);
}

} // namespace nsNalvoAsm
