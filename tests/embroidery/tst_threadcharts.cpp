#include "embroidery/EmbThreadHus.h"
#include "embroidery/EmbThreadJanome.h"
#include "embroidery/EmbThreadPec.h"
#include "support/Rows.h"

#include <QtTest>

using namespace Embroidery;

using Chart = QList<QSharedPointer<EmbThread>>;
using ChartFunction = Chart (*)();
Q_DECLARE_METATYPE(ChartFunction)

class TestThreadCharts : public QObject
{
    Q_OBJECT

private slots:
    void charts_data()
    {
        const Rows<ChartFunction, QString, bool, QByteArray> row("chart", "brand", "numbered",
                                                                 "digest");
        row("pec", &EmbThreadPec::getThreadSet, "Brother", true,
            "8f73a7fc313386fcd5e42f17c1278ee9");
        row("janome", &EmbThreadJanome::getThreadSet, "Janome", true,
            "52380811b789637d996900c968399f68");
        row("hus", &EmbThreadHus::getThreadSet, "Husqvarna", false,
            "3c4de3a4283078d7a7aac326fc8816b2");
    }

    void charts()
    {
        QFETCH(ChartFunction, chart);
        QFETCH(QString, brand);
        QFETCH(bool, numbered);

        QCryptographicHash content(QCryptographicHash::Md5);
        const Chart threads = chart();
        for (int i = 0; i < threads.size(); ++i) {
            QCOMPARE(threads.at(i), chart().at(i)); // the same objects at every call
            QCOMPARE(threads.at(i)->getBrand(), brand);
            QCOMPARE(threads.at(i)->getChart(), brand);
            QCOMPARE(threads.at(i)->getCatalogNumber(), numbered ? QString::number(i) : QString());
            content.addData(
                (threads.at(i)->getHexColor() + threads.at(i)->getDescription()).toUtf8());
        }
        // Of all entries: a slip of a key in the middle of a chart shows nowhere else.
        QTEST(content.result().toHex(), "digest");
    }
};

QTEST_APPLESS_MAIN(TestThreadCharts)
#include "tst_threadcharts.moc"
