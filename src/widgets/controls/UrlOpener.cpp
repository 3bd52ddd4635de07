#include "widgets/controls/UrlOpener.h"

#include "widgets/controls/GMessageBox.h"

#include <QDesktopServices>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace {

constexpr const char *Schemes[] = {"http", "https", "mailto", "file"};

/** The tool's codes for what is not there, has no program, or was refused by that. */
constexpr int FirstFailure = 2;
constexpr int LastFailure = 4;
/** A program that the tool stays with may end in any way when the user has done with it. */
constexpr int FailsWithinMs = 15000;

} // namespace

UrlOpener::UrlOpener(QObject *parent) : QObject(parent)
{
    for (const char *scheme : Schemes)
        QDesktopServices::setUrlHandler(QString::fromLatin1(scheme), this, "open");
}

UrlOpener::~UrlOpener()
{
    for (const char *scheme : Schemes)
        QDesktopServices::unsetUrlHandler(QString::fromLatin1(scheme));
}

void UrlOpener::open(const QUrl &url)
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    // Qt starts the same tool, but never learns how it ended.
    const QString tool = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (!tool.isEmpty())
        return openByTool(tool, url);
#endif
    // Asked from here, Qt doesn't come back but goes to the platform.
    if (!QDesktopServices::openUrl(url))
        QMetaObject::invokeMethod(
            this, [url] { tellFailure(url); }, Qt::QueuedConnection);
}

void UrlOpener::openByTool(const QString &tool, const QUrl &url)
{
    // Nobody's child: what the user is reading stays open when the program ends.
    auto *process = new QProcess;
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->setStandardInputFile(QProcess::nullDevice());
    process->setWorkingDirectory(QDir::homePath());
    QElapsedTimer started;
    started.start();
    connect(process, &QProcess::errorOccurred, this, [process, url](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        process->deleteLater();
        tellFailure(url);
    });
    connect(process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            [process, url, started](int code, QProcess::ExitStatus status) {
                process->deleteLater();
                if (status == QProcess::NormalExit && code >= FirstFailure && code <= LastFailure &&
                    started.elapsed() < FailsWithinMs)
                    tellFailure(url);
            });
    process->start(tool, {QString::fromLatin1(url.toEncoded())});
}

void UrlOpener::tellFailure(const QUrl &url)
{
    if (url.isLocalFile())
        GMessageBox::critical(tr("There is no program that opens this file or folder."),
                              QDir::toNativeSeparators(url.toLocalFile()));
    else if (url.scheme() == QLatin1String("mailto"))
        GMessageBox::critical(tr("There is no program for mail."), url.path());
    else
        GMessageBox::critical(tr("There is no web browser that opens this address."),
                              url.toString(QUrl::FullyEncoded));
}
