#pragma once

#include <QWidget>

class MyButton;
class MyFileSelectSave;
class QLabel;
class QLineEdit;

namespace nsModPrj {

/// The part of the project manager that makes new project files.
class PrjMngrNewWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PrjMngrNewWidget(QWidget* parent = nullptr);

    /// Empties both fields.
    void clear();

signals:
    /// @param prjFile absolute path of the file to be written
    void generateAdd(QString prjFile, QString title);
    void generateOpen(QString prjFile, QString title);

private slots:
    void checkFile();
    void checkTitle();
    void requestAdd();
    void requestOpen();
    void hndlReturn();

private:
    bool isComplete() const;
    void updateButtons();

    MyFileSelectSave* m_file;
    QLineEdit* m_title;
    QLabel* m_note; ///< says that the file exists already
    MyButton* m_add;
    MyButton* m_open;
    bool m_fileValid = false;
    bool m_titleValid = false;
};

} // namespace nsModPrj
