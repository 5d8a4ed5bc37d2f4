#include "MyFontTable.h"

#include "Colors.h"

#include <QColorDialog>
#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QStandardItemModel>

namespace {

const int swatchSize = 12;   ///< pixels
const int contextWidth = 20; ///< characters

QIcon swatch(const QColor& color, qreal ratio)
{
    QPixmap pixmap(QSize(swatchSize, swatchSize) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(color);
    QPainter painter(&pixmap);
    painter.setPen(Colors::of(Colors::eControlBorder));
    painter.drawRect(QRectF(0, 0, swatchSize - 1, swatchSize - 1));
    return QIcon(pixmap);
}

} // namespace

MyFontTable::MyFontTable(QWidget* parent)
    : QTableView(parent)
    , m_model(new QStandardItemModel(0, columnCount, this))
{
    setObjectName(QStringLiteral("fontTable"));
    setAccessibleName(tr("Formats of text"));
    m_model->setHorizontalHeaderLabels({tr("Font context"), tr("Bold"), tr("Italic")});
    // The ticks stand at the left of their cells.
    for (int column = 0; column < columnCount; ++column)
        m_model->horizontalHeaderItem(column)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setModel(m_model);
    setToolTip(tr("A click on a name selects its colour"));
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false); // Tab leaves the table
    setShowGrid(false);
    setCornerButtonEnabled(false);
    setIconSize(QSize(swatchSize, swatchSize));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::MinimumExpanding);
    verticalHeader()->hide();
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    updateHeight();
    connect(m_model, &QStandardItemModel::itemChanged, this, &MyFontTable::setFontParameter);
    connect(this, &QAbstractItemView::clicked, this, &MyFontTable::getFontColor);
}

void MyFontTable::setContexts(const QStringList& names)
{
    m_model->setRowCount(0);
    m_formats = QVector<QTextCharFormat>(names.size());
    for (const QString& name : names) {
        auto* context = new QStandardItem(name);
        context->setEditable(false);
        QList<QStandardItem*> row = {context};
        for (const QString& what : {tr("Bold"), tr("Italic")}) {
            auto* item = new QStandardItem;
            item->setEditable(false);
            item->setCheckable(true);
            item->setToolTip(QStringLiteral("%1: %2").arg(name, what));
            item->setData(item->toolTip(), Qt::AccessibleTextRole);
            row.append(item);
        }
        m_model->appendRow(row);
        showFormat(m_model->rowCount() - 1);
    }
    if (!names.isEmpty())
        setCurrentIndex(m_model->index(0, columnContext));
    clearSelection();
    updateHeight();
}

void MyFontTable::setFormat(int row, const QTextCharFormat& format)
{
    if (row < 0 || row >= m_formats.size())
        return;
    m_formats[row] = format;
    showFormat(row);
}

void MyFontTable::setSampleFamily(const QString& family)
{
    m_sampleFamily = family;
    for (int row = 0; row < m_formats.size(); ++row)
        showFormat(row);
}

void MyFontTable::showFormat(int row)
{
    const QSignalBlocker blocker(m_model);
    const QTextCharFormat& format = m_formats.at(row);
    const QColor color = format.foreground().color();
    const bool bold = format.fontWeight() >= QFont::Bold;
    QFont sample = font();
    if (!m_sampleFamily.isEmpty())
        sample.setFamily(m_sampleFamily);
    sample.setBold(bold);
    sample.setItalic(format.fontItalic());
    QStandardItem* context = m_model->item(row, columnContext);
    context->setFont(sample);
    context->setForeground(color);
    context->setIcon(swatch(color, devicePixelRatioF()));
    context->setToolTip(
        tr("%1: colour %2. Click or press Space to select another.").arg(context->text(), color.name()));
    m_model->item(row, columnBold)->setCheckState(bold ? Qt::Checked : Qt::Unchecked);
    m_model->item(row, columnItalic)->setCheckState(format.fontItalic() ? Qt::Checked : Qt::Unchecked);
    viewport()->update();
}

void MyFontTable::setFontParameter(QStandardItem* item)
{
    const int row = item->row();
    const bool on = item->checkState() == Qt::Checked;
    if (item->column() == columnBold)
        m_formats[row].setFontWeight(on ? int(QFont::Bold) : 0);
    else if (item->column() == columnItalic)
        m_formats[row].setFontItalic(on);
    showFormat(row);
}

void MyFontTable::getFontColor(const QModelIndex& index)
{
    if (index.column() != columnContext)
        return;
    const int row = index.row();
    // The page can be deleted while the dialog is open, and the dialog with it.
    const QPointer<MyFontTable> self(this);
    const QPointer<QColorDialog> dialog(new QColorDialog(m_formats.at(row).foreground().color(), this));
    dialog->setWindowTitle(tr("Select color"));
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return;
    const QColor color = dialog->selectedColor();
    delete dialog;
    if (!self || !accepted || !color.isValid())
        return;
    m_formats[row].setForeground(color);
    showFormat(row);
}

void MyFontTable::keyPressEvent(QKeyEvent* event)
{
    const bool isAction =
        event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QModelIndex index = currentIndex();
    if (!isAction || !index.isValid()) {
        QTableView::keyPressEvent(event);
        return;
    }
    if (index.column() == columnContext) {
        getFontColor(index);
        return;
    }
    QStandardItem* item = m_model->itemFromIndex(index);
    item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

void MyFontTable::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateHeight();
}

void MyFontTable::updateHeight()
{
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    setColumnWidth(columnContext, fontMetrics().averageCharWidth() * contextWidth + swatchSize);
    for (int column : {columnBold, columnItalic})
        setColumnWidth(column, horizontalHeader()->sectionSizeHint(column) + 16);
    setMaximumHeight(sizeHint().height());
    updateGeometry();
}

QSize MyFontTable::sizeHint() const
{
    const int frame = 2 * frameWidth();
    return {horizontalHeader()->length() + frame,
            verticalHeader()->length() + horizontalHeader()->sizeHint().height() + frame};
}
