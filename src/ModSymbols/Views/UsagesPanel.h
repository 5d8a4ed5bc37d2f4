#pragma once

#include "TextPlace.h"

#include <QVector>
#include <QWidget>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace nsModSymbols {

/// A place of a name, for the list.
struct sUsage
{
    sTextPlace place;
    QString file; ///< as it is shown
    QString text; ///< of the line
    bool isDefinition = false;
};

/// The list of all places of a name.
class UsagesPanel : public QWidget
{
    Q_OBJECT

public:
    explicit UsagesPanel(QWidget* parent = nullptr);

    void showUsages(const QString& title, const QVector<sUsage>& usages);
    /// The text has changed since: the places may have moved.
    void setOutdated();
    void clear();
    const QVector<sUsage>& usages() const { return m_usages; }

signals:
    /// @param index of the place, as they were shown
    void chosen(int index);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void choose(QTreeWidgetItem* item);

    QLabel* m_title;
    QTreeWidget* m_tree;
    QString m_titleText;
    QVector<sUsage> m_usages;
};

} // namespace nsModSymbols
