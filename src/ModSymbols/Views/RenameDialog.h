#pragma once

#include <QDialog>

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;

namespace nsModSymbols {

/// Asks for another name. What is wrong with a name is said while it is typed.
class RenameDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param refusal why a name can not be given, as a sentence; empty if it can
    RenameDialog(const QString& name, const QString& explanation, std::function<QString(const QString&)> refusal,
                 QWidget* parent = nullptr);

    QString name() const;

private:
    void check();

    std::function<QString(const QString&)> m_refusal;
    QString m_oldName;
    QLineEdit* m_edit;
    QLabel* m_fault;
    QPushButton* m_ok;
};

} // namespace nsModSymbols
