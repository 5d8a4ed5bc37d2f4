#pragma once

#include <QString>

#include <functional>

/// Something that can be done next, as a client offers it to the page that the centre shows while it has no other.
struct PrjStep
{
    /// Where the step stands among those of all clients, in the order of the work.
    enum eOrder_t {
        eOrderSource = 10,
        eOrderProcessor = 20,
        eOrderOutput = 30,
        eOrderAssemble = 40,
        eOrderWrite = 50,
        eOrderFile = 100, ///< a file of the project
        eOrderStart = 200 ///< without a project: one more way to begin
    };

    int order = eOrderFile;
    /// Without this step the project gives no output: the first such step leads the page and stands in the status bar.
    bool isMissing = false;
    QString text;    ///< what happens, as "Choose a processor"
    QString toolTip; ///< plain text
    std::function<void()> act;
};
