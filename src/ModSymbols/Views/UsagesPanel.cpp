#include "UsagesPanel.h"

#include <QFont>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace nsModSymbols {

namespace {

enum eColumn_t { columnPlace, columnKind, columnText, columnCount_ };

} // namespace

UsagesPanel::UsagesPanel(QWidget* parent)
    : QWidget(parent)
    , m_title(new QLabel(this))
    , m_tree(new QTreeWidget(this))
{
    m_tree->setObjectName(QStringLiteral("usages"));
    m_tree->setAccessibleName(tr("Usages"));
    m_tree->setToolTip(tr("Enter or a double click goes to the place"));
    m_tree->setRootIsDecorated(false);
    m_tree->setUniformRowHeights(true);
    m_tree->setAlternatingRowColors(true);
    m_tree->setAllColumnsShowFocus(true);
    m_tree->setColumnCount(columnCount_);
    m_tree->setHeaderLabels({tr("Place"), tr("Kind"), tr("Line")});
    m_tree->header()->setSectionResizeMode(columnPlace, QHeaderView::ResizeToContents);
    m_tree->header()->setSectionResizeMode(columnKind, QHeaderView::ResizeToContents);
    m_tree->installEventFilter(this);
    connect(m_tree, &QTreeWidget::itemDoubleClicked, this, &UsagesPanel::choose);
    m_title->setMargin(4);
    m_title->setTextFormat(Qt::PlainText);
    setFocusProxy(m_tree);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_title);
    layout->addWidget(m_tree);
}

void UsagesPanel::showUsages(const QString& title, const QVector<sUsage>& usages)
{
    m_titleText = title;
    m_title->setText(title);
    m_usages = usages;
    m_tree->clear();
    QFont textFont(QStringLiteral("DejaVu Sans Mono"));
    textFont.setStyleHint(QFont::Monospace);
    textFont.setPointSizeF(font().pointSizeF());
    QList<QTreeWidgetItem*> items;
    for (const sUsage& usage : usages) {
        auto* item = new QTreeWidgetItem;
        item->setText(columnPlace, QStringLiteral("%1:%2").arg(usage.file).arg(usage.place.line + 1));
        item->setText(columnKind, usage.isDefinition ? tr("Definition") : tr("Use"));
        QString text = usage.text.simplified();
        item->setText(columnText, text);
        item->setFont(columnText, textFont);
        items.append(item);
    }
    m_tree->addTopLevelItems(items);
    if (!items.isEmpty())
        m_tree->setCurrentItem(items.first());
}

void UsagesPanel::setOutdated()
{
    if (!m_usages.isEmpty())
        m_title->setText(tr("%1 (the text has changed since)").arg(m_titleText));
}

void UsagesPanel::clear()
{
    m_usages.clear();
    m_tree->clear();
    m_title->clear();
}

void UsagesPanel::choose(QTreeWidgetItem* item)
{
    const int row = m_tree->indexOfTopLevelItem(item);
    if (row >= 0 && row < m_usages.size())
        emit chosen(row);
}

bool UsagesPanel::eventFilter(QObject* object, QEvent* event)
{
    if (object == m_tree && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            choose(m_tree->currentItem());
            return true;
        }
    }
    return QWidget::eventFilter(object, event);
}

} // namespace nsModSymbols
