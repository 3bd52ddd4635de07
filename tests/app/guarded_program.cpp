// A program behind the single-instance guard that tells on stdout what happens to it.

#include "TestWindow.h"

#include "app/application/SingleApplication.h"
#include "support/TestClock.h"

#include <cstdio>
#include <QSocketNotifier>
#include <unistd.h>

namespace {

void say(const QByteArray &line)
{
    std::printf("%s\n", line.constData());
    std::fflush(stdout);
}

/** Tells how long the program would have waited, and goes on. */
class TellingClock : public TestClock
{
public:
    void sleep(Milliseconds pause) override
    {
        TestClock::sleep(pause);
        say("waited " + QByteArray::number(qint64(pause.count())));
    }
};

/** Tells what it is to show. */
class PathWindow : public TestWindow
{
public:
    void showPaths(const QStringList &paths) override
    {
        say("show " + QByteArray::number(paths.size()) + " " + paths.first().toUtf8());
    }
};

} // namespace

int main(int argc, char **argv)
{
    using Mode = SingleApplication::Mode;
    const QByteArray role = argc > 1 ? argv[1] : "";
    HooplineApplication::setWindowFactory([] { return new PathWindow; });
    QStringList paths;
    for (int i = 2; i < argc; ++i)
        paths.append(QFile::decodeName(argv[i]));
    SingleApplication::setPathsToOpen(paths);
    const bool secondary = role == "secondary";
    SingleApplication app(
        argc, argv, secondary, Mode::User | Mode::ExcludeAppVersion | Mode::ExcludeAppPath,
        role == "hasty" ? 100 : 1000,
        role == "patient" ? std::make_shared<Clock>() : std::make_shared<TellingClock>());
    GSettings().setAutoUpdatesEnabled(false);
    GSettings().setCrashLoggerLastCheck(QDateTime::currentDateTime());
    if (app.isSecondary()) {
        say(app.sendMessage("hello", 1000) ? "sent" : "not sent");
        return 0;
    }
    QObject::connect(&app, &SingleApplication::instanceStarted, &app, [&app] {
        app.onClickOnDock();
        say("started " + QByteArray::number(app.mainWindowCount()));
    });
    QObject::connect(&app, &SingleApplication::receivedMessage, &app,
                     [](quint32 id, const QByteArray &message) {
                         say("message " + QByteArray::number(id) + " " + message);
                     });
    // Ends in good order when the test lets go of it or is no more.
    const QSocketNotifier letGo(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&letGo, &QSocketNotifier::activated, &app, &QCoreApplication::quit);
    say("primary " + QByteArray::number(app.primaryPid()) + " " + app.primaryUser().toUtf8());
    say(app.sendMessage("to myself", 100) ? "sent to myself" : "not sent to myself");
    const int result = app.exec();
    // As a window does that saves much.
    if (role == "lingering")
        usleep(300000);
    return result;
}
