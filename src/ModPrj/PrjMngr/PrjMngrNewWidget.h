#pragma once

#include "NewProject.h"

#include <QWidget>

class MyButton;
class MyFileSelectSave;
class QLabel;
class QLineEdit;

namespace nsModPrj {

class PrjMngrOptions;

/// The part of the project manager that makes new project files.
class PrjMngrNewWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PrjMngrNewWidget(QWidget* parent = nullptr);

    /// Empties all fields.
    void clear();
    /// What the project is given besides its title.
    NewProjectOptions options() const;

signals:
    /// @param prjFile absolute path of the file to be written
    void generateAdd(QString prjFile, QString title);
    void generateOpen(QString prjFile, QString title);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void checkFile();
    void checkTitle();
    void suggestTitle();
    void requestAdd();
    void requestOpen();
    void hndlReturn();

private:
    bool isComplete() const;
    void updateButtons();

    MyFileSelectSave* m_file;
    QLineEdit* m_title;
    PrjMngrOptions* m_options;
    QLabel* m_note; ///< says which files will be written, and that the file exists already
    MyButton* m_add;
    MyButton* m_open;
    bool m_fileValid = false;
    bool m_titleValid = false;
};

} // namespace nsModPrj
