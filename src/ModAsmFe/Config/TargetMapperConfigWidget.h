#pragma once

#include "AsmFeConfig.h"

#include <QWidget>

class QCheckBox;
class QGridLayout;

namespace nsModAsmFe {

/// On which events which kind of output file is written: a grid of check boxes.
class TargetMapperConfigWidget : public QWidget
{
    Q_OBJECT

public:
    explicit TargetMapperConfigWidget(QWidget* parent = nullptr);

    void setConfig(const AsmFeConfig* config);
    void config(AsmFeConfig* config) const;
    /// Makes room for labels of this width, in pixels.
    void setLabelWidth(int width);

private:
    enum eTarget_t { targetVhdl, targetVerilog, targetHex, targetMem, targetCount };
    enum eEvent_t { eventButton1, eventButton2, eventSave, eventCount };

    void setTarget(eTarget_t target, const TargetConfig& config);
    void target(eTarget_t target, TargetConfig* config) const;

    QGridLayout* m_layout;
    QCheckBox* m_boxes[targetCount][eventCount];
};

} // namespace nsModAsmFe
