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
    /// Whether an output is on.
    void setOutputEnabled(eTargetKind_t kind, bool enabled);
    /// Makes room for labels of this width, in pixels.
    void setLabelWidth(int width);

private:
    enum eEvent_t { eventButton1, eventButton2, eventSave, eventCount };

    void updateHint();

    QGridLayout* m_layout;
    QCheckBox* m_boxes[targetKindCount][eventCount];
    QWidget* m_titles[targetKindCount];
    bool m_isOn[targetKindCount] = {};
    QLabel* m_hint = nullptr;
};

} // namespace nsModAsmFe
