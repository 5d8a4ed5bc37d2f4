#pragma once

#include <QString>
#include <QStringList>

/// The settings of the open project, as their readers and writers see them: values under keys such as
/// "AsmFe/behavior/equ", and paths, which are stored relative to the project's folder.
class PrjSettings
{
public:
    virtual ~PrjSettings() = default;

    /// @param dflt the answer when the key does not exist
    virtual QString value(QString key, QString dflt) = 0;
    virtual void setValue(QString key, QString value) = 0;
    virtual int value(QString key, int dflt) = 0;
    virtual void setValue(QString key, int value) = 0;
    virtual QStringList value(QString key, QStringList dflt) = 0;
    virtual void setValue(QString key, QStringList value) = 0;

    /// The path relative to the project's folder; the argument itself without a project.
    virtual QString convToRelPath(QString path) = 0;
    /// The path made absolute against the project's folder; the argument itself without a project.
    virtual QString convToAbsPath(QString path) = 0;
};
