#include "ModArgs.h"

#include "ModMsgHookIf.h"

#include <QCoreApplication>

namespace nsModArgs {

namespace {

const QString keyPrjFile = QStringLiteral("-");
const QString keyScriptFile = QStringLiteral("-s");

} // namespace

ModArgs::ModArgs(QObject* parent)
    : QObject(parent)
{
}

ModArgs::~ModArgs() = default;

bool ModArgs::hasError() const
{
    return m_error;
}

QString ModArgs::prjFile() const
{
    return m_prjFile;
}

QString ModArgs::scriptFile() const
{
    return m_scriptFile;
}

QStringList ModArgs::arguments() const
{
    return QCoreApplication::arguments();
}

bool ModArgs::setupArguementMap()
{
    m_map.clear();
    const QStringList words = arguments();
    if (words.size() < 2)
        return false;
    QString key;
    for (const QString& word : words.mid(1)) {
        if (word.isEmpty())
            continue;
        if (word.startsWith(QLatin1Char('-'))) {
            if (!key.isNull())
                m_map.insert(key, QString());
            key = word;
        } else {
            m_map.insert(key.isNull() ? keyPrjFile : key, word);
            key = QString();
        }
    }
    if (!key.isNull())
        m_map.insert(key, QString());
    return true;
}

bool ModArgs::checkArguementMap()
{
    for (const QString& key : m_map.uniqueKeys()) {
        bool success = false;
        if (key == keyPrjFile)
            success = takeSingle(key, tr("Multiple project files defined: "), &m_prjFile);
        else if (key == keyScriptFile)
            success = takeSingle(key, tr("Multiple script files defined: "), &m_scriptFile);
        else
            error(tr("Found unknown argument: ") + key);
        if (!success)
            return false;
    }
    return true;
}

bool ModArgs::takeSingle(const QString& key, const QString& errorText, QString* file)
{
    const QStringList values = m_map.values(key);
    if (values.size() == 1) {
        *file = values.constFirst();
        return true;
    }
    for (const QString& value : values)
        error(errorText + value);
    return false;
}

void ModArgs::error(const QString& text)
{
    if (modMsgHook != nullptr)
        modMsgHook->showErrorMessage(text);
}

// --- life cycle ---

void ModArgs::modRegisterPlugins(QList<ModPluginIf*>) {}

void ModArgs::modInit()
{
    m_error = false;
    if (setupArguementMap())
        m_error = !checkArguementMap();
}

void ModArgs::modInitIntermod() {}

void ModArgs::modRun() {}

bool ModArgs::modExitRequest()
{
    return true;
}

void ModArgs::modExitIntermod() {}

void ModArgs::modExit() {}

} // namespace nsModArgs
