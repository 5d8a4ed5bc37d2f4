#pragma once

#include "ModConfigPagePluginIf.h"
#include "SyscallConfig.h"
#include "SyscallEvent.h"

#include <QWidget>

class MyPageLayout;
class QCheckBox;
class QLineEdit;
class QSpinBox;

namespace nsModSyscall {

class SyscallProgramSelect;

/// The settings page "Ext progs": the external programs of the project, and the events that run them.
class SyscallConfigPage : public QWidget, public nsModConfig::ModConfigPagePluginIf
{
    Q_OBJECT

public:
    explicit SyscallConfigPage(QWidget* parent = nullptr);

    /// @param prjDir folder of the project, which relative paths are shown against; empty without a project
    void setConfig(const SyscallConfig& config, const QString& prjDir);
    /// What the page shows. Program and arguments that nobody has touched come back to the letter.
    void config(SyscallConfig* config) const;
    static QString title();

    // ModConfigPagePluginIf
    QWidget* pageWidget() override { return this; }
    QIcon pageIcon() override;
    QString pageTitle() override { return title(); }
    QString pageHelpRef() override;
    void setPrjConfigEnabled(bool enabled) override;
    bool pageIsEnabled() override { return m_enabled; }
    void setFocus(bool) override {}
    void setDefaultConfig() override;
    bool checkConfig() override { return true; }

private:
    static const int eventCount = 3;

    struct sFields_t
    {
        QCheckBox* en = nullptr;
        QLineEdit* comment = nullptr;
        QCheckBox* storeRelToPrj = nullptr;
        SyscallProgramSelect* exe = nullptr;
        QLineEdit* arg = nullptr;
        QCheckBox* blockingModeEn = nullptr;
        QCheckBox* abortIfNoSuccess = nullptr;
        QSpinBox* retValOfSuccess = nullptr;
        QCheckBox* events[eventCount] = {};
        SyscallRecord shown;  ///< what the fields were set from
        QString shownExeText; ///< what the fields showed then
        QString shownArgText; ///< the same
    };

    void addProgram(int index);
    void addMatrix();
    void showProgram(int index);
    void showPath(int index);
    QString exeOf(int index) const;
    void updateEnabled(int index);
    SyscallRecord recordOf(int index) const;

    MyPageLayout* m_layout;
    sFields_t m_programs[programCount];
    QString m_prjDir;
    bool m_enabled = false;
};

} // namespace nsModSyscall
