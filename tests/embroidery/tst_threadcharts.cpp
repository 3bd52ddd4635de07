#include "embroidery/EmbThreadHus.h"
#include "embroidery/EmbThreadJanome.h"
#include "embroidery/EmbThreadPec.h"

#include <QtTest>

using namespace Embroidery;

using Chart = QList<QSharedPointer<EmbThread>>;
Q_DECLARE_METATYPE(Chart)

class TestThreadCharts : public QObject
{
    Q_OBJECT

private slots:
    void entries_data();
    void entries();
    void charts_data();
    void charts();
};

void TestThreadCharts::entries_data()
{
    QTest::addColumn<Chart>("chart");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("color");
    QTest::addColumn<QString>("description");

    const Chart pec = EmbThreadPec::getThreadSet();
    const Chart janome = EmbThreadJanome::getThreadSet();
    const Chart hus = EmbThreadHus::getThreadSet();
    QTest::newRow("pec 0") << pec << 0 << "#000000"
                           << "Unknown";
    QTest::newRow("pec 5") << pec << 5 << "#ed171f"
                           << "Red";
    QTest::newRow("pec 20") << pec << 20 << "#000000"
                            << "Black";
    QTest::newRow("pec 51") << pec << 51 << "#c70156"
                            << "Dark Fuschia";
    QTest::newRow("pec 64") << pec << 64 << "#ffc8c8"
                            << "Applique";
    QTest::newRow("janome 0") << janome << 0 << "#000000"
                              << "Unknown";
    QTest::newRow("janome 1") << janome << 1 << "#000000"
                              << "Black";
    QTest::newRow("janome 5") << janome << 5 << "#5c7649"
                              << "Green Dust / Olive Green";
    QTest::newRow("janome 73") << janome << 73 << "#ffe505"
                               << "Ocean Blue";
    QTest::newRow("janome 78") << janome << 78 << "#e3be81"
                               << "Bamboo";
    QTest::newRow("hus 0") << hus << 0 << "#000000"
                           << "Black";
    QTest::newRow("hus 10") << hus << 10 << "#ffa0b4"
                            << "Pink";
    QTest::newRow("hus 28") << hus << 28 << "#af5a0a"
                            << "Light Brown";
}

void TestThreadCharts::entries()
{
    QFETCH(Chart, chart);
    QFETCH(int, index);
    QFETCH(QString, color);
    QFETCH(QString, description);
    QCOMPARE(chart.at(index)->getHexColor(), color);
    QCOMPARE(chart.at(index)->getDescription(), description);
}

void TestThreadCharts::charts_data()
{
    QTest::addColumn<Chart>("chart");
    QTest::addColumn<Chart>("again");
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("brand");
    QTest::addColumn<bool>("numbered");

    QTest::newRow("pec") << EmbThreadPec::getThreadSet() << EmbThreadPec::getThreadSet() << 65
                         << "Brother" << true;
    QTest::newRow("janome") << EmbThreadJanome::getThreadSet() << EmbThreadJanome::getThreadSet()
                            << 79 << "Janome" << true;
    QTest::newRow("hus") << EmbThreadHus::getThreadSet() << EmbThreadHus::getThreadSet() << 29
                         << "Husqvarna" << false;
}

void TestThreadCharts::charts()
{
    QFETCH(Chart, chart);
    QFETCH(Chart, again);
    QFETCH(int, size);
    QFETCH(QString, brand);
    QFETCH(bool, numbered);

    QCOMPARE(chart.size(), size);
    for (int i = 0; i < size; ++i) {
        QCOMPARE(chart.at(i), again.at(i));
        QCOMPARE(chart.at(i)->getBrand(), brand);
        QCOMPARE(chart.at(i)->getChart(), brand);
        QCOMPARE(chart.at(i)->getCatalogNumber(), numbered ? QString::number(i) : QString());
    }
}

QTEST_APPLESS_MAIN(TestThreadCharts)
#include "tst_threadcharts.moc"
