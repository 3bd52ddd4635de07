#include "embroidery/EmbThreadHus.h"
#include "embroidery/EmbThreadJanome.h"
#include "embroidery/EmbThreadPec.h"

#include <QtTest>

using namespace Embroidery;

using Chart = QList<QSharedPointer<EmbThread>>;
using ChartFunction = Chart (*)();
Q_DECLARE_METATYPE(ChartFunction)

class TestThreadCharts : public QObject
{
    Q_OBJECT

private slots:
    void charts_data();
    void charts();
};

void TestThreadCharts::charts_data()
{
    QTest::addColumn<ChartFunction>("chart");
    QTest::addColumn<QString>("brand");
    QTest::addColumn<bool>("numbered");
    QTest::addColumn<QStringList>("ends");

    QTest::newRow("pec") << &EmbThreadPec::getThreadSet << "Brother" << true
                         << QStringList{"#000000 Unknown", "#ffc8c8 Applique"};
    QTest::newRow("janome") << &EmbThreadJanome::getThreadSet << "Janome" << true
                            << QStringList{"#000000 Unknown", "#e3be81 Bamboo"};
    QTest::newRow("hus") << &EmbThreadHus::getThreadSet << "Husqvarna" << false
                         << QStringList{"#000000 Black", "#af5a0a Light Brown"};
}

void TestThreadCharts::charts()
{
    QFETCH(ChartFunction, chart);
    QFETCH(QString, brand);
    QFETCH(bool, numbered);
    QFETCH(QStringList, ends);

    const Chart threads = chart();
    for (int i = 0; i < threads.size(); ++i) {
        QCOMPARE(threads.at(i), chart().at(i)); // the same objects at every call
        QCOMPARE(threads.at(i)->getBrand(), brand);
        QCOMPARE(threads.at(i)->getChart(), brand);
        QCOMPARE(threads.at(i)->getCatalogNumber(), numbered ? QString::number(i) : QString());
    }
    const auto text = [](const QSharedPointer<EmbThread> &thread) {
        return thread->getHexColor() + ' ' + thread->getDescription();
    };
    QCOMPARE((QStringList{text(threads.first()), text(threads.last())}), ends);
}

QTEST_APPLESS_MAIN(TestThreadCharts)
#include "tst_threadcharts.moc"
