#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>

class QDockWidget;
class QMainWindow;

namespace nsModGui {

/// Keeps the docks' shares of the window: they grow and shrink with it, and come back with the extent that the user
/// gave them. Without this class the layout gives all additional space to the centre, and forgets the extent of a
/// hidden dock.
class DockShares : public QObject
{
    Q_OBJECT

public:
    explicit DockShares(QMainWindow* window);

    /// @param dock not owned; has an object name, under which its share is stored
    void add(QDockWidget* dock);

    /// The shares as text, such as "dockLeft=0.25"; empty as long as none is known. What is on the screen counts.
    QStringList shares();
    /// Takes over stored shares; entries that are not a share of a known dock are ignored.
    void setShares(const QStringList& shares);

    /// Stores the present extents as the choice of the user.
    void record();
    /// Gives each visible dock its share; a dock without a share gets what it asks for, but leaves enough space for the
    /// centre.
    void apply();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isHorizontal(QDockWidget* dock) const;
    int windowExtent(QDockWidget* dock) const;
    int extentOf(QDockWidget* dock) const;
    double firstShare(QDockWidget* dock) const;
    bool isReady() const;
    void applySoon();

    QPointer<QMainWindow> m_window;
    QList<QPointer<QDockWidget>> m_docks;
    QHash<QString, double> m_shares; ///< by object name of the dock: extent of dock to extent of window
    QHash<QString, int> m_applied;   ///< by object name: extent that apply() has set
    bool m_applyPending = false;
};

} // namespace nsModGui
