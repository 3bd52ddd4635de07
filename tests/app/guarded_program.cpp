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

} // namespace

int main(int argc, char **argv)
{
    using Mode = SingleApplication::Mode;
    const QByteArray role = argc > 1 ? argv[1] : "";
    HooplineApplication::setWindowFactory([] { return new TestWindow; });
    const bool secondary = role == "secondary";
    SingleApplication app(argc, argv, secondary,
                          Mode::User | Mode::ExcludeAppVersion | Mode::ExcludeAppPath, 1000,
                          std::make_shared<TellingClock>());
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
    return app.exec();
}
