#pragma once

#include "IODevViewerItem.h"

#include <QList>
#include <QStringList>
#include <QWidget>

class QGridLayout;
class QLabel;
class QScrollArea;

namespace nsModAsmFe {

class IODev;
class IODevList;

/// The view "IO device map viewer": what each IO device of the program holds, as of the last run.
///
/// The view reads the devices where they are. Their owner calls clear() before it deletes them. Nothing is built while
/// the view is hidden.
class IODevViewerList : public QWidget
{
    Q_OBJECT

public:
    /// The widgets of one device, children of the view.
    struct sViewerElements_t
    {
        QLabel* nameTitle = nullptr;
        QLabel* name = nullptr;
        QLabel* summaryTitle = nullptr;
        QLabel* summary = nullptr;
        QLabel* mapTitle = nullptr;
        IODevViewerItem* item = nullptr;
    };

    /// Devices beyond this number are counted, not shown: no design has as many, and each costs half a dozen widgets.
    static constexpr int maxShownDevices = 512;

    explicit IODevViewerList(QWidget* parent = nullptr);

    /// Shows these devices; empties the view first. @param devList not owned; null for none
    void setupView(IODevList* devList);
    /// Empties the view.
    void clear();
    /// Of the devices that are on the screen; empty while the view is hidden.
    const QList<sViewerElements_t>& elements() const { return m_elements; }

    QSize sizeHint() const override;

signals:
    /// A double click on a cell. @param srcRef where its value stands; belongs to the device
    void srcRefRequest(SrcReference* srcRef);
    /// The view shows other devices than before, which brings its panel to the front. Not emitted when only the
    /// contents of the devices have changed, as they do with each edit of a program.
    void contentChanged(QWidget* widget);

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* setupLegend();
    void arrangeLegend(int width);
    static QIcon iconFromColor(const QColor& color);
    void showColors();
    static QString setupDevSummary(const IODev* dev);
    void addElement(IODev* dev);
    QLabel* addLabel(const QString& text, const char* objectName);
    void build();
    void dropElements();
    void layoutElements();
    static QStringList deviceKeys(const IODevList* devList);
    int columnsThatFit(int width) const;

    IODevViewerItem::sConfig_t m_config;
    QLabel* m_note = nullptr;
    QLabel* m_more = nullptr;
    QWidget* m_legend = nullptr;
    QGridLayout* m_legendLayout = nullptr;
    QList<QLabel*> m_legendTexts;
    QList<QWidget*> m_legendEntries; ///< the title first
    QList<QPair<QLabel*, IODevViewerItem::eCellKind_t>> m_legendSquares;
    QScrollArea* m_scroll = nullptr;
    QWidget* m_content = nullptr;
    IODevList* m_devList = nullptr; ///< not owned; null while the view is empty
    QList<sViewerElements_t> m_elements;
    bool m_built = false;
    QStringList m_lastDevices; ///< names and sizes of the last content
    int m_scrolled = 0;        ///< position of the last content: the next run shows the same place
};

} // namespace nsModAsmFe
