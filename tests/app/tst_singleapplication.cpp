#include "support/GuardFolder.h"

#include "app/application/SingleApplicationPrivate.h"
#include "base/InstanceName.h"

#include <algorithm>
#include <map>
#include <memory>
#include <QLocalSocket>
#include <QtTest>
#include <vector>

#include <cerrno>
#include <csignal>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

using Process = std::unique_ptr<QProcess>;

constexpr int Patience = 60000;

static Process start(const QStringList &arguments = {})
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(QStringLiteral(GUARDED_PROGRAM), arguments);
    return process;
}

static QByteArray message(quint8 type, const QByteArray &name, int checksumError = 0)
{
    QByteArray body;
    QDataStream stream(&body, QIODevice::WriteOnly);
    stream << name << type << quint32(7);
    stream << quint16(qChecksum(body.constData(), uint(body.size())) + checksumError);
    return body;
}

static QByteArray header(quint64 length)
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << length;
    return bytes;
}

static QByteArray framed(const QByteArray &body)
{
    return header(quint64(body.size())) + body;
}

class tst_singleapplication : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_directory = std::make_unique<GuardFolder>(); }

    void cleanup()
    {
        if (m_primary) {
            m_primary->closeWriteChannel();
            if (!m_primary->waitForFinished())
                qWarning("The primary does not end.");
            m_primary.reset();
        }
        m_directory.reset();
    }

    void secondStartEndsAndRaisesThePrimary()
    {
        m_primary = startPrimary();
        QVERIFY(m_primary);
        Process second = start();
        QVERIFY(second->waitForFinished(Patience));
        QCOMPARE(second->exitStatus(), QProcess::NormalExit);
        QCOMPARE(second->exitCode(), 0);
        QVERIFY(waitForLine(*m_primary, "started 1"));
        QVERIFY(!second->readAllStandardOutput().contains("primary"));
    }

    void secondaryTalksToThePrimary()
    {
        m_primary = startPrimary();
        QVERIFY(m_primary);
        for (int id = 1; id <= 2; ++id) {
            Process second = start({"secondary"});
            QVERIFY(waitForLine(*second, "sent"));
            QVERIFY(waitForLine(*m_primary, "message " + QByteArray::number(id) + " hello"));
            QVERIFY(second->waitForFinished(Patience));
        }
    }

    void twentyStartsLeaveOnePrimary()
    {
        constexpr int Count = 20;
        std::vector<Process> processes;
        for (int i = 0; i < Count; ++i)
            processes.push_back(start());
        const auto running = [&] {
            return std::count_if(processes.cbegin(), processes.cend(), [](const Process &process) {
                return process->state() != QProcess::NotRunning;
            });
        };
        QTRY_COMPARE_WITH_TIMEOUT(running(), 1, Patience);
        // A process that is primary too would stay as well, if only for a while.
        int primaries = 0;
        for (Process &process : processes) {
            if (process->state() == QProcess::NotRunning) {
                QCOMPARE(process->exitCode(), 0);
                QVERIFY(!process->readAllStandardOutput().contains("primary"));
            } else {
                QVERIFY(waitForLine(*process, "not sent to myself"));
                m_primary = std::move(process);
                ++primaries;
            }
        }
        QCOMPARE(primaries, 1);
    }

    void killedPrimaryLocksNobodyOut()
    {
        m_primary = startPrimary();
        QVERIFY(m_primary);
        m_primary->kill();
        QVERIFY(m_primary->waitForFinished());
        m_primary = startPrimary();
        QVERIFY(m_primary);
    }

    void killedWhileStartingLocksNobodyOut()
    {
        for (int delay = 1; delay < 60; delay += 4) {
            Process process = start();
            QVERIFY(process->waitForStarted());
            QTest::qSleep(delay);
            process->kill();
            QVERIFY(process->waitForFinished());
        }
        m_primary = startPrimary();
        QVERIFY(m_primary);
    }

    void halfWrittenBlockIsReset()
    {
        // Someone stays attached, so that the block is not simply dropped.
        QSharedMemory block(GuardFolder::serverName());
        QVERIFY(block.create(sizeof(InstanceBlock)));
        std::memset(block.data(), 0x5a, sizeof(InstanceBlock));
        m_primary = start();
        // Once to give the writer time, and once more after the block was reset.
        for (int i = 0; i < 2; ++i) {
            const QByteArray waited = nextLine(*m_primary);
            QVERIFY2(waited.startsWith("waited "), waited.constData());
            const int milliseconds = waited.mid(int(qstrlen("waited "))).toInt();
            QVERIFY(milliseconds >= 8000 && milliseconds <= 17000);
        }
        QCOMPARE(nextLine(*m_primary), recordOf(*m_primary));
        QVERIFY(static_cast<const InstanceBlock *>(block.constData())->isIntact());
    }

    // All at once, since those who say too little are given some time.
    void dropsBadClients()
    {
        const QByteArray name = GuardFolder::serverName().toLatin1();
        const QMap<QByteArray, QByteArray> bad{
            {"silent", QByteArray()},
            {"half a header", header(55).left(3)},
            {"body cut short", framed(message(1, name)).chopped(1)},
            {"huge length", header(~quint64(0))},
            {"oversized",
             header(SingleApplicationPrivate::MaxInitMessageLength + 1) + QByteArray(1 << 20, 'x')},
            {"one byte", header(1) + 'x'},
            {"wrong checksum", framed(message(1, name, 1))},
            {"name longer than the body",
             framed(QByteArray::fromHex("7fffffff") + message(1, name))},
            {"wrong name, then a message", framed(message(1, "someone else")) + "hello"},
        };
        m_primary = startPrimary();
        QVERIFY(m_primary);
        std::map<QByteArray, QLocalSocket> clients;
        for (auto client = bad.begin(); client != bad.end(); ++client) {
            QLocalSocket &socket = clients[client.key()];
            socket.connectToServer(GuardFolder::serverName());
            QVERIFY(socket.waitForConnected(Patience));
            socket.write(client.value());
            socket.flush();
        }
        QElapsedTimer timer;
        timer.start();
        for (auto &[what, socket] : clients) {
            while (socket.state() != QLocalSocket::UnconnectedState && timer.elapsed() < Patience)
                QTest::qWait(1);
            QVERIFY2(socket.state() == QLocalSocket::UnconnectedState, what.constData());
        }

        QLocalSocket good;
        good.connectToServer(GuardFolder::serverName());
        QVERIFY(good.waitForConnected(Patience));
        good.write(framed(message(3, name)) + "still there");
        good.flush();
        good.disconnectFromServer();
        QCOMPARE(nextLine(*m_primary), "message 7 still there");
    }

    void acceptsSplitHeader()
    {
        m_primary = startPrimary();
        QVERIFY(m_primary);
        QLocalSocket client;
        client.connectToServer(GuardFolder::serverName());
        QVERIFY(client.waitForConnected(5000));
        const QByteArray bytes = framed(message(1, GuardFolder::serverName().toLatin1()));
        for (const char byte : bytes) {
            client.write(&byte, 1);
            client.flush();
            QTest::qSleep(2);
        }
        QVERIFY(waitForLine(*m_primary, "started 1"));
    }

    void refusesOtherUsers()
    {
        if (geteuid() != 0)
            QSKIP("Only root can become another user.");
        m_primary = startPrimary();
        QVERIFY(m_primary);
        QVERIFY(QFile::setPermissions(m_directory->path(), QFile::Permissions(0x7777)));
        const QByteArray path = m_directory->filePath(GuardFolder::serverName()).toLocal8Bit();
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, path.constData(), sizeof(address.sun_path));
        const auto connectAs = [&address](uid_t user) {
            const pid_t child = fork();
            if (child == 0) {
                const int descriptor = ::socket(AF_UNIX, SOCK_STREAM, 0);
                const bool changed = user == 0 || setuid(user) == 0;
                const int result =
                    ::connect(descriptor, reinterpret_cast<sockaddr *>(&address), sizeof(address));
                _exit(!changed ? 255 : result == 0 ? 0 : errno);
            }
            int status = 0;
            waitpid(child, &status, 0);
            return WEXITSTATUS(status);
        };
        QCOMPARE(connectAs(0), 0);
        QCOMPARE(connectAs(65534), EACCES);
    }

private:
    Process startPrimary()
    {
        Process process = start();
        const bool ready = waitForLine(*process, recordOf(*process)) &&
                           waitForLine(*process, "not sent to myself");
        return ready ? std::move(process) : nullptr;
    }

    /** Empty when none comes. */
    static QByteArray nextLine(QProcess &process)
    {
        while (!process.canReadLine()) {
            if (!process.waitForReadyRead(Patience))
                return QByteArray();
        }
        return process.readLine().trimmed();
    }

    static bool waitForLine(QProcess &process, const QByteArray &line)
    {
        QByteArray read = nextLine(process);
        while (!read.isEmpty() && read != line)
            read = nextLine(process);
        return !read.isEmpty();
    }

    /** What a primary tells of itself. */
    static QByteArray recordOf(const QProcess &process)
    {
        return "primary " + QByteArray::number(process.processId()) + ' ' +
               InstanceName::currentUser().toUtf8();
    }

    std::unique_ptr<GuardFolder> m_directory;
    Process m_primary;
};

QTEST_GUILESS_MAIN(tst_singleapplication)
#include "tst_singleapplication.moc"
