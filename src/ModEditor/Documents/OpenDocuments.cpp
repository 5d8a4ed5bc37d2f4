#include "OpenDocuments.h"

#include "EditorWidget.h"

#include "ModGuiHookIf.h"
#include "ModGuiPluginIf.h"

namespace nsModEditor {

EditorWidget* OpenDocuments::current() const
{
    if (m_gui->modGuiHook == nullptr)
        return nullptr;
    auto* widget = qobject_cast<EditorWidget*>(m_gui->modGuiHook->currentWidget(ModGuiHookIf::eLocationTabs));
    return contains(widget) ? widget : nullptr;
}

void OpenDocuments::remove(EditorWidget* widget)
{
    if (!m_widgets.removeOne(widget))
        return;
    m_watchers.forEach([widget](ModEditorPluginIfText* watcher) { watcher->documentClosing(widget); });
}

void OpenDocuments::reportOpened(EditorWidget* widget) const
{
    m_watchers.forEach([widget](ModEditorPluginIfText* watcher) { watcher->documentOpened(widget); });
}

void OpenDocuments::reportCurrent(EditorWidget* widget)
{
    if (!contains(widget))
        widget = nullptr;
    if (widget == m_reportedCurrent)
        return;
    m_reportedCurrent = widget;
    m_watchers.forEach([widget](ModEditorPluginIfText* watcher) { watcher->currentDocumentChanged(widget); });
}

EditorWidget* OpenDocuments::of(const QString& path) const
{
    for (EditorWidget* widget : m_widgets) {
        if (widget->filePath() == path)
            return widget;
    }
    return nullptr;
}

QStringList OpenDocuments::pathsByPage() const
{
    QStringList paths;
    if (m_gui->modGuiHook == nullptr)
        return paths;
    for (QWidget* page : m_gui->modGuiHook->centerWidgetList()) {
        auto* widget = qobject_cast<EditorWidget*>(page);
        if (contains(widget) && !widget->filePath().isEmpty())
            paths.append(widget->filePath());
    }
    return paths;
}

void OpenDocuments::show(EditorWidget* widget) const
{
    if (m_gui->modGuiHook != nullptr)
        m_gui->modGuiHook->setCurrentWidget(widget);
}

QSplitter* OpenDocuments::splitPage(EditorWidget* widget, QWidget* second, Qt::Orientation orientation) const
{
    return m_gui->modGuiHook != nullptr ? m_gui->modGuiHook->splitPage(widget, second, orientation) : nullptr;
}

void OpenDocuments::focusCurrent() const
{
    if (EditorWidget* widget = current())
        widget->setFocus();
}

} // namespace nsModEditor
