#pragma once

#include "app/application/HooplineApplication.h"
#include "base/GlobalSettings.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include "ui/MainWindow.h"

#include <QPointer>
#include <QtTest>

/** A test of the main window, which shows designs of the test's own in a fresh profile. */
class MainWindowTest : public QObject
{
public:
    /** Runs a test in the program. The window of its start is not what is tested, and is gone. */
    template <class Test>
    static int run(int argc, char **argv)
    {
        Q_INIT_RESOURCE(tnw_resources);
        Q_INIT_RESOURCE(hoopline_resources);
        HooplineApplication application(argc, argv);
        QPointer<MainWindow> first;
        HooplineApplication::setWindowFactory([&first] { return first = new MainWindow; });
        GSettings().setAutoUpdatesEnabled(false);
        GSettings().setCrashLoggerLastCheck(QDateTime::currentDateTime());
        QCoreApplication::processEvents();
        delete first;
        Test test;
        return QTest::qExec(&test, argc, argv);
    }

protected:
    void makeProfile()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        GSettings().flushSettings({});
        GSettings().setAutoUpdatesEnabled(false);
        GlobalSettings().setApplicationDataPath(path("data"));
        QDir().mkpath(path("data"));
    }

    QString path(const QString &name) const { return m_directory->filePath(name); }
    QString catalogueFile() const { return path("data/hoopline-organizer.xml"); }
    QString catalogue() const { return CatalogueFolder::read(catalogueFile()); }

    /** Makes a folder with designs of these names, or adds them to it. */
    QString makeFolder(const QString &name, const QStringList &designs = {}) const
    {
        QDir().mkpath(path(name));
        for (const QString &design : designs) {
            if (!DstDesign::square(design.toLatin1()).writeTo(path(name) + '/' + design))
                qFatal("cannot write %s", qPrintable(design));
        }
        return path(name);
    }

    void open()
    {
        m_window = new MainWindow;
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
    }

    template <class Part>
    Part *part(const QString &name = {}) const
    {
        return m_window->findChild<Part *>(name);
    }

    std::unique_ptr<QTemporaryDir> m_directory;
    QPointer<MainWindow> m_window;
};
