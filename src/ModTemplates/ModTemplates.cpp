#include "ModTemplates.h"

#include "EditorSupportMenu.h"
#include "ModEditorHookIf.h"
#include "ModMsgHookIf.h"
#include "ShippedFolder.h"

#include <QFile>
#include <QRegExp>

namespace nsModTemplates {

ModTemplates::ModTemplates(QObject* parent)
    : QObject(parent)
{
}

QString ModTemplates::templateDir(const QString& programDir)
{
    return ShippedFolder::find(programDir, QStringLiteral("asmTemplates"));
}

QStringList ModTemplates::scanDirectory(const QString& dir)
{
    return ShippedFolder::filesBelow(dir);
}

void ModTemplates::initTemplates(const QString& dir)
{
    if (dir.isEmpty())
        return;
    for (const QString& file : scanDirectory(dir))
        setupSupportMenu(file);
}

void ModTemplates::initTemplates()
{
    initTemplates(templateDir(ShippedFolder::programDir()));
}

void ModTemplates::setupSupportMenu(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        if (modMsgHook != nullptr)
            modMsgHook->showWarningMessage(tr("Can not read template file: ") + path);
        return;
    }
    QRegExp menuItem(QStringLiteral("menuItem\\s*=\\s*(\\S+.*)$"));
    const QRegExp leading(QStringLiteral("^\\s*"));
    const QRegExp lineEnd(QStringLiteral("[\\r\\n]*$"));
    while (!file.atEnd()) {
        const QByteArray bytes = file.readLine();
        // Hardly a line has one, and the expression takes longer than all the rest.
        if (!bytes.startsWith("menuItem"))
            continue;
        const QString line = QString::fromLatin1(bytes);
        if (!menuItem.exactMatch(line))
            continue;
        setupSupportMenuFile(menuItem.cap(1).remove(leading).remove(lineEnd), path);
    }
}

void ModTemplates::setupSupportMenuFile(const QString& path, const QString& file)
{
    nsModEditor::EditorSupportMenu* menu = modEditorHook != nullptr ? modEditorHook->supportMenu() : nullptr;
    if (menu != nullptr)
        menu->setEntry(path, file, nsModEditor::EditorSupportMenu::typeFile);
}

void ModTemplates::modInitIntermod()
{
    initTemplates();
}

} // namespace nsModTemplates
