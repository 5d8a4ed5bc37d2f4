#pragma once

#include "ModMsgPluginIf.h"
#include "ModPluginIf.h"

#include <QMultiMap>
#include <QObject>
#include <QString>
#include <QStringList>

namespace nsModArgs {

/// The command line: at most one project file, and at most one script file after "-s".
///
/// Every word that begins with "-" is a key; the next word, if it does not begin with "-", is its value. A word without
/// a key is a project file. The result stands from modInit() on.
class ModArgs : public QObject, public ModPluginIf, public ModMsgPluginIf
{
    Q_OBJECT

public:
    explicit ModArgs(QObject* parent = nullptr);
    ~ModArgs() override;

    /// The command line is wrong and the error was reported: neither project nor script may be used.
    bool hasError() const;
    /// As typed, empty without one.
    QString prjFile() const;
    /// As typed, empty without one.
    QString scriptFile() const;

    /// Splits the command line into keys and values.
    /// @return false: there are no arguments
    bool setupArguementMap();
    /// Takes the two files out of the map and reports unknown or surplus arguments.
    /// @return true: everything is in order
    bool checkArguementMap();

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override;
    void modInitIntermod() override;
    void modRun() override;
    bool modExitRequest() override;
    void modExitIntermod() override;
    void modExit() override;

protected:
    /// The words of the command line, the program's name first.
    virtual QStringList arguments() const;

private:
    bool takeSingle(const QString& key, const QString& errorText, QString* file);
    void error(const QString& text);

    QMultiMap<QString, QString> m_map;
    bool m_error = false;
    QString m_prjFile;
    QString m_scriptFile;
};

} // namespace nsModArgs
