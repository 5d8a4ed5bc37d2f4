#pragma once

#include "ProcSimWave.h"
#include "ProcSimWaveData.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

class QAbstractButton;
class QBoxLayout;
class QComboBox;
class QLabel;
class QLineEdit;
class QScrollBar;

namespace nsProc {

class ProcSimWavesWidget;
class ProcSimWaveTree;

/// Shows the values that pass through watched ports of a simulated processor against time.
///
/// The simulator adds values to data() at its full speed and calls setClock() and refresh() from time to time. As long
/// as no port is watched, no values need to be added. Channels are added and removed here, not in data(), since the
/// rows refer to them.
class ProcSimWaveViewer : public QWidget
{
    Q_OBJECT

public:
    using eAccessType_t = ProcSimWaveData::eAccessType_t;
    using sAddrChannel_t = ProcSimWaveData::sAddrChannel_t;

    /// @param clkFreq clock rate in Hz; 0 or below if it is unknown, then time is shown in clocks only
    /// @param data what is shown; shared with the simulator
    ProcSimWaveViewer(std::shared_ptr<ProcSimWaveData> data, double clkFreq, QWidget* parent = nullptr);
    /// With data of its own.
    explicit ProcSimWaveViewer(double clkFreq, QWidget* parent = nullptr);
    ~ProcSimWaveViewer() override;

    ProcSimWaveData* data() { return m_data.get(); }
    /// What the program calls a port: empty without a name.
    using NameOf = std::function<QString(int addr, eAccessType_t access)>;
    /// The address that a constant of the program stands for: 0 to 255, -1 if it is none.
    using AddrOf = std::function<int(const QString& name)>;

    /// Takes the names of the program. The functions must be callable as long as this lives.
    void setPortNames(NameOf nameOf, AddrOf addrOf);
    /// The program has changed: the channels get the names that it has now.
    void updatePortNames();
    /// @param base 8, 10 or 16
    void setBase(int base);
    /// Deletes the values of all channels and keeps the channels. Time restarts.
    void clearValues();
    void clearAddrChannelValues(sAddrChannel_t* channel);
    /// A value has passed through a port; it is kept if the port is watched. For many values, use data().
    /// @param name what the program calls the port: a channel without a name is called so from now on; may be empty
    /// @param value 0 to 255
    /// @param clock clock count; below the present time, time restarts
    void addValue(int addr, eAccessType_t access, const QString& name, int value, qint64 clock);
    /// Watches a port from now on.
    /// @param addr 0 to 255
    /// @param initValue value at the present time, below 0 if it is unknown
    /// @param name what the port is called; if empty, what the program calls it, and without that its address
    /// @return false if the port is watched already: its row becomes the current one
    bool addAddrChannel(int addr, eAccessType_t access, int initValue, const QString& name);
    /// The port is not watched any longer; the channel with its values is deleted.
    void removeAddrChannel(sAddrChannel_t* channel);
    /// The present time in clocks: the waves extend to it. Shown by the next refresh().
    void setClock(qint64 clock);
    /// Shows what has changed. Fast if nothing has.
    void refresh();

    /// Writes what is held as a value change dump, see ProcSimVcd. Shows how far it is when that takes long, and can be
    /// cancelled then, which leaves the file as it was. Handles events: this may be gone when it returns.
    /// @param cancelled out: the user has cancelled it; may be null
    /// @return empty, or why it failed
    QString saveVcd(const QString& path, bool* cancelled = nullptr);

    QSize sizeHint() const override;

public slots:
    /// Watches the port whose address, as a number or a constant, and access are entered.
    void addWave(bool checked = false);
    /// Watches no port any longer.
    void clear(bool checked = false);
    /// Asks for a file and saves the values.
    void save();

signals:
    /// refresh() has found new values or other channels.
    void contentChanged(QWidget* widget);

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* makeTools();
    static QWidget* makeToolGroup(QWidget* parent);
    void addPortTools();
    void addViewTools();
    QWidget* makePanes();
    QAbstractButton* addButton(QWidget* row, const QString& text, const QString& icon, const QString& name,
                               const QString& toolTip);
    void setupOrder();
    void updateButtons();
    void showMoment(qint64 pointed);
    void say(const QString& text);
    /// @param name the constant that was entered; empty for a number
    /// @return below 0 if no address is entered
    int enteredAddr(QString* name) const;
    void refuseAddr();
    void showProblem(bool isProblem);

    std::shared_ptr<ProcSimWaveData> m_data;
    double m_clkFreq;
    NameOf m_nameOf; ///< may be empty
    AddrOf m_addrOf; ///< may be empty
    int m_base = 16;
    int m_waveCount = 0; ///< index of the next wave
    std::vector<std::unique_ptr<sWave_t>> m_waves;
    unsigned m_shownChanges = 0;
    qint64 m_shownClock = 0;
    bool m_stale = false;
    QString m_lastPath;
    QBoxLayout* m_toolLayout = nullptr;
    QWidget* m_portTools = nullptr;
    QWidget* m_viewTools = nullptr;
    QLineEdit* m_addr = nullptr;
    QComboBox* m_access = nullptr;
    QComboBox* m_unit = nullptr;
    QAbstractButton* m_add = nullptr;
    QAbstractButton* m_removeAll = nullptr;
    QAbstractButton* m_save = nullptr;
    QAbstractButton* m_zoomIn = nullptr;
    QAbstractButton* m_zoomOut = nullptr;
    QAbstractButton* m_fit = nullptr;
    QAbstractButton* m_end = nullptr;
    QLabel* m_message = nullptr;
    QLabel* m_moment = nullptr;
    QScrollBar* m_scrollBar = nullptr;
    ProcSimWavesWidget* m_wavesWidget = nullptr;
    ProcSimWaveTree* m_tree = nullptr;
};

} // namespace nsProc
