#pragma once

#include <QPushButton>

/// The button beside a path that opens a file dialog.
class MyButtonOpenFile : public QPushButton
{
    Q_OBJECT

public:
    explicit MyButtonOpenFile(QWidget* parent = nullptr);
};
