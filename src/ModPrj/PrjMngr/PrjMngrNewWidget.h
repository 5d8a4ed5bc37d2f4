#pragma once

#include "LateContent.h"
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
    NewProjectOptions options();

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
    void makeContent();
    bool isComplete() const;
    void updateButtons();

    MyFileSelectSave* m_file = nullptr;
    QLineEdit* m_title = nullptr;
    PrjMngrOptions* m_options = nullptr;
    QLabel* m_note = nullptr; ///< says which files will be written, and that the file exists already
    MyButton* m_add = nullptr;
    MyButton* m_open = nullptr;
    bool m_fileValid = false;
    bool m_titleValid = false;
    LateContent m_content;
};

} // namespace nsModPrj
