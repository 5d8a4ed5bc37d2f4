#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include <vector>

/// A key of the settings file or of the project file.
struct sKey_t
{
    const char* key;
    const char* type;  ///< "int", "bool", "color", "font", "string", "list" or "path"
    const char* dflt;  ///< as a first start writes it
    const char* other; ///< another value, as it is written
};

using KeyTable = std::vector<sKey_t>;
using KeyValues = QMap<QString, QString>;

/// The keys of the application's settings.
const KeyTable& settingsKeys();
/// The keys of a project file that do not depend on the processor. The values stand here as they do in the elements,
/// where "/" and some more characters are written as references.
const KeyTable& projectKeys();
/// The keys of the images for tools of vendors. Those of a kind go together, and only where the project uses it.
const KeyTable& imageKeys();
/// The keys of the documents that are open in a project; they go together.
const KeyTable& documentKeys();
/// The keys of a processor's section. @param processor name as in the project; an unknown one has none
const KeyTable& processorKeys(const QString& processor);

/// A value of another type than the table says is no value: 1 for a bool, decimal digits for a number, "#rrggbb" for a
/// colour.
bool isOfType(const sKey_t& key, const QString& value);

/// The lines of a settings file as they stand there, without the marks that are the file's own.
KeyValues parseSettings(const QByteArray& file);
/// The leaf elements of a project file.
KeyValues parseProject(const QByteArray& file);
/// A project file with these elements.
QByteArray projectOf(const KeyValues& values);
