// A program behind the single-instance guard that tells on stdout what happens to it.

#include "TestWindow.h"

#include "app/application/SingleApplication.h"

#include <cstdio>
#include <QEventLoop>
#include <QTimer>

namespace {

void say(const QByteArray &line)
{
    std::printf("%s\n", line.constData());
    std::fflush(stdout);
}

void letEventsIn()
{
    QEventLoop loop;
    QTimer::singleShot(300, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

int main(int argc, char **argv)
{
    using Mode = SingleApplication::Mode;
    const QByteArray role = argc > 1 ? argv[1] : "";
    const bool windowless = role == "windowless";
    HooplineApplication::setWindowFactory([windowless] {
        // As a window does that shows a splash screen first.
        if (windowless)
            letEventsIn();
        return new TestWindow;
    });
    const bool secondary = role == "secondary";
    SingleApplication app(argc, argv, secondary,
                          Mode::User | Mode::ExcludeAppVersion | Mode::ExcludeAppPath, 1000);
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
    if (windowless) {
        QTimer::singleShot(1000, &app, [] {
            while (GMainWindow *window = theWindow())
                delete window;
            say("windowless");
        });
    }
    say("primary " + QByteArray::number(app.primaryPid()) + " " + app.primaryUser().toUtf8());
    say(app.sendMessage("to myself", 100) ? "sent to myself" : "not sent to myself");
    return app.exec();
}
