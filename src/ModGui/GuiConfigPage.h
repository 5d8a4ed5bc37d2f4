#pragma once

#include "ColorScheme.h"
#include "ModConfigPagePluginIf.h"

#include <QWidget>

class QCheckBox;
class QComboBox;

namespace nsModGui {

/// The settings of the window: its colours, and how the configuration dialog opens.
class GuiConfigPage : public QWidget, public nsModConfig::ModConfigPagePluginIf
{
    Q_OBJECT

public:
    explicit GuiConfigPage(QWidget* parent = nullptr);

    void setColors(ColorScheme::eChoice_t choice);
    ColorScheme::eChoice_t colors() const;
    void setOpensAtLastPage(bool opens);
    bool opensAtLastPage() const;

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
    QCheckBox* m_lastPage;
};

} // namespace nsModGui
