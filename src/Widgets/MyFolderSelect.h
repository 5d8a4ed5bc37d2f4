#pragma once

#include "MyFileSelect.h"

/// The path of a folder, which need not exist yet.
class MyFolderSelect : public MyFileSelect
{
    Q_OBJECT

public:
    explicit MyFolderSelect(QWidget* parent = nullptr);

    /// The field holds the path of a folder, or of none that could not be made.
    bool isValid() const;

protected:
    bool isUsable(const QString& path, QString* problem) const override;
    void setupDialog(QFileDialog* dialog) const override;
};
