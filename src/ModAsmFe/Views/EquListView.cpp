#include "EquListView.h"

#include "EquList.h"

#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTreeView>
#include <QVBoxLayout>

namespace nsModAsmFe {

EquListView::EquListView(QWidget* parent)
    : QWidget(parent)
    , m_model(new EquListModel(this))
    , m_content(this, [this] { makeContent(); })
{
}

void EquListView::makeContent()
{
    m_tree = new QTreeView(this);
    m_tree->setObjectName("equListView");
    m_tree->setModel(m_model);
    m_tree->setRootIsDecorated(false);
    m_tree->setUniformRowHeights(true);
    m_tree->setAlternatingRowColors(true);
    m_tree->setToolTip(tr("Names and values of all EQU directives"));
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(EquListModel::columnName, QHeaderView::Stretch);
    m_tree->header()->setSectionResizeMode(EquListModel::columnValue, QHeaderView::ResizeToContents);

    QFont numberFont("DejaVu Sans Mono");
    numberFont.setStyleHint(QFont::Monospace);
    numberFont.setPointSizeF(font().pointSizeF());
    m_model->setNumberFont(numberFont);

    auto* note =
        new QLabel(tr("<strong>Note:</strong><p>This list will be updated after each run of the assembler.</p>"), this);
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
    const EquListModel::sRow_t row = {nameSpace, name, value};
    if (m_filling) {
        m_gathered.append(row);
        return;
    }
    m_model->appendRow(row);
    emit contentChanged(this);
}

void EquListView::showList(const EquList& list)
{
    beginFill();
    for (const Equ* equ = list.first(); equ != nullptr; equ = equ->next)
        addItem(equ->name, equ->nameSpace, equ->arg->iValue);
    endFill();
}

void EquListView::clear()
{
    m_model->setRows({});
}

void EquListView::beginFill()
{
    m_filling = true;
}

void EquListView::endFill()
{
    m_filling = false;
    QVector<EquListModel::sRow_t> rows;
    rows.swap(m_gathered);
    // A run that changed no constant leaves scroll position, selection and the front panel as they are.
    if (rows == m_model->rows())
        return;
    m_content.need();
    const int place = m_tree->verticalScrollBar()->value();
    m_model->setRows(std::move(rows));
    m_tree->verticalScrollBar()->setValue(place);
    emit contentChanged(this);
}

} // namespace nsModAsmFe
