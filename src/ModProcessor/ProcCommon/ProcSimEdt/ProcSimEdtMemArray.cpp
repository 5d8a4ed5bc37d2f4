#include "ProcSimEdtMemArray.h"

#include "ProcSimEdtNumeric.h"
#include "ProcSimFont.h"
#include "ProcSimIOMem.h"
#include "ProcSimMemModel.h"

#include <QHeaderView>
#include <QStyledItemDelegate>

namespace nsProc {

namespace {

constexpr int visibleRows = 8;

/// Edits a cell with the same field as everywhere else, and reports each key press.
class WordDelegate : public QStyledItemDelegate
{
public:
    explicit WordDelegate(QObject* parent)
        : QStyledItemDelegate(parent)
    {
    }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        Q_UNUSED(option)
        auto* model = const_cast<QAbstractItemModel*>(index.model());
        auto* editor = new ProcSimEdtNumeric(parent);
        editor->setObjectName(QStringLiteral("procSimEdtMemCell"));
        editor->setStyleSheet(QStringLiteral("padding: 0px 2px; border-radius: 0px;"));
        editor->setRange(0, ProcSimIODevice::maxValue);
        editor->setBase(static_cast<const ProcSimMemModel*>(index.model())->base());
        const QPersistentModelIndex cell(index);
        connect(editor, &ProcSimEdtNumeric::edited, model, [model, cell, editor](int) {
            if (!editor->text().isEmpty())
                model->setData(cell, editor->text(), Qt::EditRole);
        });
        return editor;
    }

    void setEditorData(QWidget* editor, const QModelIndex& index) const override
    {
        int value = 0;
        const int base = static_cast<const ProcSimMemModel*>(index.model())->base();
        if (!ProcSimIODevice::number(index.data(Qt::EditRole).toString(), base, &value))
            return;
        auto* field = static_cast<ProcSimEdtNumeric*>(editor);
        // The user has cleared the field to type a new value.
        if (!field->text().isEmpty() || field->value() != 0 || !field->isModified())
            field->setValue(qMin(value, ProcSimIODevice::maxValue));
    }

    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override
    {
        // Each key press has been applied already. The end of the edit must not overwrite what the program has written
        // since.
        Q_UNUSED(editor)
        Q_UNUSED(model)
        Q_UNUSED(index)
    }

    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override
    {
        Q_UNUSED(index)
        editor->setMinimumWidth(0);
        editor->setMaximumWidth(QWIDGETSIZE_MAX);
        editor->setGeometry(option.rect);
    }
};

} // namespace

ProcSimEdtMemArray::ProcSimEdtMemArray(ProcSimIOMem* device, QWidget* parent)
    : QTableView(parent)
    , m_device(device)
    , m_model(new ProcSimMemModel(device, this))
{
    setObjectName(QStringLiteral("procSimEdtMemArray"));
    setToolTip(tr("Words of the memory"));
    setFont(monospaceFont());
    setModel(m_model);
    setItemDelegate(new WordDelegate(this));
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                    QAbstractItemView::AnyKeyPressed | QAbstractItemView::SelectedClicked);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    horizontalHeader()->hide();
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    verticalHeader()->setFont(font());
    verticalHeader()->setToolTip(tr("Address; a red mark stands at the word that was touched last"));
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    updateHeight();
}

void ProcSimEdtMemArray::updateHeight()
{
    const int rows = qBound(1, m_model->rowCount(), visibleRows);
    setFixedHeight(rows * verticalHeader()->defaultSectionSize() + 2 * frameWidth());
}

void ProcSimEdtMemArray::refresh()
{
    m_model->refresh();
    updateHeight();
    const int row = m_device->touchedRow();
    if (row == m_shownRow)
        return;
    m_shownRow = row;
    if (row >= 0 && state() != QAbstractItemView::EditingState)
        scrollTo(m_model->index(row, 0));
}

} // namespace nsProc
