#include "AsmFixture.h"

#include <QAction>
#include <QFile>

using namespace nsModAsmFe;

AsmFixture::AsmFixture(int parts)
{
    editor.withMenu = (parts & partMenu) != 0;
    msg.attach(static_cast<ModMsgPluginIf*>(&asmFe));
    navi.registerPlugin(&asmFe);
    syscall.registerPlugin(&asmFe);
    if ((parts & partEditor) != 0)
        editor.registerPlugin(&asmFe);
    prj.registerPlugin(static_cast<ModPrjPluginIf*>(&asmFe));
    sources.registerPlugin(&asmFe);
    gui.registerPlugin(static_cast<ModGuiPluginIf*>(&asmFe));
    action.registerPlugin(static_cast<ModActionPluginIf*>(&asmFe));
    asmFe.modInit();
    asmFe.modInitIntermod();
    if ((parts & partBackend) != 0)
        asmFe.registerPlugin(&be);
    calls.clear();
}

AsmFixture::~AsmFixture()
{
    asmFe.unregisterPlugin(&be);
    asmFe.modExitIntermod();
    asmFe.modExit();
}

QString AsmFixture::write(const QString& name, const QByteArray& content) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s could not be written", qPrintable(name));
    return file.fileName();
}

QByteArray AsmFixture::read(const QString& name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void AsmFixture::open()
{
    prj.open(write("test.nalvo", "<project/>"));
    calls.clear();
}

void AsmFixture::setSources(const QList<QByteArray>& texts)
{
    sources.srcFiles.clear();
    for (int i = 0; i < texts.size(); ++i)
        sources.srcFiles.append(write(QString("src%1.psm").arg(i), texts.at(i)));
}

bool AsmFixture::run(const QByteArray& source, ModAsmFe::eAssembleEvent_t event)
{
    if (!prj.isValid())
        open();
    setSources({source});
    calls.clear();
    asmFe.assemble(event);
    return asmFe.isAssembled();
}

bool AsmFixture::actionEnabled(AsmFeActions::eAction_t wanted)
{
    const QList<QAction*> actions = asmFe.menuActions(ModActionHookIf::eActionClassAssembler);
    for (const QAction* entry : actions) {
        if (entry->data().toInt() == int(wanted))
            return entry->isEnabled();
    }
    return false;
}
