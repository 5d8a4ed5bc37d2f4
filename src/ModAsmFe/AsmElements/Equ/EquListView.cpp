#include "EquListView.h"

#include "SymbolHash.h"

#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace nsModAsmFe {

EquListView::EquListView(QWidget* parent) : QWidget(parent), m_tree(new QTreeWidget(this))
{
    m_tree->setObjectName("equListView");
    m_tree->setColumnCount(2);
    m_tree->setHeaderLabels({tr("Name"), tr("Value")});
    m_tree->setRootIsDecorated(false);
    m_tree->setUniformRowHeights(true);
    m_tree->setAlternatingRowColors(true);
    m_tree->setToolTip(tr("Names and values of all EQU directives"));
    m_tree->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_tree->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);

    m_numberFont = QFont("DejaVu Sans Mono");
    m_numberFont.setStyleHint(QFont::Monospace);
    m_numberFont.setPointSizeF(font().pointSizeF());

    auto* note = new QLabel(
        tr("<strong>Note:</strong><p>This list will be updated after each run of the assembler.</p>"), this);
    note->setWordWrap(true);
    note->setMargin(8);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_tree);
    layout->addWidget(note);
}

QSize EquListView::sizeHint() const
{
    // Wide enough for names of a usual length beside their values.
    return QSize(fontMetrics().averageCharWidth() * 38, fontMetrics().height() * 16);
}

void EquListView::addItem(QString name, QString nameSpace, int value)
{
    auto* item = new QTreeWidgetItem;
    item->setText(0, qualifiedName(nameSpace, name));
    item->setText(1, QStringLiteral("0x%1").arg(uint(value), 0, 16));
    item->setToolTip(0, item->text(0));
    item->setFont(1, m_numberFont);
    item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    if (m_filling) {
        m_gathered.append(item);
        return;
    }
    m_tree->addTopLevelItem(item);
    emit contentChanged(this);
}

void EquListView::clear()
{
    m_tree->clear();
}

void EquListView::beginFill()
{
    m_filling = true;
}

void EquListView::endFill()
{
    m_filling = false;
    if (isShown(m_gathered)) {
        // Nobody is disturbed by a run that changed no constant: neither place and selection here, nor the panel in front.
        qDeleteAll(m_gathered);
        m_gathered.clear();
        return;
    }
    const int place = m_tree->verticalScrollBar()->value();
    m_tree->clear();
    m_tree->addTopLevelItems(m_gathered);
    m_gathered.clear();
    m_tree->verticalScrollBar()->setValue(place);
    emit contentChanged(this);
}

bool EquListView::isShown(const QList<QTreeWidgetItem*>& items) const
{
    if (items.size() != m_tree->topLevelItemCount())
        return false;
    for (int i = 0; i < items.size(); ++i) {
        const QTreeWidgetItem* shown = m_tree->topLevelItem(i);
        if (shown->text(0) != items[i]->text(0) || shown->text(1) != items[i]->text(1))
            return false;
    }
    return true;
}

} // namespace nsModAsmFe
