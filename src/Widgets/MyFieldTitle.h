#pragma once

#include <QLabel>

/// The label of an input field.
class MyFieldTitle : public QLabel
{
    Q_OBJECT

public:
    explicit MyFieldTitle(QWidget* parent = nullptr);
    explicit MyFieldTitle(const QString& text, QWidget* parent = nullptr);
};
