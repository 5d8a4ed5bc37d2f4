#pragma once

#include <QPushButton>

/// The button that cancels without any change.
class MyButtonCancel : public QPushButton
{
    Q_OBJECT

public:
    explicit MyButtonCancel(QWidget* parent = nullptr);
};
