#pragma once

#include "AsmFeConfig.h"

#include <QWidget>

class QCheckBox;
class QGridLayout;
class QLabel;

namespace nsModAsmFe {

/// On which events which kind of output file is written: a grid of check boxes.
///
/// The events of an output that is off are grey, as they only cause a warning. They can still be changed, as they also
/// apply to the files of devices that the sources declare.
class TargetMapperConfigWidget : public QWidget
{
    Q_OBJECT

public:
    explicit TargetMapperConfigWidget(QWidget* parent = nullptr);

    void setConfig(const AsmFeConfig* config);
    void config(AsmFeConfig* config) const;
    /// Which outputs are on.
    void setOutputsEnabled(bool vhdl, bool verilog, bool hex, bool mem);
    /// Makes room for labels of this width, in pixels.
    void setLabelWidth(int width);

private:
    enum eTarget_t { targetVhdl, targetVerilog, targetHex, targetMem, targetCount };
    enum eEvent_t { eventButton1, eventButton2, eventSave, eventCount };

    void setTarget(eTarget_t target, const TargetConfig& config);
    void target(eTarget_t target, TargetConfig* config) const;
    void updateHint();

    QGridLayout* m_layout;
    QCheckBox* m_boxes[targetCount][eventCount];
    QWidget* m_titles[targetCount];
    bool m_isOn[targetCount] = {};
    QLabel* m_hint = nullptr;
};

} // namespace nsModAsmFe
