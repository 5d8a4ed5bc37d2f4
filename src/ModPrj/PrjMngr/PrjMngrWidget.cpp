#include "PrjMngrWidget.h"

#include "PrjMngrListWidget.h"
#include "PrjMngrNewWidget.h"
#include "PrjMngrOpenWidget.h"

#include "MyButton.h"
#include "MyButtonCancel.h"
#include "MyLinkList.h"
#include "MyPageTitle.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace nsModPrj {

namespace {

const int margin = 16;
const int gap = 8;

} // namespace

PrjMngrWidget::PrjMngrWidget(QWidget* parent)
    : QWidget(parent)
    , m_tabs(new QTabWidget(this))
    , m_new(new PrjMngrNewWidget)
    , m_open(new PrjMngrOpenWidget)
    , m_list(new PrjMngrListWidget)
{
    setObjectName(QStringLiteral("prjMngr"));
    setAttribute(Qt::WA_StyledBackground);
    m_tabs->setObjectName(QStringLiteral("prjMngrTabs"));
    m_tabs->setAccessibleName(tr("New project, or one that exists"));
    m_tabs->setTabPosition(QTabWidget::West);
    m_tabs->addTab(m_new, tr("New project"));
    m_tabs->addTab(makeOpenTab(), tr("Open"));
    m_tabs->setTabToolTip(0, tr("Make a new project"));
    m_tabs->setTabToolTip(1, tr("Open a project of the collection, or any other"));

    // The page is shown at each start and must not enlarge the window, so it scrolls.
    auto* area = new QScrollArea(this);
    auto* content = new QWidget(area);
    content->setObjectName(QStringLiteral("prjMngrContent"));
    area->setFrameStyle(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(content);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(area);

    auto* body = new QVBoxLayout;
    body->setContentsMargins(margin, margin, margin, margin);
    body->setSpacing(gap);
    body->addWidget(new MyPageTitle(tr("Project manager"), content));
    body->addWidget(m_tabs, 1);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(body, 1);
    layout->addWidget(makeButtons());
}

QWidget* PrjMngrWidget::makeOpenTab()
{
    auto* tab = new QWidget;
    tab->setObjectName(QStringLiteral("prjMngrOpenTab"));
    auto* layout = new QVBoxLayout(tab);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin);
    layout->addWidget(m_open);
    layout->addWidget(m_list, 1);
    m_openLayout = layout;
    tab->setFocusProxy(m_open);
    return tab;
}

QWidget* PrjMngrWidget::makeButtons()
{
    // The same strip as below the settings pages.
    auto* frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("configButtons"));
    auto* save = new MyButton(tr("Save project manager configuration and close"), frame);
    save->setShortText(tr("Save and close"));
    save->setToolTip(tr("Keeps the collection as it is listed and closes this page"));
    auto* cancel = new MyButtonCancel(frame);
    cancel->setToolTip(tr("Closes this page; the collection stays as it was"));
    m_buttons = new QBoxLayout(QBoxLayout::LeftToRight);
    m_buttons->setSpacing(gap);
    m_buttons->addWidget(save);
    m_buttons->addWidget(cancel);
    auto* layout = new QHBoxLayout(frame);
    layout->setContentsMargins(margin, gap, margin, gap);
    layout->addStretch(1);
    layout->addLayout(m_buttons);
    m_save = save;
    m_cancel = cancel;
    connect(m_list, &PrjMngrListWidget::listChanged, this, &PrjMngrWidget::orderTabs);
    connect(save, &QPushButton::clicked, this, &PrjMngrWidget::saveAndCloseRequested);
    connect(cancel, &QPushButton::clicked, this, &PrjMngrWidget::cancelRequested);
    return frame;
}

void PrjMngrWidget::orderTabs()
{
    if (QWidget* last = m_list->lastField())
        setTabOrder(last, m_save);
    setTabOrder(m_save, m_cancel);
}

void PrjMngrWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    // As if there were a scroll bar, which comes and goes with the height of the buttons.
    int needed = 2 * margin + gap + style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    for (int i = 0; i < m_buttons->count(); ++i)
        needed += m_buttons->itemAt(i)->sizeHint().width();
    m_buttons->setDirection(needed <= width() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

void PrjMngrWidget::setCurrentTab(int index)
{
    m_tabs->setCurrentIndex(index);
    if (QWidget* tab = m_tabs->currentWidget())
        tab->setFocus();
}

void PrjMngrWidget::setStartLinks(MyLinkList* links)
{
    m_openLayout->insertWidget(0, links);
    links->setTabBefore(m_tabs->tabBar());
}

void PrjMngrWidget::setTabsEnabled(bool enabled)
{
    m_tabs->setEnabled(enabled);
}

} // namespace nsModPrj
