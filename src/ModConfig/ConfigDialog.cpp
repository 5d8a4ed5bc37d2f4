#include "ConfigDialog.h"

#include "ConfigListDelegate.h"
#include "HelpRef.h"

#include "MyButton.h"
#include "MyButtonCancel.h"
#include "MyWheelGuard.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace nsModConfig {

namespace {

const int listWidth = 130;
const int listSpacing = 12;
const QSize listIconSize(96, 96);
const QSize itemSize(80, 66);
const int stackMinimumWidth = 40;
const int gap = 8;

} // namespace

ConfigDialog::ConfigDialog(QWidget* parent)
    : QWidget(parent)
    , m_list(new QListWidget(this))
    , m_stack(new QStackedWidget(this))
{
    setObjectName(QStringLiteral("configDialog"));
    setAttribute(Qt::WA_StyledBackground);
    HelpRef::set(this, QStringLiteral("pageId://configDialog"));
    setupList();
    m_stack->setObjectName(QStringLiteral("configPages"));
    m_stack->setMinimumWidth(stackMinimumWidth);

    auto* pages = new QHBoxLayout;
    pages->setContentsMargins(0, 0, 0, 0);
    pages->setSpacing(0);
    pages->addWidget(m_list);
    pages->addWidget(m_stack, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(pages, 1);
    layout->addWidget(makeButtons());
    setFocusProxy(m_list);
}

ConfigDialog::~ConfigDialog()
{
    emit vanishing();
}

void ConfigDialog::setupList()
{
    m_list->setObjectName(QStringLiteral("configList"));
    m_list->setAccessibleName(tr("Pages of the configuration"));
    m_list->setViewMode(QListView::IconMode);
    m_list->setFlow(QListView::TopToBottom);
    m_list->setWrapping(false);
    m_list->setUniformItemSizes(true);
    m_list->setIconSize(listIconSize);
    m_list->setMovement(QListView::Static);
    m_list->setMinimumWidth(listWidth);
    m_list->setMaximumWidth(listWidth);
    m_list->setSpacing(listSpacing);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setItemDelegate(new ConfigListDelegate(m_list));
}

QWidget* ConfigDialog::makeButtons()
{
    auto* frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("configButtons"));
    auto* setDefault = new MyButton(tr("Set page default values"), frame);
    setDefault->setShortText(tr("Default values"));
    m_setDefault = setDefault;
    m_setDefault->setToolTip(tr("Fills the page that is shown with its default values"));
    m_restore = new MyButton(tr("Restore values"), frame);
    m_restore->setToolTip(tr("Undoes the changes on the page that is shown"));
    m_help = new MyButton(tr("Help"), frame);
    m_help->setToolTip(tr("Shows the help of this page beside it (F1)"));
    m_apply = new MyButton(tr("Apply and close"), frame);
    m_apply->setToolTip(tr("Takes over and saves the values of all pages"));
    m_cancel = new MyButtonCancel(frame);
    m_cancel->setToolTip(tr("Closes the configuration without a change (Esc)"));
    connect(m_setDefault, &QPushButton::clicked, this, &ConfigDialog::setDefaultRequested);
    connect(m_restore, &QPushButton::clicked, this, &ConfigDialog::restoreRequested);
    connect(m_apply, &QPushButton::clicked, this, &ConfigDialog::closeRequested);
    connect(m_cancel, &QPushButton::clicked, this, &ConfigDialog::cancelRequested);
    connect(m_help, &QPushButton::clicked, this, &ConfigDialog::helpRequested);

    auto* pageButtons = new QHBoxLayout;
    pageButtons->setSpacing(gap);
    pageButtons->addWidget(m_setDefault);
    pageButtons->addWidget(m_restore);
    pageButtons->addWidget(m_help);
    pageButtons->addStretch(1);
    auto* dialogButtons = new QHBoxLayout;
    dialogButtons->setSpacing(gap);
    dialogButtons->addStretch(1);
    dialogButtons->addWidget(m_apply);
    dialogButtons->addWidget(m_cancel);

    m_buttons = new QBoxLayout(QBoxLayout::LeftToRight, frame);
    m_buttons->setContentsMargins(2 * gap, gap, 2 * gap, gap);
    m_buttons->setSpacing(gap);
    m_buttons->addLayout(pageButtons);
    m_buttons->addLayout(dialogButtons);
    // Smaller than one row of buttons: in a small window the buttons take two rows, and the window does not grow.
    frame->setMinimumWidth(1);
    return frame;
}

void ConfigDialog::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    int oneLine = 9 * gap;
    for (const QPushButton* button : {m_setDefault, m_restore, m_help, m_apply, m_cancel})
        oneLine += button->sizeHint().width();
    m_buttons->setDirection(width() >= oneLine ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

void ConfigDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel))
        emit escapeRequested();
    else
        QWidget::keyPressEvent(event);
}

QListWidgetItem* ConfigDialog::addPage(const QIcon& icon, const QString& title, QWidget* page)
{
    auto* item = new QListWidgetItem(icon, title);
    item->setTextAlignment(Qt::AlignCenter | Qt::AlignAbsolute);
    item->setFlags(Qt::ItemIsSelectable);
    item->setSizeHint(itemSize);

    auto* area = new QScrollArea(m_stack);
    area->setObjectName(QStringLiteral("configPage"));
    area->setFrameStyle(QFrame::Box | QFrame::Plain);
    area->setLineWidth(0);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus); // Tab stops at the fields only
    area->setWidget(page);
    MyWheelGuard::install(page);
    // The stack comes first: a new current item looks for its page there.
    m_stack->addWidget(area);
    m_list->addItem(item);
    return item;
}

QScrollArea* ConfigDialog::areaOf(QListWidgetItem* item) const
{
    return qobject_cast<QScrollArea*>(m_stack->widget(m_list->row(item)));
}

void ConfigDialog::takePage(QListWidgetItem* item)
{
    QScrollArea* area = areaOf(item);
    delete item;
    if (area == nullptr)
        return;
    m_stack->removeWidget(area);
    if (QWidget* page = area->takeWidget()) {
        page->hide();
        page->setParent(nullptr);
    }
    delete area;
}

void ConfigDialog::dropPage(QListWidgetItem* item)
{
    QScrollArea* area = areaOf(item);
    delete item;
    if (area == nullptr)
        return;
    m_stack->removeWidget(area);
    // The scroll area still refers to the widget.
    area->deleteLater();
}

void ConfigDialog::setPageEnabled(QListWidgetItem* item, bool enabled)
{
    item->setFlags(enabled ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::NoItemFlags);
    item->setToolTip(enabled ? QString() : tr("Open a project to change these settings"));
}

void ConfigDialog::showPage(QListWidgetItem* item)
{
    const bool enabled = item != nullptr && (item->flags() & Qt::ItemIsEnabled) != 0;
    m_setDefault->setEnabled(enabled);
    m_restore->setEnabled(enabled);
    m_help->setEnabled(enabled);
    if (item == nullptr)
        return;
    QScrollArea* area = areaOf(item);
    m_stack->setCurrentWidget(area);
    if (area != nullptr && area->widget() != nullptr)
        putButtonsAfter(area->widget());
}

void ConfigDialog::putButtonsAfter(QWidget* page)
{
    // The pages are created after the buttons, but in the tab order the buttons come last.
    QWidget* last = page;
    for (QWidget* widget = nextInFocusChain(); widget != this; widget = widget->nextInFocusChain()) {
        if (page->isAncestorOf(widget))
            last = widget;
    }
    for (QWidget* button : {m_setDefault, m_restore, m_help, m_apply, m_cancel}) {
        setTabOrder(last, button);
        last = button;
    }
}

} // namespace nsModConfig
