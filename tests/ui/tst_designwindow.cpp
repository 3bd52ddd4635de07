#include "base/GTranslationLoader.h"
#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/userdata/RememberedValues.h"
#include "PanelFixture.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include "support/Widgets.h"
#include "ui/design/DesignFactsPanel.h"
#include "ui/design/DesignToolBar.h"
#include "ui/design/DesignView.h"
#include "ui/design/DesignWindow.h"
#include "ui/design/FabricButton.h"
#include "ui/design/PlaybackBar.h"
#include "ui/design/SewingSlider.h"
#include "ui/design/ThreadTable.h"

#include <algorithm>
#include <QtTest>
#include <QtWidgets>

namespace {

constexpr int DesignCount = 4;
const QColor Black(0x1c, 0x1c, 0x1e);

/** Designs "0.dst" to "3.dst" of which the last one is damaged, and the window over them. */
struct Fixture
{
    Fixture()
    {
        QStringList paths;
        for (int i = 0; i < DesignCount; ++i) {
            paths.append(folder.design(QStringLiteral("%1.dst").arg(i)));
            if (!DstDesign::square("Rose", 100 + i).writeTo(paths.last()))
                qFatal("cannot write %s", qPrintable(paths.last()));
        }
        CatalogueFolder::write(paths.last(), "no design");
        project = projectWithFiles(paths);
        models = std::make_unique<FilterSelectionModel>(project);
        models->filter()->refreshFilter();
        GlobalSettings().setImperialUnits(false);
        openWindow();
    }

    void openWindow()
    {
        window = std::make_unique<DesignWindow>(models->filter(), &values);
        view = window->findChild<DesignView *>();
        slider = window->findChild<SewingSlider *>();
        threads = window->findChild<ThreadTable *>();
    }

    /** Shows design @p index and waits until it has been read. */
    void open(int index)
    {
        window->open(project->files().at(index));
        if (!QTest::qWaitForWindowActive(window.get()))
            qFatal("the window does not become active");
        if (!QTest::qWaitFor([this] { return slider->maximum() > 0 || !message().isEmpty(); }))
            qFatal("the design is not read");
    }

    QString name() const { return QFileInfo(window->file()->absoluteFilePath()).fileName(); }
    QString message() const
    {
        const auto *label = view->findChild<QLabel *>();
        return label->isVisible() ? label->text() : QString();
    }
    bool says(const QString &text) const { return ::says(*window, text); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window->windowHandle(), key, modifiers);
    }
    QColor cornerOfView() const { return view->grab().toImage().pixelColor(1, 1); }
    /** Whether something of this colour is to be seen, as strong as that. */
    bool shows(int red, int green) const
    {
        const QImage image = view->grab().toImage();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor color = image.pixelColor(x, y);
                if (qAbs(color.red() - red) < 30 && qAbs(color.green() - green) < 30 &&
                    color.blue() < 40)
                    return true;
            }
        }
        return false;
    }
    void chooseFabric(int row) const
    {
        auto *button = window->findChild<FabricButton *>();
        QTimer::singleShot(0, button, [row, button] {
            for (int i = 0; i <= row; ++i)
                QTest::keyClick(button->menu(), Qt::Key_Down);
            QTest::keyClick(button->menu(), Qt::Key_Return);
        });
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Space);
    }
    QString cell(int row, int column) const
    {
        return threads->model()->index(row, column).data().toString();
    }

    CatalogueFolder folder;
    QSharedPointer<Project> project;
    std::unique_ptr<FilterSelectionModel> models;
    RememberedValues values;
    std::unique_ptr<DesignWindow> window;
    DesignView *view = nullptr;
    SewingSlider *slider = nullptr;
    ThreadTable *threads = nullptr;
};

} // namespace

class tst_DesignWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Q_INIT_RESOURCE(hoopline_resources);
        CatalogueFolder folder;
        GSettings().setUiLanguage("en");
        GTranslationLoader::instance()->setTranslations(QCoreApplication::instance());
    }

    void showsTheDesign()
    {
        Fixture fixture;
        fixture.open(0);
        QVERIFY(fixture.window->windowTitle().contains("0.dst"));
        QVERIFY(fixture.says("1 of 4"));
        QVERIFY(fixture.says("10 mm × 10 mm"));
        QVERIFY(fixture.says("90 mm × 90 mm"));
        QTRY_VERIFY(fixture.shows(0xff, 0));
        // Red, then green: how often the needle goes down, and the thread from point to point.
        QCOMPARE(fixture.threads->model()->rowCount(), 2);
        QCOMPARE(fixture.cell(0, 1), "Red");
        QCOMPARE(fixture.cell(0, 4), "2");
        QCOMPARE(fixture.cell(0, 5), "0.02 m");
        QCOMPARE(fixture.cell(1, 1), "Green");
        QCOMPARE(fixture.cell(1, 4), "4");
        QCOMPARE(fixture.cell(1, 5), "0.05 m");
        QVERIFY(fixture.view->accessibleDescription().contains("10 mm × 10 mm"));
    }

    void tellsInInches()
    {
        Fixture fixture;
        GlobalSettings().setImperialUnits(true);
        fixture.open(0);
        QVERIFY(fixture.says("0.4\" × 0.4\""));
        QVERIFY(fixture.says("3.9\" × 3.9\""));
        QCOMPARE(fixture.cell(1, 5), "0.05 yd");
    }

    void arrowKeysLeadThroughTheFilter()
    {
        Fixture fixture;
        fixture.open(1);
        QStringList names;
        connect(fixture.window.get(), &DesignWindow::designShown, this,
                [&names](const QSharedPointer<IFile> &file) {
                    names.append(QFileInfo(file->absoluteFilePath()).fileName());
                });
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Left, Qt::Key_Right, Qt::Key_PageDown})
            fixture.press(key);
        fixture.press(Qt::Key_Right, Qt::AltModifier);
        for (int i = 0; i < 3; ++i)
            fixture.press(Qt::Key_Right);
        fixture.press(Qt::Key_PageUp);
        QCOMPARE(names, (QStringList{"0.dst", "1.dst", "2.dst", "3.dst", "2.dst"}));
        // As the last one: what came in between is of no interest any more.
        QTRY_VERIFY(fixture.says("10 mm × 10 mm"));
        QVERIFY(fixture.message().isEmpty());
    }

    void staysWhereAFilteredDesignWas()
    {
        Fixture fixture;
        fixture.open(1);
        fixture.project->setFiles({fixture.project->files().at(0), fixture.project->files().at(2)});
        QCOMPARE(fixture.name(), "1.dst");
        fixture.press(Qt::Key_Right);
        QCOMPARE(fixture.name(), "2.dst");
        fixture.project->setFiles({fixture.project->files().at(0)});
        fixture.press(Qt::Key_Right);
        QCOMPARE(fixture.name(), "2.dst");
        fixture.press(Qt::Key_Left);
        QCOMPARE(fixture.name(), "0.dst");
        fixture.project->setFiles({});
        fixture.press(Qt::Key_Right);
        fixture.press(Qt::Key_Left);
        QCOMPARE(fixture.name(), "0.dst");
    }

    void sewsByKeys()
    {
        Fixture fixture;
        fixture.open(0);
        const int count = fixture.slider->maximum();
        QCOMPARE(fixture.slider->value(), count);
        fixture.press(Qt::Key_Comma);
        fixture.press(Qt::Key_Comma);
        fixture.press(Qt::Key_Period);
        QCOMPARE(fixture.slider->value(), count - 1);
        QVERIFY(fixture.says(QStringLiteral("%1 of %2").arg(count - 1).arg(count)));
        QCOMPARE(fixture.threads->currentIndex().row(), 1);
        fixture.press(Qt::Key_Period);
        QCOMPARE(fixture.threads->currentIndex().row(), -1);
        // From the beginning, as it was complete.
        fixture.window->findChild<QComboBox *>()->setCurrentIndex(0);
        fixture.press(Qt::Key_Space);
        QCOMPARE(fixture.slider->value(), 0);
        QTRY_VERIFY(fixture.slider->value() > 0);
        fixture.press(Qt::Key_Space);
        const int stopped = fixture.slider->value();
        QVERIFY(stopped < count);
        // Another design is complete again.
        fixture.press(Qt::Key_Right);
        QTRY_COMPARE(fixture.slider->value(), count);
    }

    void sewsByTheSlider()
    {
        Fixture fixture;
        fixture.open(0);
        QTRY_VERIFY(fixture.shows(0, 0xff));
        const QPoint middle = fixture.slider->rect().center();
        QTest::mouseClick(fixture.slider, Qt::LeftButton, Qt::NoModifier,
                          QPoint(middle.x() / 2, middle.y()));
        QVERIFY(fixture.slider->value() > 0);
        QVERIFY(fixture.slider->value() <= fixture.slider->maximum() / 2);
        // Of the second thread, nothing is sewn yet.
        QTRY_VERIFY(!fixture.shows(0, 0xff));
        QVERIFY(fixture.shows(0xff, 0));
        fixture.slider->setFocus();
        QTest::keyClick(fixture.slider, Qt::Key_Home);
        QTRY_VERIFY(!fixture.shows(0xff, 0));
        QTest::keyClick(fixture.slider, Qt::Key_End);
        QTRY_VERIFY(fixture.shows(0, 0xff));
    }

    void threadsLeadToTheirStitches()
    {
        Fixture fixture;
        fixture.open(0);
        QTRY_VERIFY(fixture.shows(0, 0xff));
        const QModelIndex green = fixture.threads->model()->index(1, 1);
        QTest::mouseClick(fixture.threads->viewport(), Qt::LeftButton, Qt::NoModifier,
                          fixture.threads->visualRect(green).center());
        QCOMPARE(fixture.slider->value(), fixture.slider->maximum());
        // The other one is pale.
        QTRY_VERIFY(!fixture.shows(0xff, 0));
        QVERIFY(fixture.shows(0, 0xff));
        QTest::keyClick(fixture.threads, Qt::Key_Up);
        QVERIFY(fixture.slider->value() < fixture.slider->maximum());
        QTRY_VERIFY(fixture.shows(0xff, 0) && !fixture.shows(0, 0xff));
        // On the way through the designs, the list does not keep the arrow keys for itself.
        QTest::keyClick(fixture.threads, Qt::Key_Right);
        QCOMPARE(fixture.name(), "1.dst");
        QTRY_VERIFY(fixture.shows(0, 0xff) && fixture.shows(0xff, 0));
    }

    void zoomsByKeysWheelAndSlider()
    {
        Fixture fixture;
        fixture.open(0);
        QVERIFY(fixture.view->isFitting());
        const double fitting = fixture.view->zoom();
        fixture.press(Qt::Key_1);
        QCOMPARE(fixture.view->zoom(), 1.0);
        QVERIFY(fixture.says("100%"));
        fixture.press(Qt::Key_Plus);
        QCOMPARE(fixture.view->zoom(), 1.25);
        fixture.press(Qt::Key_Minus, Qt::ControlModifier);
        QCOMPARE(fixture.view->zoom(), 1.0);
        const QPoint middle = fixture.view->rect().center();
        QWheelEvent notch(middle, fixture.view->mapToGlobal(middle), QPoint(), QPoint(0, 120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(fixture.view, &notch);
        QVERIFY(fixture.view->zoom() > 1.0);
        auto *slider = fixture.window->findChild<DesignToolBar *>()->findChild<QSlider *>();
        QTest::keyClick(slider, Qt::Key_End);
        QCOMPARE(fixture.view->zoom(), DesignViewport::GreatestZoom);
        QTRY_VERIFY(fixture.view->grab().toImage().pixelColor(middle) != fixture.cornerOfView());
        fixture.press(Qt::Key_0);
        QCOMPARE(fixture.view->zoom(), fitting);
    }

    void movesByMouseAndKeys()
    {
        Fixture fixture;
        fixture.open(0);
        QTRY_VERIFY(fixture.shows(0xff, 0));
        const QImage before = fixture.view->grab().toImage();
        const QPoint from = fixture.view->rect().center();
        const QPoint to = from + QPoint(40, 30);
        QTest::mousePress(fixture.view, Qt::LeftButton, Qt::NoModifier, from);
        QTest::mouseMove(fixture.view, to);
        QMouseEvent move(QEvent::MouseMove, to, fixture.view->mapToGlobal(to), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(fixture.view, &move);
        QTest::mouseRelease(fixture.view, Qt::LeftButton, Qt::NoModifier, to);
        QVERIFY(!fixture.view->isFitting());
        const QImage moved = fixture.view->grab().toImage();
        QVERIFY(moved != before);
        fixture.press(Qt::Key_Left, Qt::ShiftModifier);
        QVERIFY(fixture.view->grab().toImage() != moved);
        QCOMPARE(fixture.name(), "0.dst");
    }

    void remembersHowItLooks()
    {
        Fixture fixture;
        fixture.open(0);
        fixture.press(Qt::Key_J);
        QVERIFY(fixture.view->drawingStyle().jumps);
        const double inHoop = fixture.view->zoom();
        fixture.press(Qt::Key_H);
        // Without the hoop around it, there is room for a larger design.
        QVERIFY(fixture.view->zoom() > inHoop);
        QCOMPARE(fixture.cornerOfView(), QColor("#f7f5f0"));
        fixture.chooseFabric(9);
        QTRY_COMPARE(fixture.cornerOfView(), Black);

        fixture.openWindow();
        fixture.open(1);
        QCOMPARE(fixture.cornerOfView(), Black);
        QVERIFY(fixture.view->drawingStyle().jumps);
        QVERIFY(fixture.view->zoom() > inHoop);
        fixture.press(Qt::Key_H);
        QVERIFY(GlobalSettings().hoopShown());
    }

    void tellsOfDesignsThatCannotBeRead()
    {
        Fixture fixture;
        fixture.open(3);
        QVERIFY(!fixture.message().isEmpty());
        QCOMPARE(fixture.threads->model()->rowCount(), 0);
        QVERIFY(!fixture.window->findChild<PlaybackBar *>()->isEnabled());
        QCOMPARE(fixture.view->accessibleDescription(), fixture.message());
        fixture.press(Qt::Key_Space);
        fixture.press(Qt::Key_1);
        fixture.press(Qt::Key_Left);
        QTRY_VERIFY(fixture.message().isEmpty());
        QTRY_VERIFY(fixture.shows(0, 0xff));
        QVERIFY(QFile::remove(fixture.folder.design("1.dst")));
        fixture.press(Qt::Key_Left);
        QTRY_COMPARE(fixture.message(), "The file is no longer there.");
        QVERIFY(!fixture.says("10 mm × 10 mm"));
    }

    void closesAndComesBack()
    {
        Fixture fixture;
        fixture.open(0);
        fixture.window->resize(900, 610);
        fixture.press(Qt::Key_Comma);
        fixture.press(Qt::Key_Escape);
        QVERIFY(!fixture.window->isVisible());
        fixture.openWindow();
        QCOMPARE(fixture.window->size(), QSize(900, 610));
        fixture.open(2);
        QCOMPARE(fixture.name(), "2.dst");
        QTest::keySequence(fixture.window.get(), QKeySequence(QKeySequence::Close));
        QVERIFY(!fixture.window->isVisible());
    }
};

QTEST_MAIN(tst_DesignWindow)
#include "tst_designwindow.moc"
