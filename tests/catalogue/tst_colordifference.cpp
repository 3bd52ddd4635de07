#include "catalogue/query/ColorDifference.h"
#include "catalogue/query/ColorNames.h"
#include "support/Rows.h"

#include <QtTest>

class TestColorDifference : public QObject
{
    Q_OBJECT

private slots:
    /** Of the supplementary test data of Sharma, Wu and Dalal: each pair strains a part of the
     * formula.
     */
    void differences_data()
    {
        const Rows<QVector<double>, double> row("colors", "difference");
        row("hue of blues", {50, 2.6772, -79.7751, 50, 0, -82.7485}, 2.0425);
        row("blues", {50, -1.3802, -84.2814, 50, 0, -82.7485}, 1.0000);
        row("grey and not", {50, 0, 0, 50, -1, 2}, 2.3669);
        row("opposite hues, one way", {50, 2.49, -0.001, 50, -2.49, 0.0009}, 7.1792);
        row("opposite hues, other way", {50, 2.49, -0.001, 50, -2.49, 0.0011}, 7.2195);
        row("mean hue above 360", {50, -0.001, 2.49, 50, 0.0011, -2.49}, 4.7461);
        row("quarter turn", {50, 2.5, 0, 50, 0, -2.5}, 4.3065);
        row("far away", {50, 2.5, 0, 73, 25, -18}, 27.1492);
        row("far away, green", {50, 2.5, 0, 56, -27, -3}, 31.9030);
        row("reds", {50, 2.5, 0, 50, 3.1736, 0.5854}, 1.0000);
        row("greens", {60.2574, -34.0099, 36.2677, 60.4626, -34.1751, 39.4387}, 1.2644);
        row("violets", {22.7233, 20.0904, -46.6940, 23.0331, 14.9730, -42.5619}, 2.0373);
        row("light", {90.9257, -0.5406, -0.9208, 88.6381, -0.8985, -0.7239}, 1.5381);
        row("dark", {2.0776, 0.0795, -1.1350, 0.9033, -0.0636, -0.5514}, 0.9082);
    }

    void differences()
    {
        QFETCH(QVector<double>, colors);
        QFETCH(double, difference);
        const LabColor first{colors.at(0), colors.at(1), colors.at(2)};
        const LabColor second{colors.at(3), colors.at(4), colors.at(5)};
        QVERIFY(qAbs(ColorDifference::ciede2000(first, second) - difference) < 0.00005);
        QVERIFY(qAbs(ColorDifference::ciede2000(second, first) - difference) < 0.00005);
        QCOMPARE(ColorDifference::ciede2000(first, first), 0.0);
    }

    void labOfScreenColors()
    {
        const auto isNear = [](const QColor &color, double lightness, double a, double b) {
            const LabColor lab = LabColor::of(color);
            return qAbs(lab.lightness - lightness) < 0.01 && qAbs(lab.a - a) < 0.01 &&
                   qAbs(lab.b - b) < 0.01;
        };
        QVERIFY(isNear(Qt::white, 100, 0, 0));
        QVERIFY(isNear(Qt::black, 0, 0, 0));
        QVERIFY(isNear(Qt::red, 53.24, 80.09, 67.20));
        QVERIFY(isNear(Qt::blue, 32.30, 79.19, -107.86));
    }

    void names()
    {
        QCOMPARE(ColorNames::shadesOf("#C32"), QVector<QColor>{QColor(0xcc, 0x33, 0x22)});
        QCOMPARE(ColorNames::shadesOf("Navy"), QVector<QColor>{QColor(0, 0, 0x80)});
        QCOMPARE(ColorNames::shadesOf("Dark Red"), QVector<QColor>{QColor(0x8b, 0, 0)});
        for (const char *none :
             {"", "#", "#12345", "transparent", "rosé", "#ff00ff00", "red green"})
            QVERIFY2(ColorNames::shadesOf(QString::fromUtf8(none)).isEmpty(), none);
        for (const char *red : {"ROT", "红色", " red "})
            QCOMPARE(ColorNames::shadesOf(QString::fromUtf8(red)), ColorNames::shadesOf("red"));
        // What is offered by name is found by it.
        const QStringList common = ColorNames::common();
        QVERIFY(common.size() >= 12);
        for (const QString &name : common)
            QVERIFY2(!ColorNames::shadesOf(name).isEmpty(), qPrintable(name));
    }
};

QTEST_GUILESS_MAIN(TestColorDifference)
#include "tst_colordifference.moc"
