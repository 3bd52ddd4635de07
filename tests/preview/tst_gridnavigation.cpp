#include "preview/grid/GridNavigation.h"
#include <QtTest>

class tst_GridNavigation : public QObject
{
    Q_OBJECT

private slots:
    void leadsFromCardToCard_data();
    void leadsFromCardToCard();
    void emptySheetLeadsNowhere();
    void knowsItsKeys();
};

void tst_GridNavigation::leadsFromCardToCard_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");

    // 11 cards: 0 to 3, 4 to 7, 8 to 10; two rows on a page.
    QTest::newRow("right") << int(Qt::Key_Right) << 1 << 2;
    QTest::newRow("right into the next row") << int(Qt::Key_Right) << 3 << 4;
    QTest::newRow("right at the end") << int(Qt::Key_Right) << 10 << 10;
    QTest::newRow("left into the row before") << int(Qt::Key_Left) << 4 << 3;
    QTest::newRow("left at the start") << int(Qt::Key_Left) << 0 << 0;
    QTest::newRow("down") << int(Qt::Key_Down) << 1 << 5;
    QTest::newRow("down into the short row") << int(Qt::Key_Down) << 7 << 10;
    QTest::newRow("down in the last row") << int(Qt::Key_Down) << 9 << 9;
    QTest::newRow("up") << int(Qt::Key_Up) << 9 << 5;
    QTest::newRow("up in the first row") << int(Qt::Key_Up) << 2 << 2;
    QTest::newRow("page down") << int(Qt::Key_PageDown) << 1 << 9;
    QTest::newRow("page down past the end") << int(Qt::Key_PageDown) << 6 << 10;
    QTest::newRow("page up") << int(Qt::Key_PageUp) << 9 << 1;
    QTest::newRow("page up past the start") << int(Qt::Key_PageUp) << 6 << 2;
    QTest::newRow("home") << int(Qt::Key_Home) << 6 << 0;
    QTest::newRow("end") << int(Qt::Key_End) << 6 << 10;
}

void tst_GridNavigation::leadsFromCardToCard()
{
    QFETCH(int, key);
    QFETCH(int, from);
    QFETCH(int, to);
    QCOMPARE(GridNavigation(11, 4, 2).target(key, from), to);
}

void tst_GridNavigation::emptySheetLeadsNowhere()
{
    for (const int key : {Qt::Key_Right, Qt::Key_Up, Qt::Key_Home, Qt::Key_PageDown}) {
        QCOMPARE(GridNavigation(0, 1, 1).target(key, -1), -1);
    }
}

void tst_GridNavigation::knowsItsKeys()
{
    QVERIFY(GridNavigation::isMovingKey(Qt::Key_Left));
    QVERIFY(GridNavigation::isMovingKey(Qt::Key_PageUp));
    QVERIFY(!GridNavigation::isMovingKey(Qt::Key_Space));
    QVERIFY(!GridNavigation::isMovingKey(Qt::Key_Tab));
}

QTEST_APPLESS_MAIN(tst_GridNavigation)
#include "tst_gridnavigation.moc"
