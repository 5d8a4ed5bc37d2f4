#pragma once

#include <QWidget>

class QLabel;

/// The heading of a page, over a line.
class MyPageTitle : public QWidget
{
    Q_OBJECT

public:
    explicit MyPageTitle(QWidget* parent = nullptr);
    explicit MyPageTitle(const QString& text, QWidget* parent = nullptr);

    void setText(const QString& text);
    QString text() const;

private:
    QLabel* m_label = nullptr;
};
