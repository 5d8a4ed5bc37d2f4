#include "ModTemplates.h"

#include "EditorSupportMenu.h"
#include "LateContent.h"
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
    const QRegExp leading(QStringLiteral("^\\s*"));
    const QRegExp lineEnd(QStringLiteral("[\\r\\n]*$"));
    const QByteArray text = file.readAll();
    // Hardly a line begins with the word, and the expression takes longer than all the rest.
    const QByteArray word("menuItem");
    for (int at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + 1)) {
        if (at > 0 && text.at(at - 1) != '\n')
            continue;
        const int end = text.indexOf('\n', at);
        QRegExp menuItem(QStringLiteral("menuItem\\s*=\\s*(\\S+.*)$"));
        if (menuItem.exactMatch(QString::fromLatin1(text.mid(at, end < 0 ? -1 : end + 1 - at))))
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
    LateContent::later(this, [this] { initTemplates(); });
}

} // namespace nsModTemplates
