#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>

namespace {

/** One block device on one drive, whatever is asked for. */
class Drives : public QDBusVirtualObject
{
public:
    QString introspect(const QString &) const override { return QString(); }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        const QDBusObjectPath path(QStringLiteral("/drive"));
        QVariantList answer;
        if (message.member() == QLatin1String("ResolveDevice"))
            answer.append(QVariant::fromValue(QList<QDBusObjectPath>{path}));
        else if (message.member() == QLatin1String("GetAll"))
            answer.append(QVariantMap{{QStringLiteral("Drive"), QVariant::fromValue(path)}});
        return bus.send(message.createReply(answer));
    }
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    Drives drives;
    QDBusConnection bus = QDBusConnection::systemBus();
    const bool ready =
        bus.registerVirtualObject(QStringLiteral("/"), &drives, QDBusConnection::SubPath) &&
        bus.registerService(QStringLiteral("org.freedesktop.UDisks2"));
    return ready ? QCoreApplication::exec() : 1;
}
