// main() of every test program: needs no display, does not use the settings of the user, and sets the locale.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {

/// The platform without a screen prints a warning for every window, which would hide the output of failures.
void printMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (message.startsWith(QLatin1String("This plugin does not support ")))
        return;
    std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
    if (type == QtFatalMsg)
        std::abort();
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    qInstallMessageHandler(printMessage);
    qunsetenv("SOURCE_DATE_EPOCH");
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("XDG_CACHE_HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
    // The discovery of tests must not need a display connection either, so the application comes first.
    QApplication app(argc, argv);
    QApplication::setStyle("fusion");
    QCoreApplication::setOrganizationName("NalvoTests");
    QCoreApplication::setApplicationName("NalvoTests");
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
