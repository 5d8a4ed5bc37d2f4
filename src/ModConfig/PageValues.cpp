#include "PageValues.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QBrush>
#include <QComboBox>
#include <QHeaderView>
#include <QMetaProperty>
#include <QWidget>

namespace nsModConfig {

namespace {

/// The list of a combo box is what can be chosen, and the headers are no values.
bool isPartOfControl(const QWidget* widget, const QWidget* page)
{
    for (const QWidget* parent = widget->parentWidget(); parent != nullptr && parent != page;
         parent = parent->parentWidget()) {
        if (qobject_cast<const QComboBox*>(parent) != nullptr)
            return true;
    }
    return qobject_cast<const QHeaderView*>(widget) != nullptr;
}

void appendRows(const QAbstractItemModel* model, const QModelIndex& parent, QStringList* values)
{
    for (int row = 0; row < model->rowCount(parent); ++row) {
        for (int column = 0; column < model->columnCount(parent); ++column) {
            const QModelIndex index = model->index(row, column, parent);
            values->append(index.data(Qt::EditRole).toString() + QLatin1Char('/') +
                           index.data(Qt::CheckStateRole).toString() + QLatin1Char('/') +
                           index.data(Qt::ForegroundRole).value<QBrush>().color().name());
        }
        appendRows(model, model->index(row, 0, parent), values);
    }
}

} // namespace

QStringList PageValues::of(const QWidget* page)
{
    QStringList values;
    for (const QWidget* widget : page->findChildren<QWidget*>()) {
        const QVariant isSetting = widget->property("isSetting");
        if (isPartOfControl(widget, page) || (isSetting.isValid() && !isSetting.toBool()))
            continue;
        const auto* view = qobject_cast<const QAbstractItemView*>(widget);
        const QMetaProperty property = widget->metaObject()->userProperty();
        if (view != nullptr && view->model() != nullptr)
            appendRows(view->model(), QModelIndex(), &values);
        else if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
            values.append(QString::number(int(button->isChecked())));
        else if (property.isValid())
            values.append(property.read(widget).toString());
    }
    return values;
}

} // namespace nsModConfig
