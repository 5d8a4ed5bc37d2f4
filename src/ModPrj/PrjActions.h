#pragma once

#include <QActionGroup>
#include <QList>

namespace nsModPrj {

/// The project's entries in menu and tool bar.
class PrjActions : public QActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionNew = 0, eActionOpen = 1, eActionClose = 2 };
    Q_ENUM(eAction_t)

    explicit PrjActions(QObject* parent = nullptr);

    /// All actions at once.
    void setEnabled(bool enabled);
    /// One action.
    void setEnabled(eAction_t action, bool enabled);

    /// In the order of menu and tool bar; owned by the group.
    QList<QAction*> menuActions() const;
    QList<QAction*> toolBarActions() const;

signals:
    void triggered(nsModPrj::PrjActions::eAction_t action);

private slots:
    void handleAction(QAction* action);

private:
    void add(eAction_t action, const QString& text, const QString& toolTip, const QString& icon);
};

} // namespace nsModPrj
