#pragma once

#include "MyTextButton.h"

/// A push button as all pages have it.
class MyButton : public MyTextButton
{
    Q_OBJECT

public:
    explicit MyButton(QWidget* parent = nullptr);
    explicit MyButton(const QString& text, QWidget* parent = nullptr);
};
