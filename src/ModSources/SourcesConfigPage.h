#pragma once

#include "ModConfigPagePluginIf.h"

#include <QDir>
#include <QStringList>
#include <QWidget>

class MyPageLayout;
class QPushButton;

namespace nsModSources {

class SourcesListWidget;

/// The settings page "Sources": which files belong to the project, and in which order.
///
/// Shows paths relative to the project's folder, takes and gives absolute ones.
class SourcesConfigPage : public QWidget, public nsModConfig::ModConfigPagePluginIf
{
    Q_OBJECT

public:
    explicit SourcesConfigPage(QWidget* parent = nullptr);

    /// @param files absolute paths, in order
    /// @param prjDir folder of the project
    void setConfig(const QStringList& files, const QDir& prjDir);
    /// Absolute paths, in order.
    QStringList files() const;

    /// The list has changed elsewhere: follow it, whatever the user has changed here.
    void insertFile(const QString& path);
    void dropFile(const QString& path); ///< its first line

    // ModConfigPagePluginIf
    QWidget* pageWidget() override;
    QIcon pageIcon() override;
    QString pageTitle() override;
    QString pageHelpRef() override;
    void setPrjConfigEnabled(bool enabled) override;
    bool pageIsEnabled() override;
    void setFocus(bool focus) override;
    void setDefaultConfig() override;
    bool checkConfig() override;

public slots:
    /// Asks for files and adds those that may be in the project.
    void addFile();

private slots:
    void removeFile();
    void moveUp();
    void moveDown();
    void updateButtons();

private:
    void addFiles(const QStringList& paths);
    void append(const QString& path);
    bool isInList(const QString& path) const;
    QString pathBeneathPrj(const QString& path) const;
    void refuse(const QString& path, const QString& reason);
    void moveSelection(int step);
    void enableButton(QPushButton* button, bool enabled);
    QPushButton* makeButton(const QString& text, const QString& toolTip, const char* slot);

    QDir m_prjDir;
    MyPageLayout* m_layout = nullptr;
    SourcesListWidget* m_list = nullptr;
    QPushButton* m_remove = nullptr;
    QPushButton* m_up = nullptr;
    QPushButton* m_down = nullptr;
    bool m_enabled = false;
};

} // namespace nsModSources
