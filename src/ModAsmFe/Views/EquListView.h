#pragma once

#include "EquListModel.h"

#include "LateContent.h"

#include <QWidget>

class QTreeView;

namespace nsModAsmFe {

class EquList;

/// The table of all `#EQU` names and their values, as of the last run.
class EquListView : public QWidget
{
    Q_OBJECT

public:
    explicit EquListView(QWidget* parent = nullptr);

    /// Adds a line: the name with its namespace, the value in hexadecimal.
    void addItem(QString name, QString nameSpace, int value);
    /// Shows the constants of a run in place of all lines.
    void showList(const EquList& list);
    void clear();

    /// Between these two, addItem() only collects: a table of ten thousand lines is then shown in one step.
    void beginFill();
    void endFill();

    QSize sizeHint() const override;

signals:
    /// The table has new lines, which brings its panel to the front. Not emitted when the lines are the same as before.
    void contentChanged(QWidget* widget);

private:
    void makeContent();

    EquListModel* m_model;
    QTreeView* m_tree = nullptr;
    QVector<EquListModel::sRow_t> m_gathered;
    bool m_filling = false;
    LateContent m_content;
};

} // namespace nsModAsmFe
