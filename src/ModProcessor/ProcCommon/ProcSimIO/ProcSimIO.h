#pragma once

#include "ProcSimPorts.h"

#include <QPointer>
#include <QVector>
#include <QWidget>

#include <memory>

class QComboBox;
class QHBoxLayout;
class QLabel;
class QScrollArea;
class QVBoxLayout;

namespace nsProc {

class ProcSimIODeviceView;

/// The dock "Processor ports": the devices that stand at the ports of a simulated processor, as a column of cards.
class ProcSimIO : public QWidget, public ProcSimPortsListener
{
    Q_OBJECT

public:
    using eDevType_t = ProcSimPorts::eDevType_t;
    using eDirection_t = ProcSimPorts::eDirection_t;

    explicit ProcSimIO(QWidget* parent = nullptr);
    /// @param ports what is shown; shared with the simulator
    explicit ProcSimIO(std::shared_ptr<ProcSimPorts> ports, QWidget* parent = nullptr);
    ~ProcSimIO() override;

    // Like the operations of ProcSimPorts; changes are shown at once.
    ProcSimIOPluginIf* addIOPlugin(eDevType_t type, eDirection_t direction, int initValue);
    void removeIOPlugin(ProcSimIOPluginIf* plugin);
    void removeIOPlugins();
    bool chkIOPluginToRd(int addr, const QString& name);
    bool value(int addr, const QString& name, int* value);
    bool setValue(int addr, const QString& name, int value);
    void clear();
    void clearHighlighted();
    void setBase(int base);

    /// Adds the kind of device that the user has selected, for both directions.
    void addIOPluginFromMenu();
    /// Shows what has changed since the last call. Fast if there is no change.
    void refresh();

    /// The card of a device; null if it has none.
    ProcSimIODeviceView* viewOf(const ProcSimIOPluginIf* device) const;

    /// As wide as the widest card.
    QSize sizeHint() const override;
    /// Narrower, where the cards scroll sideways.
    QSize minimumSizeHint() const override;

    void deviceAdded(ProcSimIOPluginIf* device) override;
    void deviceRemoved(ProcSimIOPluginIf* device) override;

signals:
    /// The program has written. @param widget this dock's widget
    void contentChanged(QWidget* widget);
    /// The user asks for the wave viewer.
    void wavesRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// A device and its card, which goes when one of the two goes.
    struct sCard_t
    {
        const ProcSimIOPluginIf* device;
        QPointer<ProcSimIODeviceView> view;
    };

    void addTools(QVBoxLayout* layout);
    void addColumn(QVBoxLayout* layout);
    void updateColumn();
    void showNew();

    std::shared_ptr<ProcSimPorts> m_ports;
    QVector<sCard_t> m_cards; ///< in the order of the screen
    QComboBox* m_type = nullptr;
    QHBoxLayout* m_buttons = nullptr; ///< beside each other, or below in a narrow dock
    QWidget* m_removeAll = nullptr;
    QWidget* m_waves = nullptr;
    QScrollArea* m_scroll = nullptr;
    QWidget* m_column = nullptr;
    QVBoxLayout* m_columnLayout = nullptr;
    QLabel* m_hint = nullptr;
};

} // namespace nsProc
