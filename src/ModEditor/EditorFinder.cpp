#include "EditorFinder.h"

#include "EditorWidget.h"
#include "OpenDocuments.h"

#include "ModFindReplaceHookIf.h"
#include "ModFindReplacePluginIf.h"
#include "ModGuiHookIf.h"
#include "ModGuiPluginIf.h"

namespace nsModEditor {

void EditorFinder::setFindParameter()
{
    auto* hook = m_strip->modFindReplaceHook;
    if (hook == nullptr)
        return;
    m_findParameter.findString = hook->findString();
    m_findParameter.replaceString = hook->replaceString();
    m_findParameter.caseSensitive = hook->isCaseSensitive();
    m_findParameter.wholeWords = hook->isWholeWords();
    m_findParameter.wrapPending = false;
}

void EditorFinder::find(bool configChanged, bool backward)
{
    if (configChanged)
        setFindParameter();
    EditorWidget* widget = m_documents->current();
    if (widget == nullptr)
        return;
    const auto search = [&](EditorWidget::eFindOrigin_t origin) {
        return widget->find(m_findParameter.findString, m_findParameter.caseSensitive, m_findParameter.wholeWords,
                            backward, origin);
    };
    const auto say = [this](const QString& text) {
        if (m_gui->modGuiHook != nullptr)
            m_gui->modGuiHook->setStatusBarText(text);
    };
    const auto sayNothing = [this] {
        if (m_gui->modGuiHook != nullptr)
            m_gui->modGuiHook->clearStatusBarText();
    };
    if (search(EditorWidget::eFindOriginCursor)) {
        if (m_findParameter.wrapPending)
            sayNothing();
        m_findParameter.wrapPending = false;
        return;
    }
    if (!m_findParameter.wrapPending) {
        m_findParameter.wrapPending = true;
        say(backward ? tr("Begin of file reached, continuing from the end...")
                     : tr("End of file reached, continuing from the begin..."));
        return;
    }
    m_findParameter.wrapPending = false;
    if (!search(backward ? EditorWidget::eFindOriginEnd : EditorWidget::eFindOriginStart))
        say(tr("String not found."));
    else
        sayNothing();
}

void EditorFinder::replace(bool configChanged)
{
    if (configChanged)
        setFindParameter();
    EditorWidget* widget = m_documents->current();
    if (widget == nullptr)
        return;
    if (m_strip->modFindReplaceHook != nullptr)
        m_findParameter.replaceString = m_strip->modFindReplaceHook->replaceString();
    // The user may have selected another text since the search.
    if (widget->isHit(m_findParameter.findString, m_findParameter.caseSensitive, m_findParameter.wholeWords))
        widget->replace(m_findParameter.replaceString);
    find(configChanged, false);
}

void EditorFinder::replaceAll(bool configChanged)
{
    if (configChanged)
        setFindParameter();
    EditorWidget* widget = m_documents->current();
    if (widget != nullptr)
        widget->replaceAll(m_findParameter.findString, m_findParameter.replaceString, m_findParameter.caseSensitive,
                           m_findParameter.wholeWords);
}

} // namespace nsModEditor
