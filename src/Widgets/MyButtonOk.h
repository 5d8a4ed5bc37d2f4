#pragma once

#include <QPushButton>

/// The button that confirms.
class MyButtonOk : public QPushButton
{
    Q_OBJECT

public:
    explicit MyButtonOk(QWidget* parent = nullptr);
};
