#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QUrl>

/// Takes the place of the desktop, which would open the files.
class UrlCatcher : public QObject
{
    Q_OBJECT

public:
    UrlCatcher() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~UrlCatcher() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
    Q_INVOKABLE void open(const QUrl &url) { urls << url; }

    QList<QUrl> urls;
};
