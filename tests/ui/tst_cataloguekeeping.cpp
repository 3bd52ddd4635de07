#include "app/application/HooplineApplication.h"
#include "app/frame/GAction.h"
#include "base/GlobalSettings.h"
#include "catalogue/records/IFile.h"
#include "preview/grid/GridPreviewScene.h"
#include "support/DstDesign.h"
#include "ui/CatalogueKeeper.h"
#include "ui/MainWindow.h"
#include "ui/NoticeBar.h"
#include "ui/NoticeRow.h"
#include "ui/ProgressDialog.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGraphicsView>
#include <QMessageBox>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>

namespace {

/** Files can grow no further than a few bytes while it lives: stands in for a full disk. */
class FullDisk
{
public:
    FullDisk() : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit none{1, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &none);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_before{};
    void (*m_handler)(int);
};

/** Presses the buttons of message boxes by their text, one after the other. */
class Answers : public QObject
{
public:
    explicit Answers(const QStringList &texts, const std::function<void()> &before = {})
        : m_texts(texts)
    {
        connect(&m_timer, &QTimer::timeout, this, [this, before] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box || m_texts.isEmpty())
                return;
            if (before)
                before();
            const QString text = m_texts.takeFirst();
            const auto buttons = box->buttons();
            for (QAbstractButton *button : buttons) {
                if (button->text() == text)
                    QTest::mouseClick(button, Qt::LeftButton);
            }
        });
        m_timer.start(10);
    }

    bool areAllGiven() const { return m_texts.isEmpty(); }

private:
    QStringList m_texts;
    QTimer m_timer;
};

} // namespace

/** The window's part in getting the catalogue to the disk and back. */
class tst_cataloguekeeping : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void tellsAFailedSaveUntilItWorks();
    void savesBesideTheWindow();
    void triesAgainByItself();
    void triesAgainOnDemand();
    void tellsOfAnUnreadableCatalogueUntilItWorks();
    void healsADamagedCatalogue();
    void tellsWhatItKept();
    void tellsThatItsFolderWasMissing();
    void tellsOfAFailedSaveAfterAScan();
    void savesACopy();
    void asksAtTheEnd_data();
    void asksAtTheEnd();
    void savesForTheEndOfTheSession();
    void waitsForTheEndOfAScan();

private:
    void open();
    void edit();
    void changeState(Qt::ApplicationState state);
    QByteArray saved() const;
    bool put(const QByteArray &bytes);
    QStringList told() const;
    QPushButton *button(const QString &text) const;
    CatalogueKeeper *keeper() const { return m_window->findChild<CatalogueKeeper *>(); }

    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_file;
    QPointer<MainWindow> m_window;
};

void tst_cataloguekeeping::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    m_file = m_directory->filePath(QStringLiteral("data/hoopline-organizer.xml"));
    GSettings().flushSettings({});
    GSettings().setAutoUpdatesEnabled(false);
    GlobalSettings().setApplicationDataPath(QFileInfo(m_file).path());
    const QString designs = m_directory->filePath(QStringLiteral("designs"));
    QVERIFY(QDir().mkpath(designs));
    QVERIFY(DstDesign::square().writeTo(designs + QStringLiteral("/rose.dst")));
    open();
    m_window->filesDropped({designs});
    // What the scan did is another matter.
    m_window->findChild<NoticeBar *>()->withdraw(QStringLiteral("scan"));
    changeState(Qt::ApplicationActive);
}

void tst_cataloguekeeping::cleanup()
{
    delete m_window;
}

void tst_cataloguekeeping::open()
{
    m_window = new MainWindow;
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
}

/** The star of the one design, by its key. */
void tst_cataloguekeeping::edit()
{
    auto *grid = m_window->findChild<QGraphicsView *>();
    grid->setFocus();
    QTest::keyClick(grid, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(grid, Qt::Key_F);
}

/** As the system tells it: not by an event, so that no event handler stands around it. */
void tst_cataloguekeeping::changeState(Qt::ApplicationState state)
{
    emit qApp->applicationStateChanged(state);
}

QByteArray tst_cataloguekeeping::saved() const
{
    QFile file(m_file);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** Another program's file, later than the one that it replaces. */
bool tst_cataloguekeeping::put(const QByteArray &bytes)
{
    const QDateTime date = QFileInfo(m_file).lastModified().addSecs(5);
    QFile file(m_file);
    return file.remove() && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() &&
           file.flush() && file.setFileTime(date, QFileDevice::FileModificationTime);
}

QStringList tst_cataloguekeeping::told() const
{
    QStringList texts;
    const auto rows = m_window->findChildren<NoticeRow *>();
    for (const NoticeRow *row : rows) {
        if (row->isVisible())
            texts.append(row->text());
    }
    return texts;
}

QPushButton *tst_cataloguekeeping::button(const QString &text) const
{
    const auto buttons = m_window->findChild<NoticeBar *>()->findChildren<QPushButton *>();
    for (QPushButton *candidate : buttons) {
        if (candidate->isVisible() && candidate->text() == text)
            return candidate;
    }
    qFatal("no button %s", qPrintable(text));
}

void tst_cataloguekeeping::tellsAFailedSaveUntilItWorks()
{
    const QByteArray before = saved();
    edit();
    {
        const FullDisk disk;
        changeState(Qt::ApplicationInactive);
        changeState(Qt::ApplicationActive);
        changeState(Qt::ApplicationInactive);
        QTRY_COMPARE(told(), QStringList(QStringLiteral(
                                 "Your last changes could not be saved: File too large")));
    }
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(saved(), before);
    changeState(Qt::ApplicationInactive);
    QTRY_VERIFY(told().isEmpty());
    QVERIFY(saved().contains("<is_favorite>true"));
}

void tst_cataloguekeeping::savesBesideTheWindow()
{
    const QSharedPointer<IFile> rose = m_window->findChild<GridPreviewScene *>()->fileAt(0);
    rose->setNotes(QStringLiteral("sewn once"));
    changeState(Qt::ApplicationInactive);
    // Another edit and the user's return before the file is there.
    rose->setNotes(QStringLiteral("sewn twice"));
    changeState(Qt::ApplicationInactive);
    changeState(Qt::ApplicationActive);
    QTRY_VERIFY(saved().contains("sewn twice"));
    QVERIFY(told().isEmpty());
    QCOMPARE(QFileInfo(m_file).dir().entryList({QStringLiteral("*-2*.xml")}), QStringList());
    // The end waits for it.
    rose->setNotes(QStringLiteral("sewn thrice"));
    changeState(Qt::ApplicationInactive);
    QVERIFY(m_window->closeWindow());
    QVERIFY(saved().contains("sewn thrice"));
}

void tst_cataloguekeeping::triesAgainByItself()
{
    edit();
    keeper()->setRetryInterval(std::chrono::milliseconds(1));
    {
        const FullDisk disk;
        changeState(Qt::ApplicationInactive);
        QTest::qWait(20);
        QTRY_COMPARE(told().size(), 1);
    }
    QTRY_VERIFY(told().isEmpty());
    QVERIFY(saved().contains("<is_favorite>true"));
}

void tst_cataloguekeeping::triesAgainOnDemand()
{
    edit();
    {
        const FullDisk disk;
        changeState(Qt::ApplicationInactive);
        QTRY_COMPARE(told().size(), 1);
        QTest::mouseClick(button(QStringLiteral("Try again")), Qt::LeftButton);
        QVERIFY(keeper()->saveAnyway() == false);
        QCOMPARE(told().size(), 1);
    }
    QTest::keyClick(button(QStringLiteral("Try again")), Qt::Key_Return);
    QTRY_VERIFY(told().isEmpty());
    QVERIFY(saved().contains("<is_favorite>true"));
}

void tst_cataloguekeeping::tellsOfAnUnreadableCatalogueUntilItWorks()
{
    const QByteArray newer = "<hoopline_organizer version='9.0'/>";
    const QByteArray before = saved();
    QVERIFY(put(newer));
    changeState(Qt::ApplicationActive);
    changeState(Qt::ApplicationActive);
    QCOMPARE(told().size(), 1);
    QVERIFY2(told().first().contains(QStringLiteral("newer version")), qPrintable(told().first()));
    // What can't be read is not replaced either.
    edit();
    changeState(Qt::ApplicationInactive);
    QCOMPARE(told().size(), 2);
    QCOMPARE(saved(), newer);

    QVERIFY(put(before));
    keeper()->setRetryInterval(std::chrono::milliseconds(1));
    changeState(Qt::ApplicationActive);
    QCOMPARE(told().size(), 1);
    QVERIFY2(told().first().contains(QStringLiteral("kept as hoopline-organizer-20")),
             qPrintable(told().first()));
}

void tst_cataloguekeeping::healsADamagedCatalogue()
{
    QVERIFY(put(saved().chopped(20)));
    keeper()->setRetryInterval(std::chrono::milliseconds(1));
    changeState(Qt::ApplicationActive);
    QCOMPARE(told().size(), 1);
    QTRY_VERIFY(saved().endsWith("</hoopline_organizer>\n"));
    QVERIFY(saved().contains("rose.dst"));
    QVERIFY2(told().value(0).contains(QStringLiteral("kept as hoopline-organizer.damaged-")),
             qPrintable(told().value(0)));
}

void tst_cataloguekeeping::tellsWhatItKept()
{
    delete m_window;
    QVERIFY(put(saved().chopped(20)));
    open();
    QCOMPARE(told().size(), 1);
    QVERIFY2(told().first().contains(QStringLiteral("1 design(s) could be taken over")),
             qPrintable(told().first()));
    QCOMPARE(QFileInfo(m_file).dir().entryList({QStringLiteral("*.damaged-*.xml")}).size(), 1);
}

void tst_cataloguekeeping::tellsThatItsFolderWasMissing()
{
    delete m_window;
    const QString folder = m_directory->filePath(QStringLiteral("drive/hoopline"));
    GlobalSettings().setApplicationDataPath(folder);
    open();
    QCOMPARE(told().size(), 1);
    QVERIFY2(told().first().contains(folder), qPrintable(told().first()));
    delete m_window;
    open();
    QVERIFY(told().isEmpty());
}

void tst_cataloguekeeping::tellsOfAFailedSaveAfterAScan()
{
    const QString more = m_directory->filePath(QStringLiteral("more"));
    QVERIFY(QDir().mkpath(more));
    QVERIFY(DstDesign::square("Leaf").writeTo(more + QStringLiteral("/leaf.dst")));
    // The catalogue cannot be written where a folder has its name.
    QVERIFY(QFile::remove(m_file) && QDir().mkpath(m_file + QStringLiteral("/x")));
    m_window->filesDropped({more});
    QCOMPARE(told().size(), 2);
    QVERIFY(!m_window->findChild<ProgressDialog *>()->isVisible());
    QVERIFY(QDir(m_file).removeRecursively());
    changeState(Qt::ApplicationInactive);
    QTRY_COMPARE(told(), QStringList(QStringLiteral("1 new")));
    QVERIFY(saved().contains("leaf.dst"));
}

void tst_cataloguekeeping::savesACopy()
{
    const QString copy = m_directory->filePath(QStringLiteral("copy.xml"));
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
            dialog->selectFile(copy);
            QTest::keyClick(dialog, Qt::Key_Return);
        }
    });
    timer.start(10);
    QVERIFY(put("<hoopline_organizer version='9.0'/>"));
    edit();
    changeState(Qt::ApplicationInactive);
    QTRY_COMPARE(told().size(), 1);
    QTest::mouseClick(button(QStringLiteral("Save a copy...")), Qt::LeftButton);
    QFile file(copy);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("<is_favorite>true"));
    QCOMPARE(told().size(), 1);
}

void tst_cataloguekeeping::asksAtTheEnd_data()
{
    QTest::addColumn<QStringList>("answers");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<bool>("saves");
    const auto row = [](const char *name, const QStringList &answers, bool closes, bool saves) {
        QTest::newRow(name) << answers << closes << saves;
    };
    row("tries again", {"Try again", "Try again"}, true, true);
    row("stays", {"Cancel"}, false, false);
    row("gives up", {"Quit without saving"}, true, false);
}

void tst_cataloguekeeping::asksAtTheEnd()
{
    QFETCH(QStringList, answers);
    QFETCH(bool, closes);
    QFETCH(bool, saves);
    edit();
    QVERIFY(QFile::rename(m_file, m_file + QStringLiteral(".before")));
    QVERIFY(QDir().mkpath(m_file + QStringLiteral("/x")));
    int given = 0;
    const Answers answer(answers, [&] {
        // The first answer comes too early.
        if (++given == 2)
            QDir(m_file).removeRecursively();
    });
    QCOMPARE(m_window->closeWindow(), closes);
    QVERIFY(answer.areAllGiven());
    QTRY_COMPARE(m_window.isNull(), closes);
    QCOMPARE(saved().contains("<is_favorite>true"), saves);
    if (!closes) {
        QCOMPARE(told().size(), 1);
        QVERIFY(QDir(m_file).removeRecursively());
        QVERIFY(m_window->close());
        QTRY_VERIFY(!m_window);
        QVERIFY(saved().contains("<is_favorite>true"));
    }
}

void tst_cataloguekeeping::savesForTheEndOfTheSession()
{
    edit();
    {
        const FullDisk disk;
        QVERIFY(!m_window->saveForSessionEnd());
    }
    QVERIFY(m_window->saveForSessionEnd());
    QVERIFY(saved().contains("<is_favorite>true"));
    // It may be called off: the window goes on.
    QVERIFY(m_window->isVisible());
    QVERIFY(told().isEmpty());
}

void tst_cataloguekeeping::waitsForTheEndOfAScan()
{
    edit();
    bool looked = false;
    const auto *progress = m_window->findChild<QProgressBar *>();
    connect(progress, &QProgressBar::valueChanged, m_window, [&] {
        if (looked)
            return;
        looked = true;
        // The records are on their way.
        QVERIFY(put("<hoopline_organizer/>"));
        changeState(Qt::ApplicationActive);
        QVERIFY(!m_window->closeWindow());
        m_window->cancelWork();
    });
    const QString more = m_directory->filePath(QStringLiteral("more"));
    QVERIFY(QDir().mkpath(more));
    QVERIFY(DstDesign::square("Leaf").writeTo(more + QStringLiteral("/leaf.dst")));
    m_window->filesDropped({more});
    QVERIFY(looked);
    QVERIFY(!m_window->isBusy());
    QVERIFY(saved().contains("rose.dst"));
    QVERIFY(m_window->closeWindow());
}

int main(int argc, char **argv)
{
    Q_INIT_RESOURCE(tnw_resources);
    Q_INIT_RESOURCE(hoopline_resources);
    HooplineApplication application(argc, argv);
    // The window of the start is one of the program's own; it is not what is tested.
    QPointer<MainWindow> first;
    HooplineApplication::setWindowFactory([&first] { return first = new MainWindow; });
    GSettings().setAutoUpdatesEnabled(false);
    GSettings().setCrashLoggerLastCheck(QDateTime::currentDateTime());
    QCoreApplication::processEvents();
    delete first;
    tst_cataloguekeeping test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_cataloguekeeping.moc"
