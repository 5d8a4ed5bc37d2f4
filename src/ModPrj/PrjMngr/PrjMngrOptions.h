#pragma once

#include "NewProject.h"

#include <QWidget>

class QCheckBox;
class QComboBox;

namespace nsModPrj {

/// What a new project is given at once: processor, first source and outputs. Nothing is chosen at first.
class PrjMngrOptions : public QWidget
{
    Q_OBJECT

public:
    explicit PrjMngrOptions(QWidget* parent = nullptr);

    NewProjectOptions options() const;
    void clear();

signals:
    void changed();

private:
    QCheckBox* addCheck(const char* name, const QString& text, const QString& toolTip);
    void addHdl(QCheckBox* check, QComboBox* box, const char* name, const QString& suffix);
    void takeProcessor();

    QComboBox* m_processor;
    QCheckBox* m_source;
    QCheckBox* m_hex;
    QCheckBox* m_mem;
    QCheckBox* m_vhdl;
    QCheckBox* m_verilog;
    QComboBox* m_vhdlTemplate;
    QComboBox* m_verilogTemplate;
    bool m_sourceTouched = false; ///< the user has decided about the first source
};

} // namespace nsModPrj
