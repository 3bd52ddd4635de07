#include "AccessibleWalk.h"
#include "PanelFixture.h"

#include "app/application/HooplineApplication.h"
#include "base/GlobalSettings.h"
#include "catalogue/backups/BackupFolder.h"
#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/userdata/RememberedValues.h"
#include "online/FeedbackDialog.h"
#include "online/metrics/Metrics.h"
#include "online/UpdateDialog.h"
#include "preview/grid/PreviewSheet.h"
#include "support/DstDesign.h"
#include "ui/BackupsDialog.h"
#include "ui/CenterView.h"
#include "ui/design/DesignWindow.h"
#include "ui/design/PlaybackBar.h"
#include "ui/ExportDialog.h"
#include "ui/LeftSidebar.h"
#include "ui/MainWindow.h"
#include "ui/NoticeBar.h"
#include "ui/PreferencesDialog.h"
#include "ui/print/SheetDialog.h"
#include "ui/ProgressDialog.h"
#include "ui/RightSidebar.h"
#include "ui/StatusLine.h"
#include "widgets/controls/About2.h"
#include "widgets/controls/GMessageBox.h"
#include "widgets/controls/GSideBarBox.h"
#include "widgets/controls/GToolBar.h"

#include <algorithm>
#include <functional>
#include <QAction>
#include <QPointer>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>

using Maker = std::function<QWidget *()>;
Q_DECLARE_METATYPE(Maker)

namespace {

constexpr int MostControls = 200;

QString describe(QWidget *widget)
{
    const QString name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    return QStringLiteral("%1 '%2'").arg(QLatin1String(widget->metaObject()->className()), name);
}

/** The widgets that the Tab key has to reach. */
QWidgetList reachable(const QWidget *window)
{
    QWidgetList found;
    const auto widgets = window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->window() == window && widget->isVisible() && widget->isEnabled() &&
            !widget->focusProxy() && (widget->focusPolicy() & Qt::TabFocus))
            found.append(widget);
    }
    return found;
}

/** The widgets in the order in which the Tab key leads from one to the next, once around. */
QWidgetList tabOrder(QWidget *window)
{
    QWidgetList order;
    for (int i = 0; i < MostControls; ++i) {
        QTest::keyClick(window->windowHandle(), Qt::Key_Tab);
        QWidget *current = QApplication::focusWidget();
        // A text with links keeps the focus while Tab leads through these.
        if (!current || (!order.isEmpty() && order.last() == current))
            continue;
        if (order.contains(current))
            break;
        order.append(current);
    }
    return order;
}

QWidget *paneOf(QWidget *widget)
{
    while (widget && !qobject_cast<GToolBar *>(widget) && !qobject_cast<GSideBarBox *>(widget) &&
           !qobject_cast<CenterView *>(widget) && !qobject_cast<StatusLine *>(widget) &&
           !qobject_cast<NoticeBar *>(widget) && !widget->isWindow())
        widget = widget->parentWidget();
    return widget;
}

QRect place(const QWidget *widget)
{
    return QRect(widget->mapTo(widget->window(), QPoint()), widget->size());
}

/** Whether someone who reads line by line comes to \a second after \a first. */
bool reads(const QRect &first, const QRect &second)
{
    const bool sameLine = second.top() <= first.bottom() && first.top() <= second.bottom();
    return sameLine ? second.left() >= first.left() : second.top() > first.top();
}

/** What Tab does not reach, and the steps that lead back, apart from the one that closes the ring.
 */
QStringList faultsOfTabOrder(QWidget *window)
{
    const QWidgetList expected = reachable(window);
    if (expected.isEmpty())
        return {};
    const QWidgetList order = tabOrder(window);
    QStringList faults;
    for (QWidget *widget : expected) {
        if (!order.contains(widget))
            faults.append(describe(widget) + QStringLiteral(" is not reached"));
    }
    QStringList backwards;
    for (int i = 0; i < order.size(); ++i) {
        QWidget *next = order.at((i + 1) % order.size());
        if (paneOf(order.at(i)) == paneOf(next) && !reads(place(order.at(i)), place(next)))
            backwards.append(describe(order.at(i)) + QStringLiteral(" -> ") + describe(next));
    }
    // In the main window the ring closes from one pane to another.
    const bool panes = qobject_cast<MainWindow *>(window);
    if (backwards.size() > (panes ? 0 : 1))
        faults += backwards;
    return faults;
}

QStringList linksOutOfReach(const QWidget *window)
{
    QStringList faults;
    const auto labels = window->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->text().contains(QLatin1String("<a ")) &&
            !(label->textInteractionFlags() & Qt::LinksAccessibleByKeyboard))
            faults.append(QStringLiteral("a link is not reached: ") + label->text());
    }
    return faults;
}

} // namespace

class tst_accessibility : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void servesKeyboardAndScreenReader_data();
    void servesKeyboardAndScreenReader();
    void tabLeadsThroughThePanes();

private:
    void show(QWidget *window);
    QWidget *filledWindow();
    QWidget *designWindow();

    QTemporaryDir m_directory;
    std::unique_ptr<FilterSelectionModel> m_models;
    RememberedValues m_values;
    std::unique_ptr<QWidget> m_shown;
};

void tst_accessibility::initTestCase()
{
    QAccessible::setActive(true);
    GlobalSettings().setApplicationDataPath(m_directory.filePath(QStringLiteral("data")));
    QDir().mkpath(m_directory.filePath(QStringLiteral("data")));
    QDir().mkpath(m_directory.filePath(QStringLiteral("roses/wild")));
    for (const char *name : {"roses/a.dst", "roses/wild/b.dst", "roses/wild/c.dst"}) {
        QFile file(m_directory.filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("LA:x\r").leftJustified(512) +
                   QByteArray::fromHex("8100034000038180030000f3"));
    }
}

void tst_accessibility::cleanup()
{
    m_shown.reset();
}

QWidget *tst_accessibility::filledWindow()
{
    auto *window = new MainWindow;
    window->setAttribute(Qt::WA_DeleteOnClose, false);
    window->filesDropped({m_directory.filePath(QStringLiteral("roses"))});
    window->findChild<CenterView *>()->selectAll();
    auto *combo = window->findChild<RightSidebar *>()->findChild<QComboBox *>();
    combo->setEditText(QStringLiteral("red"));
    QTest::keyClick(combo, Qt::Key_Return);
    combo->setEditText(QStringLiteral("to come"));
    return window;
}

QWidget *tst_accessibility::designWindow()
{
    const QString path = m_directory.filePath(QStringLiteral("square.dst"));
    DstDesign::square().writeTo(path);
    const auto project = projectWithFiles({path});
    m_models = std::make_unique<FilterSelectionModel>(project);
    auto *window = new DesignWindow(m_models->filter(), &m_values);
    window->open(project->files().first());
    if (!QTest::qWaitFor([window] { return window->findChild<PlaybackBar *>()->isEnabled(); }))
        qFatal("the design is not read");
    return window;
}

void tst_accessibility::show(QWidget *window)
{
    m_shown.reset(window);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window));
}

void tst_accessibility::servesKeyboardAndScreenReader_data()
{
    QTest::addColumn<Maker>("make");
    const auto row = [](const char *name, const Maker &make) { QTest::newRow(name) << make; };
    row("main window", [this] { return filledWindow(); });
    row("design", [this] { return designWindow(); });
    row("progress", [] {
        auto *dialog = new ProgressDialog(nullptr);
        dialog->setSteps(3);
        return dialog;
    });
    row("transfer", [] {
        const auto noVolumes = [] { return QList<Mount>(); };
        return new ExportDialog(nullptr, projectOfSize(2)->files(), noVolumes);
    });
    row("backups", [this] {
        BackupFolder folder(m_directory.filePath(QStringLiteral("backups")));
        folder.keepDay("no catalogue", QDate(2026, 11, 23));
        return new BackupsDialog(folder, nullptr);
    });
    row("preferences", [] { return new PreferencesDialog(nullptr); });
    row("print", [] {
        return new SheetDialog(SheetDialog::Print, {}, {SheetDesign::of(QStringLiteral("/no.dst"))},
                               nullptr);
    });
    row("feedback", [] { return new FeedbackDialog(nullptr); });
    row("crash report", [] {
        return new FeedbackDialog(nullptr, {}, {QStringLiteral("log")}, QStringLiteral("text"));
    });
    row("update", [] {
        return new UpdateDialog({QStringLiteral("9.0"), QStringLiteral("Nine"), QDate(),
                                 QUrl(QStringLiteral("https://example.org/notes")),
                                 QUrl(QStringLiteral("https://example.org/file"))});
    });
    row("about", [] { return new About2(nullptr); });
    row("preview", [] {
        QPixmap picture(100, 100);
        picture.fill(Qt::red);
        return new PreviewSheet(nullptr, picture);
    });
    row("question",
        [] { return new GMessageBox(GMessageBox::Question, nullptr, QStringLiteral("Really?")); });
    row("message",
        [] { return new GMessageBox(GMessageBox::Warning, nullptr, QStringLiteral("Beware")); });
}

void tst_accessibility::servesKeyboardAndScreenReader()
{
    QFETCH(Maker, make);
    show(make());
    auto *tabs = m_shown->findChild<QTabWidget *>();
    QStringList faults = linksOutOfReach(m_shown.get());
    for (int page = 0; page < (tabs ? tabs->count() : 1); ++page) {
        if (tabs)
            tabs->setCurrentIndex(page);
        faults += AccessibleWalk::faults(m_shown.get());
        faults += faultsOfTabOrder(m_shown.get());
    }
    faults.removeDuplicates();
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void tst_accessibility::tabLeadsThroughThePanes()
{
    show(filledWindow());
    QWidgetList panes;
    const QWidgetList order = tabOrder(m_shown.get());
    for (QWidget *widget : order) {
        if (panes.isEmpty() || panes.last() != paneOf(widget))
            panes.append(paneOf(widget));
    }
    if (panes.size() > 1 && panes.first() == panes.last())
        panes.removeLast();
    std::rotate(panes.begin(), panes.begin() + panes.indexOf(m_shown->findChild<GToolBar *>()),
                panes.end());
    QStringList names;
    for (const QWidget *pane : qAsConst(panes))
        names.append(QString::fromLatin1(pane->metaObject()->className()));
    QCOMPARE(names.join(QLatin1Char(' ')),
             QStringLiteral(
                 "GToolBar NoticeBar DirectoriesBox TagsBox CenterView PropertiesBox StatusLine"));
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
    Metrics::setEndpoint(QUrl(QStringLiteral("http://127.0.0.1:9")));
    Metrics::createInstance(QStringLiteral("40817263"));
    QCoreApplication::processEvents();
    delete first;
    tst_accessibility test;
    const int result = QTest::qExec(&test, argc, argv);
    Metrics::deleteInstance();
    return result;
}

#include "tst_accessibility.moc"
