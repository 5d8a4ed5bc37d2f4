#pragma once

#include <QActionGroup>
#include <QList>

namespace nsModAsmFe {

/// The assembler's entries in menu and tool bar.
class AsmFeActions : public QActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionAssemble = 0, eActionButton1 = 1, eActionButton2 = 2 };

    explicit AsmFeActions(QObject* parent);

    void setEnabled(bool enabled);
    void setEnabled(eAction_t action, bool enabled);
    QList<QAction*> menuActions() const;
    QList<QAction*> toolBarActions() const;

signals:
    void triggered(nsModAsmFe::AsmFeActions::eAction_t action);

private slots:
    void handleAction(QAction* action);

private:
    QAction* add(eAction_t action, const QString& text, const QString& toolTip, const QString& icon);
};

} // namespace nsModAsmFe
