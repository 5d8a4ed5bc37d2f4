#include "WidgetAreaTabbed.h"

#include "EmptyPage.h"
#include "PageSplitter.h"
#include "PageSwitcher.h"
#include "SchemeIcons.h"
#include "TabControls.h"

#include <QAction>
#include <QKeyEvent>
#include <QPushButton>
#include <QRegExp>

namespace nsModGui {

namespace {

/// A command that knows whether a key with Ctrl has triggered it, which the user may hold to go on.
class HeldAction : public QAction
{
public:
    using QAction::QAction;

    bool isHeld() const { return m_isHeld; }

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::Shortcut)
            m_isHeld = (static_cast<QShortcutEvent*>(event)->key()[0] & Qt::CTRL) != 0;
        const bool result = QAction::event(event);
        m_isHeld = false;
        return result;
    }

private:
    bool m_isHeld = false;
};

} // namespace

WidgetAreaTabbed::WidgetAreaTabbed(QWidget* parent)
    : QTabWidget(parent)
    , m_closeButton(new QPushButton(this))
    , m_emptyPage(new EmptyPage(this))
    , m_switcher(new PageSwitcher(this))
{
    setObjectName(QStringLiteral("widgetAreaTabs"));
    setAccessibleName(tr("Pages"));
    m_closeButton->setObjectName(QStringLiteral("buttonCloseTab"));
    m_closeButton->setFlat(true);
    m_closeButton->setIcon(SchemeIcons::of(QStringLiteral(":/ModGui/img/tab-close.png")));
    m_closeButton->setAccessibleName(tr("Close page"));
    m_closeButton->setToolTip(
        tr("Close page (%1)").arg(QKeySequence(QKeySequence::Close).toString(QKeySequence::NativeText)));
    setCornerWidget(m_closeButton);
    connect(m_closeButton, &QPushButton::clicked, this, &WidgetAreaTabbed::requestClose);
    connect(this, &QTabWidget::currentChanged, this,
            [this](int index) { emit currentWidgetChanged(this, pageAt(index)); });
    auto* controls = new TabControls(this);
    connect(controls, &TabControls::closeRequested, this, &WidgetAreaTabbed::removeWidgetRequest);
    connect(controls, &TabControls::showFileRequested, this, &WidgetAreaTabbed::showFileRequested);
    setupPageKeys();
    updateEmptyState();
}

void WidgetAreaTabbed::setupPageKeys()
{
    const auto add = [this](const QString& text, const QString& toolTip, const char* key, auto act) {
        auto* action = new HeldAction(text, this);
        action->setToolTip(toolTip);
        action->setShortcut(QKeySequence(QLatin1String(key)));
        connect(action, &QAction::triggered, this, [act, action] { act(action->isHeld()); });
        addAction(action);
    };
    add(tr("Page used before"), tr("To the page that was in front before; on from there while Ctrl is held"),
        "Ctrl+Tab", [this](bool isHeld) { m_switcher->step(1, isHeld); });
    add(tr("Page used longest ago"), tr("To the page that was in front longest ago"), "Ctrl+Shift+Tab",
        [this](bool isHeld) { m_switcher->step(-1, isHeld); });
    add(tr("Next page"), tr("To the page on the right"), "Ctrl+PgDown", [this](bool) { stepPage(1); });
    add(tr("Previous page"), tr("To the page on the left"), "Ctrl+PgUp", [this](bool) { stepPage(-1); });
}

void WidgetAreaTabbed::stepPage(int step)
{
    for (int tried = 1; tried < count(); ++tried) {
        const int index = (currentIndex() + step * tried + count()) % count();
        if (!isTabEnabled(index))
            continue;
        setCurrentIndex(index);
        break;
    }
    if (currentPage() != nullptr)
        currentPage()->setFocus(Qt::ShortcutFocusReason);
}

QString WidgetAreaTabbed::chkAppName(const QString& name) const
{
    int uses = 0;
    for (int index = 0; index < count(); ++index) {
        QString text = tabText(index);
        text.remove(QRegExp(QStringLiteral(" \\[[0-9]*\\]$")));
        if (text == name)
            ++uses;
    }
    return uses == 0 ? name : name + QStringLiteral(" [%1]").arg(uses + 1);
}

void WidgetAreaTabbed::setWidgetName(QWidget* widget, const QString& name)
{
    if (!hasWidget(widget))
        return;
    const int index = indexOfPage(widget);
    // A tab must not count its own name as used.
    setTabText(index, QString());
    setTabText(index, chkAppName(name));
}

void WidgetAreaTabbed::setOpenText(const QString& text)
{
    m_emptyPage->setOpenText(text);
}

void WidgetAreaTabbed::setEmptyPage(QWidget* page)
{
    m_emptyPage->setPage(page);
}

QWidget* WidgetAreaTabbed::pageAt(int index) const
{
    return PageSplitter::pageOf(widget(index));
}

int WidgetAreaTabbed::indexOfPage(const QWidget* page) const
{
    for (int index = 0; page != nullptr && index < count(); ++index) {
        if (pageAt(index) == page)
            return index;
    }
    return -1;
}

void WidgetAreaTabbed::replaceTab(int index, QWidget* widget)
{
    const QString text = tabText(index);
    const QIcon icon = tabIcon(index);
    const QString toolTip = tabToolTip(index);
    const bool isEnabled = isTabEnabled(index);
    const bool isCurrent = index == currentIndex();
    insertTab(index, widget, icon, text);
    setTabToolTip(index, toolTip);
    setTabEnabled(index, isEnabled);
    if (isCurrent)
        setCurrentIndex(index);
}

QSplitter* WidgetAreaTabbed::splitPage(QWidget* page, QWidget* second, Qt::Orientation orientation)
{
    const int index = indexOfPage(page);
    if (index < 0)
        return nullptr;
    // A page that changes its parent loses the focus.
    QWidget* focused = window()->focusWidget();
    const QPointer<QWidget> focus(isAncestorOf(focused) ? focused : nullptr);
    // For everybody else it is the same page all the time.
    const bool wasBlocked = blockSignals(true);
    unsplitPage(page);
    PageSplitter* splitter = nullptr;
    if (second != nullptr) {
        splitter = new PageSplitter(orientation, this);
        replaceTab(index, splitter);
        // It takes its old tab along.
        splitter->setWidgets(page, second);
        connect(splitter, &PageSplitter::pageDeleted, this, [this, splitter] {
            removeTab(indexOf(splitter));
            splitter->deleteLater();
        });
    }
    blockSignals(wasBlocked);
    if (focus != nullptr && focus->isVisible())
        focus->setFocus();
    return splitter;
}

void WidgetAreaTabbed::unsplitPage(QWidget* page)
{
    const int index = indexOfPage(page);
    auto* splitter = qobject_cast<PageSplitter*>(widget(index));
    if (splitter == nullptr)
        return;
    const bool wasBlocked = blockSignals(true);
    if (splitter->second() != nullptr)
        splitter->second()->setParent(nullptr);
    replaceTab(index, page);
    removeTab(index + 1);
    blockSignals(wasBlocked);
    delete splitter;
}

void WidgetAreaTabbed::setWidgetIcon(QWidget* widget, const QIcon& icon)
{
    if (hasWidget(widget))
        setTabIcon(indexOfPage(widget), icon);
}

void WidgetAreaTabbed::addWidget(const QString& name, QWidget* widget)
{
    if (widget == nullptr)
        return;
    removeWidget(widget);
    addTab(widget, chkAppName(name));
    QTabWidget::setCurrentWidget(widget);
}

void WidgetAreaTabbed::removeWidget(QWidget* widget)
{
    if (!hasWidget(widget))
        return;
    unsplitPage(widget);
    removeTab(indexOfPage(widget));
    widget->setParent(nullptr);
}

bool WidgetAreaTabbed::hasWidget(QWidget* widget) const
{
    return indexOfPage(widget) >= 0;
}

void WidgetAreaTabbed::showWidget(QWidget* widget)
{
    if (!hasWidget(widget))
        return;
    setCurrentIndex(indexOfPage(widget));
    setVisible(true);
}

void WidgetAreaTabbed::setWidgetEnabled(QWidget* widget, bool enabled)
{
    if (hasWidget(widget))
        setTabEnabled(indexOfPage(widget), enabled);
}

void WidgetAreaTabbed::requestClose()
{
    emit removeWidgetRequest(currentPage());
}

void WidgetAreaTabbed::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Close)) {
        requestClose();
        return;
    }
    QTabWidget::keyPressEvent(event);
}

void WidgetAreaTabbed::resizeEvent(QResizeEvent* event)
{
    QTabWidget::resizeEvent(event);
    m_emptyPage->setGeometry(rect());
}

void WidgetAreaTabbed::tabInserted(int index)
{
    QTabWidget::tabInserted(index);
    updateEmptyState();
}

void WidgetAreaTabbed::tabRemoved(int index)
{
    QTabWidget::tabRemoved(index);
    updateEmptyState();
}

void WidgetAreaTabbed::updateEmptyState()
{
    const bool empty = count() == 0;
    m_closeButton->setEnabled(!empty);
    m_emptyPage->setVisible(empty);
    if (empty)
        m_emptyPage->raise();
}

} // namespace nsModGui
