#pragma once

#include "ColorScheme.h"
#include "ModConfigPagePluginIf.h"

#include <QWidget>

class QComboBox;

namespace nsModGui {

/// The settings of the window: its colours.
class GuiConfigPage : public QWidget, public nsModConfig::ModConfigPagePluginIf
{
    Q_OBJECT

public:
    explicit GuiConfigPage(QWidget* parent = nullptr);

    void setColors(ColorScheme::eChoice_t choice);
    ColorScheme::eChoice_t colors() const;

    // ModConfigPagePluginIf
    QWidget* pageWidget() override { return this; }
    QIcon pageIcon() override;
    QString pageTitle() override;
    QString pageHelpRef() override;
    void setPrjConfigEnabled(bool) override {}
    bool pageIsEnabled() override { return true; }
    void setFocus(bool) override {}
    void setDefaultConfig() override;
    bool checkConfig() override { return true; }

private:
    QComboBox* m_colors;
};

} // namespace nsModGui
