#include "DocumentKeeper.h"

#include "EditorRecovery.h"
#include "EditorServices.h"
#include "EditorWidget.h"
#include "OpenDocuments.h"

namespace nsModEditor {

DocumentKeeper::DocumentKeeper(const OpenDocuments* documents, EditorServices* services, QObject* parent)
    : QObject(parent)
    , m_documents(documents)
    , m_services(services)
    , m_session(documents, services)
{
}

DocumentKeeper::~DocumentKeeper() = default;

void DocumentKeeper::start()
{
    m_recovery = std::make_unique<EditorRecovery>();
    connect(m_recovery.get(), &EditorRecovery::looking, this, &DocumentKeeper::keepSession);
    connect(m_recovery.get(), &EditorRecovery::failed, this, [this](const QString& reason) {
        m_services->showWarning(tr("Changed texts can not be kept beside their files: ") + reason);
    });
}

void DocumentKeeper::stop()
{
    m_recovery.reset();
}

bool DocumentKeeper::keepText(EditorWidget* widget, bool isNew)
{
    const QString name = m_services->nameOf(widget->filePath());
    QString reason;
    if (m_recovery != nullptr && m_recovery->keep(widget, isNew, &reason)) {
        m_services->showInfo(tr("The unsaved text of %1 is kept: File > Recover text...").arg(name));
        return true;
    }
    m_services->showError(tr("The unsaved text of %1 can not be kept: %2").arg(name, reason));
    return false;
}

bool DocumentKeeper::keepReplacedText(EditorWidget* widget)
{
    if (!widget->isModified() || m_recovery == nullptr)
        return true;
    if (!keepText(widget, false))
        return false;
    m_recovery->release(widget);
    return true;
}

void DocumentKeeper::release(EditorWidget* widget)
{
    if (m_recovery != nullptr)
        m_recovery->release(widget);
}

bool DocumentKeeper::isKept(EditorWidget* widget) const
{
    return m_recovery != nullptr && m_recovery->isKept(widget);
}

RecoveryStore::Session DocumentKeeper::takeSession()
{
    if (m_recovery == nullptr)
        return {};
    m_recovery->setProject(m_services->projectFile());
    return m_recovery->store()->takeSession(m_services->projectFile());
}

void DocumentKeeper::clearSession()
{
    if (m_recovery == nullptr)
        return;
    m_recovery->setProject(QString());
    m_recovery->putSession({});
}

void DocumentKeeper::keepSession()
{
    RecoveryStore::Session session;
    session.project = m_services->projectFile();
    if (!session.project.isEmpty()) {
        session.files = m_documents->pathsByPage();
        if (EditorWidget* current = m_documents->current()) {
            session.lastFile = current->filePath();
            session.lastCursorPos = current->cursorPos();
        }
    }
    m_recovery->putSession(session);
}

} // namespace nsModEditor
