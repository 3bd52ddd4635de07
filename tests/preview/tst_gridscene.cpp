#include "catalogue/records/Thread.h"
#include "preview/cache/PreviewCache.h"
#include "preview/grid/CardTexts.h"
#include "preview/grid/GridEmbroideryItem.h"
#include "preview/grid/GridFavoriteItem.h"
#include "preview/grid/GridPreviewScene.h"
#include "preview/grid/PictureGround.h"
#include "preview/grid/ThumbnailCache.h"
#include "PreviewFixture.h"
#include "support/Rows.h"
#include "widgets/style/Palettes.h"
#include "widgets/style/WidgetStyles.h"
#include <memory>
#include <QFontMetrics>
#include <QPainter>
#include <QtTest>

using Files = QList<QSharedPointer<IFile>>;

namespace {

/** So many designs on a sheet that no view shows. */
class Sheet
{
public:
    explicit Sheet(int count)
    {
        for (int i = 0; i < count; ++i) {
            files.append(
                PreviewFixture::makeFile(&m_project, QStringLiteral("/designs/%1.dst").arg(i)));
        }
        scene.setFiles(files);
    }

    GridEmbroideryItem *card(int index) { return scene.cardAt(index); }
    GridFavoriteItem *star(int index)
    {
        const QList<QGraphicsItem *> children = card(index)->childItems();
        return children.isEmpty() ? nullptr : dynamic_cast<GridFavoriteItem *>(children.first());
    }
    /** The cards that are there. */
    QList<int> made() const
    {
        QList<int> numbers;
        const auto items = scene.items();
        for (const QGraphicsItem *item : items) {
            if (const auto *card = dynamic_cast<const GridEmbroideryItem *>(item)) {
                numbers.append(scene.indexOf(card->file()));
            }
        }
        std::sort(numbers.begin(), numbers.end());
        return numbers;
    }
    /** The first card as it is drawn. */
    QImage picture()
    {
        const QRectF area = card(0)->sceneBoundingRect();
        QImage image(area.size().toSize(), QImage::Format_RGB32);
        image.fill(Qt::darkGray);
        QPainter painter(&image);
        scene.render(&painter, image.rect(), area);
        return image;
    }

private:
    Project m_project;

public:
    Files files;
    GridPreviewScene scene;
};

} // namespace

class tst_GridScene : public QObject
{
    Q_OBJECT

private slots:
    void layoutFollowsScaleAndWidth_data()
    {
        const Rows<double, int, int, int, int, int> row("scale", "columns", "margin", "spacing",
                                                        "lines", "textMargin");

        // The sheet is 1024 pixels wide on screen at any scale.
        row("33 %", 0.33, 11, 30, 60, 1, 5);
        row("50 %", 0.5, 7, 20, 40, 1, 5);
        row("75 %", 0.75, 5, 13, 26, 2, 10);
        row("100 %", 1.0, 4, 10, 20, 2, 10);
        row("200 %", 2.0, 2, 5, 10, 2, 10);
    }

    void layoutFollowsScaleAndWidth()
    {
        QFETCH(double, scale);
        QFETCH(int, columns);
        QFETCH(int, margin);
        QFETCH(int, spacing);
        QFETCH(int, lines);
        QFETCH(int, textMargin);

        Sheet sheet(30);
        sheet.scene.setScaleFactor(scale);
        const double lineHeight = QFontMetrics(QFont()).lineSpacing() / scale;
        const double height = 220 + lineHeight * lines + 2 * textMargin / scale;
        for (int i = 0; i < 30; ++i) {
            QCOMPARE(sheet.card(i)->rect(), QRectF(0, 0, 220, height));
            QCOMPARE(sheet.card(i)->x(), double(margin + i % columns * (220 + spacing)));
            QCOMPARE(sheet.card(i)->y(), double(margin + i / columns * (qRound(height) + spacing)));
            QCOMPARE(sheet.scene.sheetLayout().indexAt(sheet.card(i)->sceneBoundingRect().center()),
                     i);
        }
        QCOMPARE(sheet.scene.sceneRect(),
                 sheet.scene.itemsBoundingRect().adjusted(-margin, -margin, margin, margin));
    }

    void cardTooWideGoesBelow()
    {
        QCOMPARE(Sheet(0).scene.sceneRect(), QRectF(-10, -10, 20, 20));
        Sheet sheet(3);
        sheet.scene.setPreferredSceneWidth(100);
        const int height = qRound(sheet.card(0)->rect().height());
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(sheet.card(i)->pos(), QPointF(10, 30 + i * (height + 20)));
        }
    }

    void cardsOfFilesThatStayAreKept()
    {
        Sheet sheet(4);
        const GridEmbroideryItem *second = sheet.card(1);
        sheet.scene.setFiles({sheet.files.at(3), sheet.files.at(1)});
        QCOMPARE(sheet.card(1), second);
        QVERIFY(sheet.card(0)->x() < second->x());
        sheet.scene.setFiles(sheet.files);
        QCOMPARE(sheet.card(1), second);
    }

    void onlyExposedCardsAreThere()
    {
        Sheet sheet(400);
        const double row = sheet.scene.sheetLayout().rowHeight();
        QCOMPARE(sheet.made(), QList<int>());
        sheet.scene.areaExposed(QRectF(0, 0, 1024, row));
        QCOMPARE(sheet.made(), QList<int>({0, 1, 2, 3}));
        sheet.scene.areaExposed(QRectF(0, 10 * row + 100, 1024, row));
        QCOMPARE(sheet.made(), QList<int>({40, 41, 42, 43, 44, 45, 46, 47}));
        sheet.scene.setFiles(sheet.files.mid(0, 42));
        QCOMPARE(sheet.made(), QList<int>({40, 41}));
        sheet.scene.areaExposed(QRectF(0, -500, 1024, 100));
        QCOMPARE(sheet.made(), QList<int>());
    }

    void starFollowsTheFlag()
    {
        Sheet sheet(1);
        const QRectF area = sheet.scene.sceneRect();
        sheet.scene.areaExposed(area);
        QVERIFY(!sheet.star(0)->isVisible());
        sheet.files.first()->setFavorite(true);
        QVERIFY(sheet.star(0)->isVisible());
        QCOMPARE(sheet.star(0)->pos(), QPointF(5, 5));
        QVERIFY(sheet.star(0)->flags() & QGraphicsItem::ItemIgnoresTransformations);
        // What changes while a card is out of sight shows when it is back.
        sheet.scene.areaExposed(area.translated(0, 5000));
        sheet.files.first()->setFavorite(false);
        sheet.scene.areaExposed(area);
        QVERIFY(!sheet.star(0)->isVisible());
    }

    void unitFallsBackWhenTheFileChanges_data()
    {
        const Rows<bool> row("exposed");
        row("on screen", true);
        row("off screen", false);
    }

    void unitFallsBackWhenTheFileChanges()
    {
        QFETCH(bool, exposed);
        Sheet sheet(1);
        const QRectF area = sheet.scene.sceneRect();
        sheet.scene.areaExposed(area);
        const QImage metric = sheet.picture();
        GlobalSettings().setImperialUnits(true);
        sheet.scene.refresh();
        const QImage imperial = sheet.picture();
        QVERIFY(imperial != metric);

        sheet.scene.areaExposed(exposed ? area : area.translated(0, 5000));
        sheet.files.first()->setDesignSize(QSizeF(40, 10));
        sheet.scene.areaExposed(area);
        const QImage resized = sheet.picture();
        QVERIFY(resized != metric);
        sheet.files.first()->setDesignSize(QSizeF(100, 50));
        // A card that comes into view is a new one.
        QCOMPARE(sheet.picture(), exposed ? metric : imperial);
        sheet.scene.refresh();
        QCOMPARE(sheet.picture(), imperial);
        GlobalSettings().setImperialUnits(false);
    }

    void smallCardTellsNoSize()
    {
        Sheet sheet(1);
        sheet.scene.setScaleFactor(0.5);
        const QImage small = sheet.picture();
        sheet.scene.setScaleFactor(1);
        QVERIFY(sheet.picture() != small);
        sheet.scene.setScaleFactor(0.5);
        QCOMPARE(sheet.picture(), small);
    }

    void thumbnailsAreOfTheirScreen()
    {
        ThumbnailCache cache;
        const QPixmap image(100, 100);
        for (const qreal ratio : {1.0, 2.0})
            QCOMPARE(cache.thumbnail(image, QSize(50, 50), ratio).devicePixelRatio(), ratio);
    }

    void selectionColorsTheLabel()
    {
        Sheet sheet(1);
        QImage image = sheet.picture();
        const QPoint inLabel(218, image.height() - 2);
        QCOMPARE(image.pixelColor(inLabel), QColor(WidgetStyles::Primary25));
        sheet.scene.setSelected(0, true);
        image = sheet.picture();
        QCOMPARE(image.pixelColor(inLabel), QColor(WidgetStyles::Primary100));
        // Neither an outline nor anything else tells the selection.
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
        QCOMPARE(image.pixelColor(219, 100), QColor(Qt::white));
    }

    void oddNamesAreDrawnOnOneLine()
    {
        Sheet sheet(1);
        sheet.scene.areaExposed(sheet.scene.sceneRect());
        const auto pictureOf = [&sheet](const QString &name) {
            sheet.files.first()->setAbsoluteFilePath("/a/" + name);
            return sheet.picture();
        };
        const QImage plain = pictureOf("b c.dst");
        for (const QChar gap : {QChar('\n'), QChar('\t'), QChar(QChar::LineSeparator)}) {
            QCOMPARE(pictureOf(QStringLiteral("b%1c.dst").arg(gap)), plain);
        }
        QVERIFY(pictureOf("<b>b</b> c.dst") != plain);
    }

    void unreadDesignsAreNotShownAsDamaged()
    {
        Sheet sheet(1);
        const QSharedPointer<IFile> file = sheet.files.first();
        QSignalSpy loads(&PreviewCache::instance(), &PreviewCache::loadPreview);
        file->setDesignSize(QSizeF(-1, -1));
        file->setFavorite(true);
        const QImage unread = sheet.picture();
        QCOMPARE(loads.count(), 0);
        QCOMPARE(CardTexts::description(*file), "Not read yet, favorite");
        // Looked into, but damaged.
        file->setModificationDate(1);
        QVERIFY(sheet.picture() != unread);
        QCOMPARE(loads.count(), 1);
        QCOMPARE(CardTexts::description(*file), "favorite");
    }

    void groundShowsTheThreads_data()
    {
        const Rows<bool, QList<QColor>, QColor> row("dark", "threads", "ground");
        using Colors = QList<QColor>;
        const QColor white(Qt::white);
        const QColor tinted(0xb9, 0xc4, 0xc6);
        row("no threads", false, Colors(), white);
        row("deep threads", false, Colors{Qt::black, Qt::red}, white);
        row("a white thread", false, Colors{Qt::red, Qt::white}, tinted);
        row("dark, no threads", true, Colors(), WidgetStyles::DarkCard);
        row("dark, pale threads", true, Colors{Qt::white, Qt::yellow}, WidgetStyles::DarkCard);
        row("dark, a deep thread", true, Colors{Qt::white, Qt::black}, tinted);
        row("dark, a deep thread and one like the ground", true, Colors{tinted, Qt::black}, white);
    }

    void groundShowsTheThreads()
    {
        QFETCH(bool, dark);
        QFETCH(QList<QColor>, threads);
        QApplication::setPalette(dark ? Palettes::dark() : Palettes::light());
        const auto light = qScopeGuard([] { QApplication::setPalette(Palettes::light()); });
        Project project;
        const QSharedPointer<IFile> file = PreviewFixture::makeFile(&project, "/designs/rose.dst");
        QList<QSharedPointer<IThread>> list;
        for (const QColor &color : qAsConst(threads)) {
            list.append(QSharedPointer<Thread>::create(&project));
            list.last()->setColor(color);
        }
        file->setThreads(list);
        QTEST(PictureGround::of(*file), "ground");
    }

private:
    const PreviewFixture m_fixture;
};

QTEST_MAIN(tst_GridScene)
#include "tst_gridscene.moc"
