#include "preview/grid/GridEmbroideryItem.h"
#include "preview/grid/GridFavoriteItem.h"
#include "preview/grid/GridPreviewScene.h"
#include "PreviewFixture.h"
#include "widgets/style/WidgetHelper.h"
#include "widgets/style/WidgetStyles.h"
#include <memory>
#include <QFontMetrics>
#include <QPainter>
#include <QSignalSpy>
#include <QtTest>

using Files = QList<QSharedPointer<IFile>>;

namespace {

QList<GridEmbroideryItem *> cards(const QGraphicsScene &scene)
{
    QList<GridEmbroideryItem *> result;
    const QList<QGraphicsItem *> items = scene.items(Qt::AscendingOrder);
    for (QGraphicsItem *item : items) {
        if (auto *card = dynamic_cast<GridEmbroideryItem *>(item)) {
            result.append(card);
        }
    }
    return result;
}

GridEmbroideryItem *cardOf(const QGraphicsScene &scene, const QSharedPointer<IFile> &file)
{
    const QList<GridEmbroideryItem *> all = cards(scene);
    for (GridEmbroideryItem *card : all) {
        if (card->file() == file) {
            return card;
        }
    }
    return nullptr;
}

GridFavoriteItem *star(const GridEmbroideryItem *card)
{
    const QList<QGraphicsItem *> children = card->childItems();
    return children.isEmpty() ? nullptr : dynamic_cast<GridFavoriteItem *>(children.first());
}

QImage picture(QGraphicsScene &scene, const QRectF &area)
{
    QImage image(area.size().toSize(), QImage::Format_RGB32);
    image.fill(Qt::darkGray);
    QPainter painter(&image);
    scene.render(&painter, image.rect(), area);
    return image;
}

// The part of the sheet where the label box of a card at normal size lies.
QRectF labelBox(const GridEmbroideryItem *card)
{
    return card->sceneBoundingRect().adjusted(0, 220, 0, 0);
}

} // namespace

class tst_GridScene : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void layoutFollowsScaleAndWidth_data();
    void layoutFollowsScaleAndWidth();
    void cardTooWideGoesBelow();
    void emptySheetIsTheMargin();
    void scaleKeepsTheWidthOnScreen();
    void cardsOfFilesThatStayAreKept();
    void selectionFollowsTheOrderOfTheGrid();
    void selectFilesRaisesNothing();
    void removedCardsLeaveTheSelection();
    void onlyExposedCardsAreDressed();
    void exposedStarFollowsTheFlag();
    void labelsFollowTheFile();
    void unitFallsBackWhenTheFileChanges_data();
    void unitFallsBackWhenTheFileChanges();
    void selectionColorsTheLabel();
    void oddNamesAreDrawnAsTheyAre_data();
    void oddNamesAreDrawnAsTheyAre();
    void labelTextIsReadable();

private:
    Files makeFiles(int count)
    {
        Files files;
        for (int i = 0; i < count; ++i) {
            files.append(PreviewFixture::makeFile(
                &m_project, QStringLiteral("/designs/%1.dst").arg(i, 6, 10, QLatin1Char('0'))));
        }
        return files;
    }

    std::unique_ptr<PreviewFixture> m_fixture;
    Project m_project;
};

void tst_GridScene::initTestCase()
{
    Q_INIT_RESOURCE(hoopline_resources);
    m_fixture = std::make_unique<PreviewFixture>();
}

void tst_GridScene::layoutFollowsScaleAndWidth_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("margin");
    QTest::addColumn<int>("spacing");
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("textMargin");

    // The sheet is 1024 pixels wide on screen at any scale.
    QTest::newRow("33 %") << 0.33 << 11 << 30 << 60 << 1 << 5;
    QTest::newRow("50 %") << 0.5 << 7 << 20 << 40 << 1 << 5;
    QTest::newRow("75 %") << 0.75 << 5 << 13 << 26 << 2 << 10;
    QTest::newRow("100 %") << 1.0 << 4 << 10 << 20 << 2 << 10;
    QTest::newRow("150 %") << 1.5 << 2 << 6 << 13 << 2 << 10;
    QTest::newRow("200 %") << 2.0 << 2 << 5 << 10 << 2 << 10;
}

void tst_GridScene::layoutFollowsScaleAndWidth()
{
    QFETCH(double, scale);
    QFETCH(int, columns);
    QFETCH(int, margin);
    QFETCH(int, spacing);
    QFETCH(int, lines);
    QFETCH(int, textMargin);

    GridPreviewScene scene;
    const Files files = makeFiles(30);
    scene.setFiles(files);
    scene.setScaleFactor(scale);

    const double lineHeight = QFontMetrics(QFont()).lineSpacing() / scale;
    const double height = 220 + lineHeight * lines + 2 * textMargin / scale;
    QRectF bounds;
    for (int i = 0; i < files.size(); ++i) {
        const GridEmbroideryItem *card = cardOf(scene, files.at(i));
        QCOMPARE(card->rect(), QRectF(0, 0, 220, height));
        QCOMPARE(card->x(), double(margin + i % columns * (220 + spacing)));
        QCOMPARE(card->y(), double(margin + i / columns * (qRound(height) + spacing)));
        bounds |= card->sceneBoundingRect();
    }
    QCOMPARE(scene.sceneRect(), bounds.adjusted(-margin, -margin, margin, margin));
    QCOMPARE(bounds, scene.itemsBoundingRect());
}

void tst_GridScene::cardTooWideGoesBelow()
{
    GridPreviewScene scene;
    const Files files = makeFiles(3);
    scene.setFiles(files);
    scene.setPreferredSceneWidth(100);
    const int height = qRound(cardOf(scene, files.first())->rect().height());
    QCOMPARE(cardOf(scene, files.at(0))->pos(), QPointF(10, 30));
    QCOMPARE(cardOf(scene, files.at(1))->pos(), QPointF(10, 30 + height + 20));
    QCOMPARE(cardOf(scene, files.at(2))->pos(), QPointF(10, 30 + 2 * (height + 20)));
}

void tst_GridScene::emptySheetIsTheMargin()
{
    GridPreviewScene scene;
    scene.setFiles({});
    QCOMPARE(scene.sceneRect(), QRectF(-10, -10, 20, 20));
}

void tst_GridScene::scaleKeepsTheWidthOnScreen()
{
    GridPreviewScene scene;
    const Files files = makeFiles(6);
    scene.setFiles(files);
    scene.setPreferredSceneWidth(500);
    QCOMPARE(cardOf(scene, files.at(2))->x(), 10.0);
    scene.setScaleFactor(0.5);
    QCOMPARE(cardOf(scene, files.at(2))->x(), 20.0 + 2 * 260);
    scene.setScaleFactor(1.0);
    QCOMPARE(cardOf(scene, files.at(2))->x(), 10.0);
}

void tst_GridScene::cardsOfFilesThatStayAreKept()
{
    GridPreviewScene scene;
    const Files files = makeFiles(4);
    scene.setFiles(files);
    const GridEmbroideryItem *second = cardOf(scene, files.at(1));
    const Files fewer = {files.at(3), files.at(1)};
    scene.setFiles(fewer);
    QCOMPARE(cards(scene).size(), 2);
    QCOMPARE(cardOf(scene, files.at(1)), second);
    QVERIFY(cardOf(scene, files.at(3))->x() < second->x());
    scene.setFiles(files);
    QCOMPARE(cards(scene).size(), 4);
    QCOMPARE(cardOf(scene, files.at(1)), second);
}

void tst_GridScene::selectionFollowsTheOrderOfTheGrid()
{
    GridPreviewScene scene;
    const Files files = makeFiles(5);
    scene.setFiles(files);
    Files told;
    connect(&scene, &GridPreviewScene::filesSelected, [&told](const Files &f) { told = f; });
    for (const int i : {3, 0, 2}) {
        cardOf(scene, files.at(i))->setSelected(true);
    }
    QCOMPARE(told, Files({files.at(0), files.at(2), files.at(3)}));
}

void tst_GridScene::selectFilesRaisesNothing()
{
    GridPreviewScene scene;
    const Files files = makeFiles(5);
    scene.setFiles(files);
    int calls = 0;
    connect(&scene, &GridPreviewScene::filesSelected, [&calls]() { ++calls; });
    cardOf(scene, files.at(0))->setSelected(true);
    QCOMPARE(calls, 1);
    scene.selectFiles({files.at(1), files.at(4)});
    QCOMPARE(calls, 1);
    QVERIFY(!cardOf(scene, files.at(0))->isSelected());
    QVERIFY(cardOf(scene, files.at(1))->isSelected());
    QVERIFY(cardOf(scene, files.at(4))->isSelected());
    QCOMPARE(scene.selectedItems().size(), 2);
}

void tst_GridScene::removedCardsLeaveTheSelection()
{
    GridPreviewScene scene;
    const Files files = makeFiles(4);
    scene.setFiles(files);
    scene.selectFiles({files.at(1), files.at(2)});
    QList<Files> told;
    connect(&scene, &GridPreviewScene::filesSelected, [&told](const Files &f) { told.append(f); });
    const Files fewer = {files.at(0), files.at(2)};
    scene.setFiles(fewer);
    QCOMPARE(told, QList<Files>({Files({files.at(2)})}));
}

void tst_GridScene::onlyExposedCardsAreDressed()
{
    GridPreviewScene scene;
    const Files files = makeFiles(400);
    scene.setFiles(files);
    const auto dressed = [&scene]() {
        QList<int> numbers;
        const QList<GridEmbroideryItem *> all = cards(scene);
        for (int i = 0; i < all.size(); ++i) {
            if (star(all.at(i)) != nullptr) {
                numbers.append(i);
            }
        }
        return numbers;
    };
    const double row = qRound(cardOf(scene, files.first())->rect().height()) + 20;
    QCOMPARE(dressed(), QList<int>());
    scene.areaExposed(QRectF(0, 0, 1024, row));
    QCOMPARE(dressed(), QList<int>({0, 1, 2, 3}));
    scene.areaExposed(QRectF(0, 10 * row + 100, 1024, row));
    QCOMPARE(dressed(), QList<int>({40, 41, 42, 43, 44, 45, 46, 47}));
    scene.setFiles(files.mid(0, 42));
    QCOMPARE(dressed(), QList<int>({40, 41}));
    scene.areaExposed(QRectF(0, 0, 1024, row));
    QCOMPARE(dressed(), QList<int>({0, 1, 2, 3}));
    scene.areaExposed(QRectF(0, -500, 1024, 100));
    QCOMPARE(dressed(), QList<int>());
}

void tst_GridScene::exposedStarFollowsTheFlag()
{
    GridPreviewScene scene;
    const Files files = makeFiles(2);
    files.first()->setFavorite(true);
    scene.setFiles(files);
    scene.areaExposed(QRectF(0, 0, 1000, 1000));
    GridFavoriteItem *first = star(cardOf(scene, files.at(0)));
    GridFavoriteItem *second = star(cardOf(scene, files.at(1)));
    QVERIFY(first->isVisible());
    QVERIFY(!second->isVisible());
    QVERIFY(!first->pixmap().isNull());
    QCOMPARE(first->pos(), QPointF(5, 5));
    QVERIFY(first->flags() & QGraphicsItem::ItemIgnoresTransformations);

    files.first()->setFavorite(false);
    QVERIFY(!first->isVisible());
    files.last()->setFavorite(true);
    QVERIFY(second->isVisible());
    QCOMPARE(star(cardOf(scene, files.at(1)))->pixmap().cacheKey() == first->pixmap().cacheKey(),
             false);

    // What changes while a card is out of sight shows when it is back.
    scene.areaExposed(QRectF(0, 5000, 1000, 1000));
    files.first()->setFavorite(true);
    scene.areaExposed(QRectF(0, 0, 1000, 1000));
    QVERIFY(star(cardOf(scene, files.at(0)))->isVisible());
}

void tst_GridScene::labelsFollowTheFile()
{
    GridPreviewScene scene;
    const Files files = makeFiles(1);
    scene.setFiles(files);
    scene.areaExposed(scene.sceneRect());
    const QRectF area = labelBox(cardOf(scene, files.first()));
    const QImage before = picture(scene, area);
    files.first()->setAbsoluteFilePath(QStringLiteral("/designs/another name.dst"));
    const QImage renamed = picture(scene, area);
    QVERIFY(renamed != before);
    files.first()->setDesignSize(QSizeF(33, 44));
    const QImage resized = picture(scene, area);
    QVERIFY(resized != renamed);
    files.first()->setDesignSize(QSizeF(-1, -1));
    QVERIFY(picture(scene, area) != resized);
}

void tst_GridScene::unitFallsBackWhenTheFileChanges_data()
{
    QTest::addColumn<bool>("exposed");
    QTest::newRow("on screen") << true;
    QTest::newRow("off screen") << false;
}

void tst_GridScene::unitFallsBackWhenTheFileChanges()
{
    QFETCH(bool, exposed);
    GlobalSettings().setImperialUnits(false);
    GridPreviewScene scene;
    const Files files = makeFiles(1);
    files.first()->setDesignSize(QSizeF(20, 10));
    scene.setFiles(files);
    const QRectF sheet = scene.sceneRect();
    const QRectF area = labelBox(cardOf(scene, files.first()));
    scene.areaExposed(sheet);
    const QImage metric = picture(scene, area);

    GlobalSettings().setImperialUnits(true);
    scene.refresh();
    const QImage imperial = picture(scene, area);
    QVERIFY(imperial != metric);

    scene.areaExposed(exposed ? sheet : sheet.translated(0, 5000));
    files.first()->setDesignSize(QSizeF(30, 10));
    files.first()->setDesignSize(QSizeF(20, 10));
    if (!exposed) {
        files.first()->setDesignSize(QSizeF(40, 10));
        scene.areaExposed(sheet);
        files.first()->setDesignSize(QSizeF(20, 10));
    }
    QCOMPARE(picture(scene, area), metric);
    scene.refresh();
    QCOMPARE(picture(scene, area), imperial);
    GlobalSettings().setImperialUnits(false);
}

void tst_GridScene::selectionColorsTheLabel()
{
    GridPreviewScene scene;
    const Files files = makeFiles(1);
    scene.setFiles(files);
    GridEmbroideryItem *card = cardOf(scene, files.first());
    const QRectF area = card->sceneBoundingRect();
    QImage image = picture(scene, area);
    const QPoint inLabel(218, image.height() - 2);
    QCOMPARE(image.pixelColor(inLabel), QColor(WidgetStyles::Primary25));
    QCOMPARE(image.pixelColor(2, 2), QColor(Qt::white));
    card->setSelected(true);
    image = picture(scene, area);
    QCOMPARE(image.pixelColor(inLabel), QColor(WidgetStyles::Primary100));
    // Neither an outline nor anything else tells the selection.
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
    QCOMPARE(image.pixelColor(219, 100), QColor(Qt::white));
}

void tst_GridScene::oddNamesAreDrawnAsTheyAre_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("sameAs");
    QTest::newRow("line break") << QStringLiteral("/a/b\nc.dst") << QStringLiteral("/a/b c.dst");
    QTest::newRow("tab") << QStringLiteral("/a/b\tc.dst") << QStringLiteral("/a/b c.dst");
    QTest::newRow("line separator")
        << QStringLiteral("/a/b\u2028c.dst") << QStringLiteral("/a/b c.dst");
    QTest::newRow("no path") << QString() << QStringLiteral("/a/");
}

void tst_GridScene::oddNamesAreDrawnAsTheyAre()
{
    QFETCH(QString, path);
    QFETCH(QString, sameAs);
    GridPreviewScene scene;
    const Files files = makeFiles(1);
    scene.setFiles(files);
    scene.areaExposed(scene.sceneRect());
    const QRectF area = labelBox(cardOf(scene, files.first()));
    files.first()->setAbsoluteFilePath(path);
    const QImage odd = picture(scene, area);
    files.first()->setAbsoluteFilePath(sameAs);
    QCOMPARE(odd, picture(scene, area));
    files.first()->setAbsoluteFilePath(QStringLiteral("/a/<b>b</b> c.dst"));
    const QImage markup = picture(scene, area);
    files.first()->setAbsoluteFilePath(QStringLiteral("/a/b c.dst"));
    QVERIFY(markup != picture(scene, area));
}

void tst_GridScene::labelTextIsReadable()
{
    for (const QColor &box : {WidgetStyles::Primary25, WidgetStyles::Primary100}) {
        QVERIFY(WidgetHelper::contrast(Qt::black, box) >= 4.5);
    }
}

QTEST_MAIN(tst_GridScene)
#include "tst_gridscene.moc"
