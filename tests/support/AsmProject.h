#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

/// A project file as text: one source, one processor, no output, until a test says otherwise.
struct AsmProject
{
    AsmProject();

    /// Adds an output file, "hex" or "mem", that an event writes. The event is a part of the setting's name: "But1",
    /// "But2", "Save".
    AsmProject& output(const QString& kind, const QString& file, const QString& event = "But1");
    /// Adds a VHDL output from a template.
    AsmProject& vhdl(const QString& templateFile, const QString& file);
    QByteArray text() const;

    QStringList sources = {"a.psm"};
    QString processor = "Xilinx PicoBlaze 3";
    QMap<QString, QString> settings; ///< key with "/" between the elements
};
