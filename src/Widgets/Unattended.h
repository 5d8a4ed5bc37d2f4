#pragma once

#include <QCoreApplication>
#include <QObject>

class QDialog;

/// Stands in for a user who is not there, as when a script runs the program without a display: no question is waited
/// for.
///
/// A modal dialog is answered as with Esc, which never loses or allows anything, and reported on standard error.
class Unattended : public QObject
{
    Q_OBJECT

public:
    /// From now on, or until it is switched off again.
    static void setOn(bool on);
    static bool isOn();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;

    static void answer(QDialog* dialog);
};
