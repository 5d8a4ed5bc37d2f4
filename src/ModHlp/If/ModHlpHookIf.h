#pragma once

#include <QString>
#include <QUrl>

class QWidget;

/// The help browser. Served by nsModHlp::ModHlp.
class ModHlpHookIf
{
public:
    virtual ~ModHlpHookIf() = default;

    /// Shows the help page beside a dialog.
    /// @param ref a reference such as "pageId://configPageAsmFe"; upper and lower case are the same
    virtual void showDialogHlpRef(QWidget* dialog, QString ref) = 0;
    virtual void showHlp(QUrl url) = 0;
    virtual void closeDialogHlp(QWidget* dialog) = 0;
};
