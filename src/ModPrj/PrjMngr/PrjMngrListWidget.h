#pragma once

#include <QList>
#include <QStringList>
#include <QWidget>

class QLabel;
class QScrollArea;
class QVBoxLayout;

namespace nsModPrj {

class PrjMngrListElementWidget;

/// The collection of projects, one below the other.
class PrjMngrListWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PrjMngrListWidget(QWidget* parent = nullptr);

    /// Appends a project whose file could be read. One that is listed already is updated in its place.
    void addValid(const QString& prjFile, const QString& title, const QString& version, const QString& comment);
    /// The paths of all listed projects, from top to bottom.
    QStringList prjCollection() const;
    /// Scrolls to a listed project as soon as it has its place.
    void showProject(const QString& prjFile);
    /// The field of the list that the tab key reaches last; null for an empty list.
    QWidget* lastField() const;

signals:
    void open(QString prjFile);
    /// Projects were added or removed.
    void listChanged();

private slots:
    void openElement(QWidget* element);
    void removeElement(QWidget* element);

private:
    void updateHint();

    QScrollArea* m_area;
    QLabel* m_hint; ///< shown instead of an empty list
    QVBoxLayout* m_layout = nullptr;
    QList<PrjMngrListElementWidget*> m_elements; ///< from top to bottom
};

} // namespace nsModPrj
