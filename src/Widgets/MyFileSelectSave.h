#pragma once

#include "MyFileSelect.h"

/// The path of a file that is to be written; it need not exist yet.
class MyFileSelectSave : public MyFileSelect
{
    Q_OBJECT

public:
    explicit MyFileSelectSave(QWidget* parent = nullptr);
    ~MyFileSelectSave() override;

    /// The folder of the path exists, and the path names a file in it.
    bool isValid() const;

signals:
    /// Emitted after each fileValid().
    void fileValidChanged();
    /// The user has left the field or pressed Return, and the field holds a usable path.
    void saveFile();

protected:
    bool isUsable(const QString& path, QString* problem) const override;
    void setupDialog(QFileDialog* dialog) const override;
    void fileChecked() override;

private slots:
    void checkForSaveFile();
};
