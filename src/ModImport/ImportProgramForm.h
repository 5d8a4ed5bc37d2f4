#pragma once

#include "ImportProgramConfig.h"

#include <QWidget>

#include <memory>

class MyFileSelectOpen;
class MyFolderSelect;
class QComboBox;
class QGridLayout;
class QTabWidget;

namespace nsImport {
class ImportJob;
}

namespace nsModImport {

class ImportFolderList;

/// The fields of the import of a program: sources or an image, and the folder of the project.
///
/// The folder follows the source or the image as long as the user has not named one.
class ImportProgramForm : public QWidget
{
    Q_OBJECT

public:
    explicit ImportProgramForm(QWidget* parent = nullptr);

    void setConfig(const ImportProgramConfig& config);
    ImportProgramConfig config() const;
    /// Why there is nothing to convert yet, for the user; empty: there is.
    QString problem() const;
    /// What the fields ask for; null if there is a problem.
    std::shared_ptr<nsImport::ImportJob> job() const;
    /// Takes a file as the main source, or as the image if that tab is in front.
    void takeFile(const QString& path);

signals:
    void changed();

private:
    /// The folder of the project that belongs to an input.
    struct Target
    {
        MyFolderSelect* select = nullptr;
        QString suggested;
    };

    QWidget* makeSourcesTab();
    QWidget* makeImageTab();
    MyFolderSelect* makeTarget(QWidget* tab, const QString& name);
    void addField(QGridLayout* grid, const QString& title, QWidget* field, const QString& toolTip);
    void follow(const QString& input, Target* target);
    static QString suggestion(const QString& input);
    bool isImage() const;

    QTabWidget* m_tabs;
    MyFileSelectOpen* m_source = nullptr;
    QComboBox* m_dialect = nullptr;
    ImportFolderList* m_folders = nullptr;
    MyFileSelectOpen* m_reference = nullptr;
    MyFileSelectOpen* m_image = nullptr;
    QComboBox* m_processor = nullptr;
    Target m_sourceTarget;
    Target m_imageTarget;
};

} // namespace nsModImport
