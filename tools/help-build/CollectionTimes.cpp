#include "CollectionTimes.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

namespace nsHelpBuild {

namespace {

const QString connectionName = QStringLiteral("collectionTimes");

bool run(const QSqlDatabase& database, QString* error)
{
    for (const char* command :
         {"UPDATE TimeStampTable SET TimeStamp = '2000-01-01T00:00:00'",
          "UPDATE SettingsTable SET Value = '2000-01-01T00:00:00.000' WHERE Key = 'LastRegisterTime'",
          "UPDATE SettingsTable SET Value = 946684800 WHERE Key = 'CreationTime'",
          // What was overwritten does not stay in the gaps of the file.
          "VACUUM"}) {
        QSqlQuery query(database);
        if (!query.exec(QString::fromLatin1(command))) {
            *error = query.lastError().text();
            return false;
        }
    }
    return true;
}

} // namespace

bool fixCollectionTimes(const QString& file, QString* error)
{
    if (!QFileInfo(file).isFile()) {
        *error = QStringLiteral("there is no such file");
        return false;
    }
    bool success = false;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connectionName);
        database.setDatabaseName(file);
        success = database.open();
        if (success)
            success = run(database, error);
        else
            *error = database.lastError().text();
    }
    QSqlDatabase::removeDatabase(connectionName);
    return success;
}

} // namespace nsHelpBuild
