#pragma once

#include <QObject>

class QUrl;

/**
 * Opens what the program asks QDesktopServices for, and tells the user when the desktop has no
 * browser or file manager for it, with the address or path to copy.
 */
class UrlOpener : public QObject
{
    Q_OBJECT

public:
    /** Takes web addresses, mail and files from now on, for as long as it lives. */
    explicit UrlOpener(QObject *parent);
    ~UrlOpener() override;

public slots:
    /** Returns at once; a failure is told later. */
    void open(const QUrl &url);

private:
    void openByTool(const QString &tool, const QUrl &url);
    static void tellFailure(const QUrl &url);
};
