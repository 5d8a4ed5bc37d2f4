#pragma once

#include <QObject>

class QWidget;

/// Prevents the wheel from changing combo boxes and spin boxes that pass under the pointer while a page is scrolled:
/// without the focus they pass the event to the page.
class MyWheelGuard : public QObject
{
    Q_OBJECT

public:
    /// Guards all boxes on the page, also those that come later. The guard belongs to the page.
    static void install(QWidget* page);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit MyWheelGuard(QWidget* page);
    void guard(QWidget* widget);
};
