#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QStringList>
#include <QUrl>

/// Takes the place of the browser.
class FakeBrowser : public QObject
{
    Q_OBJECT

public:
    FakeBrowser()
    {
        for (const char* scheme : {"http", "https", "file", "ftp"})
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    ~FakeBrowser() override
    {
        for (const char* scheme : {"http", "https", "file", "ftp"})
            QDesktopServices::unsetUrlHandler(scheme);
    }

    QStringList opened;

public slots:
    void open(const QUrl& url) { opened.append(url.toString()); }
};
