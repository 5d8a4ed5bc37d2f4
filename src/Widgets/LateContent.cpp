#include "LateContent.h"

#include <QLayout>
#include <QList>
#include <QPointer>
#include <QWidget>

#include <utility>

namespace {

struct sWork_t
{
    QPointer<QObject> owner;
    std::function<void()> work;
};

/// What waits, in its order.
struct sWaiting_t
{
    QList<QPointer<LateContent>> contents;
    QList<sWork_t> works;
};
sWaiting_t* waiting = nullptr; ///< null while no program starts

} // namespace

LateContent::Start::Start()
    : m_isFirst(waiting == nullptr)
{
    if (m_isFirst)
        waiting = new sWaiting_t;
}

LateContent::Start::~Start()
{
    seen();
}

void LateContent::Start::aboutToShow(const QWidget* window)
{
    if (!m_isFirst)
        return;
    // What is made may put off things itself.
    for (int i = 0; i < waiting->contents.size(); ++i) {
        const QPointer<LateContent> content = waiting->contents.at(i);
        if (content && window->isAncestorOf(content->m_panel) && content->m_panel->isVisibleTo(window))
            content->need();
    }
}

void LateContent::Start::seen()
{
    if (!m_isFirst)
        return;
    m_isFirst = false;
    const sWaiting_t rest = *waiting;
    delete waiting;
    waiting = nullptr;
    for (const QPointer<LateContent>& content : rest.contents) {
        if (content)
            content->need();
    }
    for (const sWork_t& work : rest.works) {
        if (work.owner)
            work.work();
    }
}

bool LateContent::isStarting()
{
    return waiting != nullptr;
}

void LateContent::later(QObject* owner, std::function<void()> work)
{
    if (waiting != nullptr)
        waiting->works.append({owner, std::move(work)});
    else
        work();
}

LateContent::LateContent(QWidget* panel, std::function<void()> make, eTabs_t tabs)
    : m_panel(panel)
    , m_tabs(tabs)
    , m_make(std::move(make))
{
    if (waiting != nullptr)
        waiting->contents.append(this);
    else
        take()();
}

/// What is to be done, for the last time: called back by what it makes, it has nothing left to do.
std::function<void()> LateContent::take()
{
    return std::exchange(m_make, nullptr);
}

void LateContent::need()
{
    if (!m_make)
        return;
    const bool isDisabled = !m_panel->isEnabled();
    const bool isItself = m_panel->testAttribute(Qt::WA_ForceDisabled);
    // What is made in a disabled panel tells the aids for the blind so before it is what it will be, and stays nothing
    // in particular for them.
    if (isDisabled)
        m_panel->setAttribute(Qt::WA_Disabled, false);
    take()();
    if (isDisabled) {
        m_panel->setEnabled(false);
        m_panel->setEnabled(!isItself);
    }
    // A panel that is hidden tells nobody what room it needs.
    for (QWidget* above = m_panel->parentWidget(); above != nullptr; above = above->parentWidget()) {
        if (above->layout() != nullptr)
            above->layout()->invalidate();
        above->updateGeometry();
        if (above->isWindow())
            break;
    }
    if (m_tabs == eTabsOfPanel)
        orderTabs();
}

/// New fields come last in the window: puts them to the place of the panel.
void LateContent::orderTabs() const
{
    QList<QWidget*> fields;
    for (QWidget* next = m_panel->nextInFocusChain(); next != m_panel; next = next->nextInFocusChain()) {
        if (m_panel->isAncestorOf(next) && next->focusPolicy() != Qt::NoFocus)
            fields.append(next);
    }
    QWidget* before = m_panel;
    while (before->focusPolicy() == Qt::NoFocus || (before != m_panel && m_panel->isAncestorOf(before))) {
        before = before->previousInFocusChain();
        if (before == m_panel)
            return;
    }
    for (QWidget* field : qAsConst(fields)) {
        QWidget::setTabOrder(before, field);
        before = field;
    }
}
