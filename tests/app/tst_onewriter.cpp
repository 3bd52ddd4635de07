#include "support/GuardFolder.h"

#include "base/BuildConfig.h"
#include "base/files/FileLock.h"
#include "support/DstDesign.h"

#include <QtTest>

#include <csignal>

constexpr int Patience = 30000;

/** The organizer and the companion, as processes over one catalogue. */
class OneWriterTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_profile = std::make_unique<GuardFolder>();
        m_environment = QProcessEnvironment::systemEnvironment();
        m_environment.insert("XDG_CONFIG_HOME", m_profile->filePath("config"));
        QSettings settings(m_profile->filePath(QStringLiteral("config/%1/Hoopline Organizer.conf")
                                                   .arg(QLatin1String(BuildConfig::Organisation))),
                           QSettings::IniFormat);
        settings.setValue("autoUpdatesEnabled", false);
        settings.setValue("applicationDataPath", m_profile->filePath("data"));
        for (const char *folder : {"data", "designs", "elsewhere"})
            QDir(m_profile->path()).mkpath(folder);
    }

    void cleanup() { m_profile.reset(); }

    void scanRefusesBesideAnOrganizerElsewhere()
    {
        QVERIFY(makeDesigns(1));
        QProcess organizer;
        start(organizer, PROGRAM);
        QTRY_COMPARE_WITH_TIMEOUT(lockHolder(), organizer.processId(), Patience);
        QTRY_VERIFY_WITH_TIMEOUT(!catalogue().isEmpty(), Patience);
        const QByteArray before = catalogue();
        // Neither block nor socket lead from there to the organizer.
        m_environment.insert("TMPDIR", m_profile->filePath("elsewhere"));
        QProcess scan;
        start(scan, CLI, {"scan", m_profile->filePath("designs")});
        QVERIFY(scan.waitForFinished(Patience));
        QCOMPARE(scan.exitCode(), 3);
        QVERIFY(scan.readAllStandardError().contains("Hoopline Organizer is running"));
        QCOMPARE(catalogue(), before);
        organizer.kill();
        QVERIFY(organizer.waitForFinished(Patience));
        QProcess again;
        start(again, CLI, {"scan", m_profile->filePath("designs")});
        QVERIFY(again.waitForFinished(Patience));
        QCOMPARE(again.exitCode(), 0);
    }

    void organizerWaitsForAScan()
    {
        constexpr int Count = 200;
        QVERIFY(makeDesigns(Count));
        QProcess scan;
        start(scan, CLI, {"scan", m_profile->filePath("designs")});
        QTRY_VERIFY_WITH_TIMEOUT(!QDir(data("previews")).entryList({"*.png"}).isEmpty(), Patience);
        ::kill(pid_t(scan.processId()), SIGSTOP);
        QProcess organizer;
        start(organizer, PROGRAM);
        // It is the primary by then, but has no catalogue yet.
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(m_profile->filePath(GuardFolder::serverName())),
                                 Patience);
        QCOMPARE(lockHolder(), scan.processId());
        ::kill(pid_t(scan.processId()), SIGCONT);
        QVERIFY(scan.waitForFinished(Patience));
        QCOMPARE(scan.exitCode(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(lockHolder(), organizer.processId(), Patience);
        organizer.kill();
        QVERIFY(organizer.waitForFinished(Patience));
        QCOMPARE(catalogue().count("designs/"), Count);
    }

    void killedOrganizerIsFollowedAtOnce()
    {
        for (int i = 0; i < 4; ++i) {
            // A new folder for temporary files may get the number of an old one, and with it what
            // bears its name in the kernel.
            if (i > 1) {
                const QString temporary = m_profile->filePath(QString::number(i));
                QVERIFY(QDir().mkpath(temporary));
                m_environment.insert("TMPDIR", temporary);
            }
            QProcess organizer;
            start(organizer, PROGRAM);
            QTRY_COMPARE_WITH_TIMEOUT(lockHolder(), organizer.processId(), Patience);
            organizer.kill();
            QVERIFY(organizer.waitForFinished(Patience));
        }
    }

private:
    void start(QProcess &process, const QString &program, const QStringList &arguments = {})
    {
        process.setProcessEnvironment(m_environment);
        process.start(program, arguments);
    }

    QByteArray catalogue() const
    {
        QFile file(data("hoopline-organizer.xml"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QString data(const QString &name) const { return m_profile->filePath("data/" + name); }
    qint64 lockHolder() const
    {
        return FileLock(data("hoopline-organizer.lock"), QString()).holder().pid;
    }

    bool makeDesigns(int count) const
    {
        bool written = true;
        for (int i = 0; i < count; ++i) {
            DstDesign design(QByteArray::number(i));
            for (int k = 0; k < 200; ++k)
                design.stitch(k % 2 ? 100 : -100, i % 7 + 1);
            written =
                written && design.writeTo(m_profile->filePath(QString("designs/%1.dst").arg(i)));
        }
        return written;
    }

    std::unique_ptr<GuardFolder> m_profile;
    QProcessEnvironment m_environment;
};

QTEST_GUILESS_MAIN(OneWriterTest)
#include "tst_onewriter.moc"
