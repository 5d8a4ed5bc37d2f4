#include "ProcSimCallStack.h"

#include "HelpRef.h"

#include <QHeaderView>
#include <QStandardItemModel>

namespace nsProc {

namespace {

enum eColumn_t {
    columnLevel,
    columnPc,
    columnCarry,
    columnZero,
    columnLabel,
    columnCount,
};

bool isEqual(const sCallStackItem_t& a, const sCallStackItem_t& b)
{
    return a.pc == b.pc && a.carry == b.carry && a.zero == b.zero && a.lineIndex == b.lineIndex && a.label == b.label;
}

} // namespace

ProcSimCallStack::ProcSimCallStack(std::shared_ptr<ProcSimCallStackData> data, QWidget* parent)
    : QTreeView(parent)
    , m_data(std::move(data))
    , m_model(new QStandardItemModel(0, columnCount, this))
    , m_changes(m_data->changes())
{
    setup();
}

ProcSimCallStack::ProcSimCallStack(int capacity, QWidget* parent)
    : ProcSimCallStack(std::make_shared<ProcSimCallStackData>(capacity), parent)
{
}

void ProcSimCallStack::setup()
{
    setObjectName(QStringLiteral("procSimCallStack"));
    HelpRef::setWhatsThis(this,
                          tr("The calls and interrupts that have not returned, the innermost at the bottom: where each "
                             "was made, the flags at that moment, and the label that was called."),
                          QStringLiteral("pageId://simulatorState#callstack"));
    m_model->setHorizontalHeaderLabels(
        {tr("Level"), tr("Program counter"), tr("Carry flag"), tr("Zero flag"), tr("Called label")});
    setModel(m_model);
    setRootIsDecorated(false);
    setAlternatingRowColors(true);
    setUniformRowHeights(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    header()->setDefaultAlignment(Qt::AlignCenter);
    header()->setSectionsMovable(false);
    // The columns follow their contents, including the last one, which would else be cut off.
    header()->setStretchLastSection(false);
    for (int column = 0; column < columnCount; ++column)
        header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    refresh();
}

bool ProcSimCallStack::add(const sCallStackItem_t& item)
{
    const bool success = m_data->add(item);
    refresh();
    return success;
}

bool ProcSimCallStack::takeLast(sCallStackItem_t* item)
{
    const bool success = m_data->takeLast(item);
    refresh();
    return success;
}

void ProcSimCallStack::clear()
{
    m_data->clear();
    refresh();
}

void ProcSimCallStack::setBase(int base)
{
    m_base = base;
    for (int row = 0; row < int(m_shown.size()); ++row)
        showRow(row, m_shown[size_t(row)]);
}

bool ProcSimCallStack::isShown(int row) const
{
    return size_t(row) < m_shown.size() && isEqual(m_shown[size_t(row)], m_data->items()[size_t(row)]);
}

void ProcSimCallStack::showRow(int row, const sCallStackItem_t& item)
{
    const QString texts[columnCount] = {QString::number(row, m_base).toUpper(),
                                        QString::number(item.pc, m_base).toUpper(), QString::number(int(item.carry)),
                                        QString::number(int(item.zero)), item.label};
    for (int column = 0; column < columnCount; ++column) {
        auto* cell = new QStandardItem(texts[column]);
        cell->setTextAlignment(Qt::AlignCenter);
        cell->setEditable(false);
        m_model->setItem(row, column, cell);
    }
}

void ProcSimCallStack::refresh()
{
    if (m_changes == m_data->changes() && int(m_shown.size()) == m_data->count())
        return;
    const bool changed = m_changes != m_data->changes();
    m_changes = m_data->changes();
    m_model->setRowCount(m_data->count());
    bool isExtended = false;
    for (int row = 0; row < m_data->count(); ++row) {
        if (isShown(row))
            continue;
        showRow(row, m_data->items()[size_t(row)]);
        isExtended = true;
    }
    m_shown.assign(m_data->items().begin(), m_data->items().end());
    if (isExtended)
        scrollToBottom();
    if (changed)
        emit contentChanged(this);
}

} // namespace nsProc
