// The headers that nearly every file of the ground floor includes: Qt Core and the standard library alone.
#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QList>
#include <QMap>
#include <QObject>
#include <QRegExp>
#include <QString>
#include <QStringList>
#include <QTextCodec>
#include <QUrl>
#include <QVector>

#include <memory>
#include <vector>
