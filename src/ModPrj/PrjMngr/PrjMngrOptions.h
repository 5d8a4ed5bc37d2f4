#pragma once

#include "NewProject.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QGridLayout;
class MyFieldTitle;

namespace nsModPrj {

/// What a new project is given at once: processor, first source and outputs. Nothing is chosen at first.
class PrjMngrOptions : public QWidget
{
    Q_OBJECT

public:
    explicit PrjMngrOptions(QWidget* parent = nullptr);

    NewProjectOptions options() const;
    void clear();

    QSize minimumSizeHint() const override;

signals:
    void changed();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QCheckBox* addCheck(const char* name, const QString& text, const QString& toolTip);
    void addHdl(QCheckBox* check, QComboBox* box, const char* name, const QString& suffix);
    void takeProcessor();
    void arrange(bool narrow);
    int titleWidth() const;
    int fieldWidth() const;

    QComboBox* m_processor;
    QCheckBox* m_source;
    QCheckBox* m_hex;
    QCheckBox* m_mem;
    QCheckBox* m_vhdl;
    QCheckBox* m_verilog;
    QComboBox* m_vhdlTemplate;
    QComboBox* m_verilogTemplate;
    MyFieldTitle* m_processorTitle = nullptr;
    MyFieldTitle* m_outputsTitle = nullptr;
    QGridLayout* m_layout = nullptr;
    bool m_isNarrow = false;
    bool m_sourceTouched = false; ///< the user has decided about the first source
};

} // namespace nsModPrj
