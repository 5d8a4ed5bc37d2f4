#include "DocumentViews.h"

#include "EditorWidget.h"
#include "EditorWidgetLeftMargin.h"
#include "SecondView.h"
#include "TextOverlay.h"
#include "ViewPlace.h"

#include <QSplitter>

namespace nsModEditor {

DocumentViews::DocumentViews(EditorWidget* page, LineHighlights* highlights)
    : m_page(page)
    , m_highlights(highlights)
{
}

DocumentViews::~DocumentViews()
{
    delete m_second;
}

SecondView* DocumentViews::second() const
{
    return m_second;
}

SecondView* DocumentViews::makeSecond()
{
    if (m_second == nullptr) {
        m_second = new SecondView(m_page);
        setHits(m_page->overlay()->hits());
        flag(m_highlights->isFlagged() ? m_highlights->flaggedLine() : -1);
        takeLook();
    }
    return m_second;
}

void DocumentViews::dropSecond()
{
    delete m_second;
}

void DocumentViews::exchange()
{
    if (m_second == nullptr)
        return;
    const sViewPlace here = sViewPlace::of(m_page);
    const sViewPlace there = sViewPlace::of(m_second);
    auto* splitter = qobject_cast<QSplitter*>(m_page->parentWidget());
    if (splitter != nullptr && splitter->count() == 2) {
        const QList<int> sizes = splitter->sizes();
        splitter->insertWidget(0, splitter->widget(1));
        splitter->setSizes(sizes);
    }
    there.show(m_page);
    m_second->showPlace(here);
}

void DocumentViews::takeLook()
{
    if (m_second == nullptr)
        return;
    m_second->lineHighlights()->setCursorColor(m_highlights->cursorColor());
    m_second->lineHighlights()->setFlagColor(m_highlights->flagColor());
    m_second->takeLook();
}

void DocumentViews::updateMargins()
{
    m_page->leftMargin()->update();
    if (m_second != nullptr)
        m_second->leftMargin()->update();
}

void DocumentViews::setHits(const sSearch_t& search)
{
    m_page->overlay()->setHits(search);
    if (m_second != nullptr)
        m_second->overlay()->setHits(search);
}

void DocumentViews::flag(int line)
{
    m_highlights->flag(line);
    if (m_second != nullptr)
        m_second->lineHighlights()->flag(line);
}

void DocumentViews::followFolds()
{
    m_highlights->followFolds();
    if (m_second != nullptr)
        m_second->lineHighlights()->followFolds();
}

} // namespace nsModEditor
