#include "PageSplitter.h"

namespace nsModGui {

PageSplitter::PageSplitter(Qt::Orientation orientation, QWidget* parent)
    : QSplitter(orientation, parent)
{
    setObjectName(QStringLiteral("pageSplitter"));
    setChildrenCollapsible(false);
}

PageSplitter::~PageSplitter()
{
    if (m_page != nullptr)
        m_page->disconnect(this);
}

void PageSplitter::setWidgets(QWidget* page, QWidget* second)
{
    m_page = page;
    m_second = second;
    addWidget(page);
    addWidget(second);
    page->show();
    second->show();
    connect(page, &QObject::destroyed, this, [this] {
        if (m_second != nullptr)
            m_second->setParent(nullptr);
        emit pageDeleted();
    });
}

QWidget* PageSplitter::pageOf(QWidget* tab)
{
    const auto* splitter = qobject_cast<PageSplitter*>(tab);
    return splitter != nullptr ? splitter->page() : tab;
}

} // namespace nsModGui
