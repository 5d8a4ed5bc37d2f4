#pragma once

#include "ProcSimWave.h"
#include "ProcSimWaveData.h"

#include <QHash>
#include <QList>
#include <QTreeWidget>

namespace nsProc {

class ProcSimWavesWidget;

/// The names of the waves: one row a watched port, with a row for each of its bits below it, and the values beside
/// them.
///
/// It passes the visible rows and their positions to the widget that draws the waves, so that both always show the
/// same.
class ProcSimWaveTree : public QTreeWidget
{
    Q_OBJECT

public:
    using sAddrChannel_t = ProcSimWaveData::sAddrChannel_t;

    /// @param waves draws what is visible here; not owned, must outlive this
    explicit ProcSimWaveTree(ProcSimWavesWidget* waves, QWidget* parent = nullptr);

    /// Adds a row: that of a bit below the row of its channel's number. Not owned, must live until it is removed.
    void addWave(sWave_t* wave);
    /// Removes the rows of a channel.
    void removeChannel(const sAddrChannel_t* channel);
    /// Removes all rows.
    void clear();
    /// Base of addresses and values: 8, 10 or 16.
    void setBase(int base);
    /// Shows the values at a time.
    /// @param clock -1 for the present values
    void showValues(qint64 clock);
    /// Makes the row of a channel's number the current one.
    void selectChannel(const sAddrChannel_t* channel);
    void selectWave(const sWave_t* wave);
    /// Null if no row is current.
    sWave_t* currentWave() const;
    /// What a channel is called: its access with its name, "Write LEDS", or else with its address, "Read 2A".
    static QString channelText(const sAddrChannel_t* channel, int base);

    QSize sizeHint() const override;

public slots:
    /// Brings the bits into view.
    void itemExpanded(QTreeWidgetItem* item);

signals:
    /// The user wants to remove the channel with all of its rows.
    void removeRequested(nsProc::ProcSimWaveData::sAddrChannel_t* channel);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    QTreeWidgetItem* itemOf(const sWave_t* wave) const { return m_items.value(wave); }
    static sWave_t* waveOf(const QTreeWidgetItem* item);
    static QString accessText(const sAddrChannel_t* channel, const QString& port);
    static QString placeText(const sAddrChannel_t* channel, int base);
    void setNames(QTreeWidgetItem* item);
    void passVisibleWaves();

    ProcSimWavesWidget* m_waves;
    QHash<const sWave_t*, QTreeWidgetItem*> m_items;
    int m_base = 16;
};

} // namespace nsProc
