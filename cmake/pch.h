// The headers that nearly every file includes, compiled once for all modules.
#pragma once

#include <QAction>
#include <QActionGroup>
#include <QByteArray>
#include <QColor>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFont>
#include <QHash>
#include <QIcon>
#include <QList>
#include <QMainWindow>
#include <QMap>
#include <QObject>
#include <QRegExp>
#include <QString>
#include <QStringList>
#include <QTextCodec>
#include <QTextStream>
#include <QUrl>
#include <QVector>
#include <QWidget>

#include <memory>
#include <vector>
