#include "HlpIndexWidget.h"

#include "HelpRef.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHelpContentWidget>
#include <QHelpEngine>
#include <QHelpIndexWidget>
#include <QHelpSearchEngine>
#include <QHelpSearchQueryWidget>
#include <QHelpSearchResultWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QTabWidget>
#include <QVBoxLayout>

#include <utility>

namespace nsModHlp {

namespace {

const int gap = 8;

} // namespace

HlpIndexWidget::HlpIndexWidget(std::function<QHelpEngine*()> engine, QWidget* parent)
    : QWidget(parent)
    , m_openEngine(std::move(engine))
{
    setObjectName(QStringLiteral("hlpIndex"));
    HelpRef::set(this, QStringLiteral("pageId://gettingStarted"));
}

void HlpIndexWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_tabs == nullptr)
        makeTabs();
}

void HlpIndexWidget::makeTabs()
{
    QHelpEngine* engine = m_openEngine();
    if (engine == nullptr)
        return;
    m_tabs = new QTabWidget;
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tabs);
    QHelpContentWidget* content = engine->contentWidget();
    connect(content, &QHelpContentWidget::linkActivated, this, &HlpIndexWidget::linkActivated);
    connect(engine->contentModel(), &QHelpContentModel::contentsCreated, content,
            [content] { content->expandToDepth(0); });
    m_tabs->addTab(content, tr("Content"));
    m_tabs->addTab(makeIndexTab(engine->indexWidget()), tr("Index"));
    m_tabs->addTab(makeSearchTab(engine->searchEngine()), tr("Search"));
}

QWidget* HlpIndexWidget::makeIndexTab(QHelpIndexWidget* index)
{
    auto* tab = new QWidget;
    auto* layout = new QVBoxLayout(tab);
    layout->setContentsMargins(gap, gap, gap, gap);
    layout->setSpacing(gap);
    auto* row = new QHBoxLayout;
    m_filter = new QLineEdit;
    m_filter->setObjectName(QStringLiteral("hlpIndexFilter"));
    m_filter->setClearButtonEnabled(true);
    auto* label = new QLabel(tr("Filter:"));
    label->setBuddy(m_filter);
    row->addWidget(label);
    row->addWidget(m_filter, 1);
    layout->addLayout(row);
    layout->addWidget(index, 1);
    connect(m_filter, &QLineEdit::textChanged, index, [index](const QString& text) { index->filterIndices(text); });
    connect(m_filter, &QLineEdit::returnPressed, index, &QHelpIndexWidget::activateCurrentItem);
    connect(index, &QHelpIndexWidget::linkActivated, this, [this](const QUrl& url) { emit linkActivated(url); });
    connect(index, &QHelpIndexWidget::linksActivated, this, &HlpIndexWidget::choose);
    return tab;
}

QWidget* HlpIndexWidget::makeSearchTab(QHelpSearchEngine* search)
{
    auto* tab = new QWidget;
    auto* layout = new QVBoxLayout(tab);
    layout->setContentsMargins(gap, gap, gap, gap);
    layout->setSpacing(gap);
    layout->addWidget(search->queryWidget());
    layout->addWidget(search->resultWidget(), 1);
    connect(search->queryWidget(), &QHelpSearchQueryWidget::search, search,
            [search] { search->search(search->queryWidget()->searchInput()); });
    connect(search->resultWidget(), &QHelpSearchResultWidget::requestShowLink, this, &HlpIndexWidget::linkActivated);
    search->scheduleIndexDocumentation();
    return tab;
}

/// Lets the user choose one of the places that a keyword leads to.
void HlpIndexWidget::choose(const QMap<QString, QUrl>& links, const QString& keyword)
{
    const QPointer<HlpIndexWidget> self(this);
    const QPointer<QDialog> dialog(new QDialog(this));
    dialog->setWindowTitle(tr("Choose a topic"));
    auto* list = new QListWidget;
    for (auto it = links.cbegin(); it != links.cend(); ++it)
        (new QListWidgetItem(it.key(), list))->setData(Qt::UserRole, it.value());
    list->setCurrentRow(0);
    auto* label = new QLabel(tr("Choose a topic for <b>%1</b>:").arg(keyword.toHtmlEscaped()));
    label->setBuddy(list);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(list, &QListWidget::itemActivated, dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(dialog);
    layout->addWidget(label);
    layout->addWidget(list);
    layout->addWidget(buttons);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!self || !dialog)
        return;
    const QListWidgetItem* item = list->currentItem();
    const QUrl url = accepted && item != nullptr ? item->data(Qt::UserRole).toUrl() : QUrl();
    delete dialog;
    if (!url.isEmpty())
        emit linkActivated(url);
}

} // namespace nsModHlp
