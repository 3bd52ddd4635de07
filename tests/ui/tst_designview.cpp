#include "embroidery/EmbPattern.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include "support/Rows.h"
#include "ui/design/DesignLoader.h"
#include "ui/design/DesignViewport.h"
#include "ui/design/Playback.h"
#include "ui/design/ScenePainter.h"
#include "ui/design/ScreenScale.h"

#include <QtTest>

Q_DECLARE_METATYPE(QRectF)

constexpr double Inch = 25.4;

static QSharedPointer<const SewingOrder> squareOrder()
{
    CatalogueFolder folder;
    const QString path = folder.design("a.dst");
    DstDesign::square().writeTo(path);
    return ReadDesign::fromFile(path).order;
}

static DesignViewport viewport(const QSizeF &size, const QRectF &contents)
{
    DesignViewport viewport;
    viewport.setSize(size);
    viewport.setTrueScale(0.4);
    viewport.setContents(contents);
    return viewport;
}

static bool areNear(const QPointF &a, const QPointF &b)
{
    return QLineF(a, b).length() < 1e-6;
}

static DesignScene scene(const QSharedPointer<const SewingOrder> &order, int endPoint,
                         double scale = 3.0)
{
    DesignScene scene;
    scene.order = order;
    scene.endPoint = endPoint;
    scene.origin = order->bounds().topLeft() - QPointF(10, 10);
    scene.scale = scale;
    scene.size = QSize(360, 360);
    return scene;
}

/** What a painter makes of a scene; null where it passes it over. */
static QImage painted(ScenePainter &painter, const DesignScene &scene)
{
    QImage image;
    const auto connection =
        QObject::connect(&painter, &ScenePainter::painted, &painter,
                         [&image](const DesignPicture &picture) { image = picture.image; });
    painter.paint(scene, painter.nextNumber());
    QObject::disconnect(connection);
    return image;
}

/** What the design window is made of, each part on its own. */
class tst_DesignView : public QObject
{
    Q_OBJECT

private slots:
    void millimetresOfScreens_data()
    {
        // resolution: in the pixels of widgets
        const Rows<QSizeF, QSizeF, double, double, bool> row("millimetres", "pixels", "ratio",
                                                             "resolution", "measured");
        const double assumed = 96;
        row("desk", QSizeF(597, 336), QSizeF(2560, 1440), 1.0, 108.9, true);
        row("dense laptop", QSizeF(294, 165), QSizeF(1280, 720), 3.0, 110.7, true);
        row("turned", QSizeF(296, 527), QSizeF(1080, 1920), 1.0, 92.6, true);
        row("tells nothing", {}, QSizeF(1920, 1080), 1.0, assumed, false);
        row("no height", QSizeF(500, 0), QSizeF(1920, 1080), 1.0, assumed, false);
        row("projector", QSizeF(1600, 900), QSizeF(1280, 720), 1.0, assumed, false);
        row("ratio, not size", QSizeF(16, 9), QSizeF(1280, 720), 1.0, assumed, false);
        row("other shape", QSizeF(160, 90), QSizeF(1024, 768), 1.0, assumed, false);
        row("virtual", QSizeF(800 * Inch / 75, 600 * Inch / 75), QSizeF(800, 600), 1.0, assumed,
            false);
        row("virtual, rounded", QSizeF(688, 450), QSizeF(2600, 1700), 1.0, assumed, false);
    }

    void millimetresOfScreens()
    {
        QFETCH(QSizeF, millimetres);
        QFETCH(QSizeF, pixels);
        QFETCH(double, ratio);
        const ScreenScale scale = ScreenScale::of(millimetres, pixels, ratio, 96.0);
        QTEST(scale.isMeasured, "measured");
        QFETCH(double, resolution);
        QVERIFY2(qAbs(scale.pixelsPerMillimetre * Inch - resolution) < 0.1,
                 qPrintable(QString::number(scale.pixelsPerMillimetre * Inch)));
    }

    void fitsUntilItIsMoved()
    {
        DesignViewport view = viewport({800, 600}, {-100, -50, 400, 300});
        const QRectF all(-100, -50, 400, 300);
        QVERIFY(view.isFitting());
        QVERIFY(view.visibleArea().contains(all));
        QVERIFY(view.toView(all).height() > 500);
        view.setSize({400, 600});
        QVERIFY(view.visibleArea().contains(all));
        QVERIFY(view.toView(all).width() > 300);
        view.zoomAround(view.middle(), 1.0);
        QVERIFY(!view.isFitting());
        view.setSize({800, 600});
        QCOMPARE(view.zoom(), 1.0);
        QCOMPARE(view.scale(), 0.4);
        view.fit();
        QVERIFY(view.visibleArea().contains(all));
        // A speck is not blown up without end.
        view.setContents({0, 0, 1, 0});
        QCOMPARE(view.zoom(), DesignViewport::GreatestZoom);
    }

    void zoomsAroundThePointer_data()
    {
        const Rows<QPointF, double, double> row("pointer", "wanted", "zoom");
        row("in", QPointF(250, 200), 4.0, 4.0);
        row("out", QPointF(450, 310), 0.5, 0.5);
        row("too far in", QPointF(400, 310), 1e9, DesignViewport::GreatestZoom);
        row("too far out", QPointF(400, 300), 0.0, DesignViewport::LeastZoom);
    }

    void zoomsAroundThePointer()
    {
        QFETCH(QPointF, pointer);
        QFETCH(double, wanted);
        DesignViewport view = viewport({800, 600}, {0, 0, 1000, 1000});
        const auto at = [&view](const QPointF &position) {
            return view.visibleArea().topLeft() + position / view.scale();
        };
        const QPointF before = at(pointer);
        view.zoomAround(pointer, wanted);
        QTEST(view.zoom(), "zoom");
        QVERIFY(areNear(at(pointer), before));
    }

    void keepsTheDesignInSight()
    {
        DesignViewport view = viewport({800, 600}, {0, 0, 1000, 1000});
        view.zoomAround(view.middle(), 2.0);
        for (const QPointF &way : {QPointF(1e6, 0), QPointF(-1e7, 1e7), QPointF(0, -1e8)}) {
            view.pan(way);
            QVERIFY(view.visibleArea().intersects({0, 0, 1000, 1000}));
        }
        const QPointF before = view.visibleArea().center();
        // The hoop around the same design moves nothing, another design is seen from its middle on.
        view.setContents({-100, -100, 1200, 1200});
        QVERIFY(areNear(view.visibleArea().center(), before));
        view.setContents({2000, 2000, 100, 100});
        QVERIFY(areNear(view.visibleArea().center(), {2050, 2050}));
        QCOMPARE(view.zoom(), 2.0);
    }

    void playsAtItsSpeed_data()
    {
        // ticks: milliseconds
        const Rows<int, QVector<int>, int> row("speed", "ticks", "position");
        row("slow", 10, {99}, 0);
        row("adds up", 10, {99, 1}, 1);
        row("uneven", 500, {17, 16, 17}, 25);
        row("fast", 10000, {16}, 160);
        row("to the end", 10000, {90, 90}, 1000);
    }

    void playsAtItsSpeed()
    {
        QFETCH(int, speed);
        QFETCH(QVector<int>, ticks);
        Playback playback;
        playback.setPointCount(1000);
        playback.setSpeed(speed);
        playback.setPosition(0);
        for (const int tick : qAsConst(ticks))
            playback.advance(tick);
        QTEST(playback.position(), "position");
    }

    void playsByTheClock()
    {
        Playback playback;
        playback.setPlaying(true);
        QVERIFY(!playback.isPlaying());
        playback.setPointCount(300);
        QVERIFY(playback.isComplete());
        playback.setSpeed(10000);
        QSignalSpy positions(&playback, &Playback::positionChanged);
        playback.setPlaying(true);
        QCOMPARE(positions.takeFirst().first().toInt(), 0);
        QTRY_VERIFY(playback.isComplete());
        QVERIFY(!playback.isPlaying());
        playback.setPosition(299);
        playback.setPlaying(true);
        QCOMPARE(playback.position(), 299);
        playback.setPointCount(5);
        QVERIFY(!playback.isPlaying());
    }

    void stepsByPoints()
    {
        Playback playback;
        playback.setPointCount(2);
        QVector<int> positions;
        connect(&playback, &Playback::positionChanged, &playback,
                [&positions](int position) { positions.append(position); });
        playback.stepForward();
        for (int i = 0; i < 3; ++i)
            playback.stepBack();
        playback.stepForward();
        playback.setPosition(99);
        playback.setPosition(-1);
        QCOMPARE(positions, (QVector<int>{1, 0, 1, 2, 0}));
    }

    void playedPictureIsAsDrawnAnew()
    {
        const auto order = squareOrder();
        ScenePainter player;
        // Forwards only what is new is drawn; back, and at another scale, everything.
        const QVector<QPair<int, double>> way{{2, 3.0}, {4, 3.0}, {8, 3.0}, {8, 2.0}, {3, 2.0}};
        QImage first;
        for (const auto &step : way) {
            ScenePainter anew;
            const DesignScene wanted = scene(order, step.first, step.second);
            const QImage image = painted(player, wanted);
            QCOMPARE(image, painted(anew, wanted));
            if (first.isNull())
                first = image;
        }
        // The picture that was handed out is nobody's canvas any more.
        ScenePainter anew;
        QCOMPARE(first, painted(anew, scene(order, 2)));
    }

    void passesOldScenesOver()
    {
        const auto order = squareOrder();
        ScenePainter painter;
        QSignalSpy pictures(&painter, &ScenePainter::painted);
        const int old = painter.nextNumber();
        painter.nextNumber();
        painter.paint(scene(order, 2), old);
        QCOMPARE(pictures.count(), 0);
        painter.cancel();
        QVERIFY(painted(painter, scene(order, 2)).isNull());
        DesignScene tooLarge = scene(order, 2);
        tooLarge.size = QSize(1 << 20, 1 << 20);
        ScenePainter other;
        QVERIFY(painted(other, tooLarge).isNull());
        QVERIFY(!painted(other, scene(order, 2)).isNull());
    }

    void tellsWhyAFileCannotBeRead_data()
    {
        const Rows<QString, QByteArray, QString> row("name", "bytes", "error");
        const QByteArray whole = DstDesign::square().bytes();
        row("fine", "a.dst", whole, "");
        row("in capitals", "a.DST", whole, "");
        row("gone", "", {}, "The file is no longer there.");
        row("folder", ".", {}, "This is not a file.");
        row("no stitches", "a.dst", whole.left(512), "There are no stitches in this design.");
        row("damaged", "a.pes", "#PES0001", "The file is damaged or not what its name says.");
        row("too large", "a.dst", QByteArray(17 << 20, ' '),
            "The file is damaged or not what its name says.");
    }

    void tellsWhyAFileCannotBeRead()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, error);
        CatalogueFolder folder;
        const QString path = folder.design(name.isEmpty() ? QStringLiteral("gone.dst") : name);
        if (!bytes.isEmpty())
            QVERIFY(CatalogueFolder::write(path, bytes));
        const ReadDesign design = ReadDesign::fromFile(path);
        QCOMPARE(design.path, path);
        QCOMPARE(design.order.isNull(), !error.isEmpty());
        QCOMPARE(design.error.section(QLatin1Char('\n'), 0, 0), error);
    }

    void readsTheLatestFile()
    {
        CatalogueFolder folder;
        DesignLoader loader;
        QStringList answers;
        connect(&loader, &DesignLoader::loaded, this,
                [&answers](const ReadDesign &design) { answers.append(design.path); });
        QStringList paths;
        for (int i = 0; i < 20; ++i) {
            paths.append(folder.design(QStringLiteral("%1.dst").arg(i)));
            QVERIFY(DstDesign::square().writeTo(paths.last()));
            loader.load(paths.last());
        }
        QTRY_COMPARE(answers, QStringList{paths.last()});
        loader.load(paths.first());
        QTRY_COMPARE(answers, (QStringList{paths.last(), paths.first()}));
    }
};

QTEST_MAIN(tst_DesignView)
#include "tst_designview.moc"
