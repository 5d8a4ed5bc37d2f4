#pragma once

#include "MyFileSelect.h"

/// The path of an existing file.
class MyFileSelectOpen : public MyFileSelect
{
    Q_OBJECT

public:
    explicit MyFileSelectOpen(QWidget* parent = nullptr);
    ~MyFileSelectOpen() override;

    /// The field holds the path of an existing file.
    bool isValid() const;

signals:
    /// The user has left the field or pressed Return, and the field holds an existing file.
    void openFile();

protected:
    bool isUsable(const QString& path, QString* problem) const override;
    void setupDialog(QFileDialog* dialog) const override;

private slots:
    void checkForOpenFile();
};
