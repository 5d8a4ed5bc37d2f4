#pragma once

#include <QWidget>

class QLabel;

namespace nsModAsmFe {

/// The assembler's part of the status bar: which processor the project has.
class AsmFeStatusBar : public QWidget
{
    Q_OBJECT

public:
    explicit AsmFeStatusBar(QWidget* parent = nullptr);

    /// An empty name shows that no processor is chosen.
    void setProcessorName(QString name);
    QString processorName() const { return m_processorName; }

private:
    QString m_processorName;
    QLabel* m_name = nullptr;
};

} // namespace nsModAsmFe
