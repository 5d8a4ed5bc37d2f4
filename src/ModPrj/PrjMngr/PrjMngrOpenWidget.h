#pragma once

#include <QWidget>

class MyButton;
class MyFileSelectOpen;

namespace nsModPrj {

/// The part of the project manager that takes a project file by its path.
class PrjMngrOpenWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PrjMngrOpenWidget(QWidget* parent = nullptr);

signals:
    /// @param prjFile absolute path of an existing file
    void add(QString prjFile);
    void open(QString prjFile);

private slots:
    void setFileValid(bool valid);
    void requestAdd();
    void requestOpen();
    void hndlReturn();

private:
    MyFileSelectOpen* m_file;
    MyButton* m_add;
    MyButton* m_open;
};

} // namespace nsModPrj
