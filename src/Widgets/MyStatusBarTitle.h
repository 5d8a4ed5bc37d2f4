#pragma once

#include <QLabel>

/// A label of the status bar: names the value after it.
class MyStatusBarTitle : public QLabel
{
    Q_OBJECT

public:
    explicit MyStatusBarTitle(QWidget* parent = nullptr);
    explicit MyStatusBarTitle(const QString& text, QWidget* parent = nullptr);
};
