#pragma once

#include <QPushButton>

/// The button that leaves without an effect.
class MyButtonCancel : public QPushButton
{
    Q_OBJECT

public:
    explicit MyButtonCancel(QWidget* parent = nullptr);
};
