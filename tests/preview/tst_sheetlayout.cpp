#include "preview/drawing/SewingOrder.h"
#include "preview/sheets/ContactSheetLayout.h"
#include "preview/sheets/PageFlow.h"
#include "preview/sheets/PageText.h"
#include "preview/sheets/PaperUnits.h"
#include "preview/sheets/TrueSizePicture.h"
#include "support/Rows.h"
#include <algorithm>
#include <numeric>
#include <QPainter>
#include <QtTest>

using PaperUnits::Millimetre;

const QSizeF A4(18600, 27300);

static bool contains(const QRectF &outer, const QRectF &inner)
{
    return outer.adjusted(-2, -2, 2, 2).contains(inner);
}

/** A design of one thread that measures so many millimetres. */
static QSharedPointer<const SewingOrder> designOf(double width, double height)
{
    auto pattern = Embroidery::EmbPattern::create();
    pattern->stitchAbs(0, 0);
    pattern->stitchAbs(float(width * 10), 0);
    pattern->stitchAbs(float(width * 10), float(height * 10));
    pattern->end();
    return QSharedPointer<const SewingOrder>(new SewingOrder(pattern));
}

class tst_SheetLayout : public QObject
{
    Q_OBJECT

private slots:
    void showsEachDesignOnce_data()
    {
        const Rows<QSizeF, int, double, double, QVector<int>> row("area", "columns", "facts",
                                                                  "heading", "groups");
        const QSizeF lying = A4.transposed();
        row("one design", A4, 4, 1500.0, 0.0, {1});
        row("full pages", A4, 4, 1500.0, 0.0, {80});
        row("no facts", A4, 8, 0.0, 0.0, {1001});
        row("folders", A4, 4, 1500.0, 800.0, {3, 40, 1, 17, 4});
        row("one wide column", lying, 1, 3800.0, 800.0, {2, 3});
        row("hardly any paper", QSizeF(300, 300), 8, 3800.0, 800.0, {2, 3});
    }

    void showsEachDesignOnce()
    {
        QFETCH(QSizeF, area);
        QFETCH(int, columns);
        QFETCH(double, facts);
        QFETCH(double, heading);
        QFETCH(QVector<int>, groups);
        const ContactSheetLayout layout({area, columns, facts, 1200, heading, 700}, groups);
        const bool fits = area.height() > 5000;
        int design = 0;
        for (const auto &page : layout.pages()) {
            QCOMPARE(page.first, design);
            QVERIFY(!page.cells.isEmpty());
            QRectF before;
            for (const auto &cell : page.cells) {
                QCOMPARE(cell.design, design++);
                QVERIFY(!cell.area.intersects(before));
                before = cell.area;
                if (fits)
                    QVERIFY(contains(QRectF(0, 0, area.width(), area.height() - 700), cell.area));
            }
            QCOMPARE(page.end, design);
        }
        QCOMPARE(design, std::accumulate(groups.begin(), groups.end(), 0));
    }

    void keepsHeadingsWithTheirDesigns()
    {
        const QVector<int> groups{30, 2, 9};
        const ContactSheetLayout layout({A4, 3, 1500, 0, 800, 700}, groups);
        QVector<int> firsts;
        for (const auto &page : layout.pages()) {
            // Each page says which folder it begins with.
            QCOMPARE(page.headings.first().design, page.first);
            for (const auto &heading : page.headings) {
                firsts.append(heading.design);
                const auto below =
                    std::find_if(page.cells.begin(), page.cells.end(),
                                 [&](const auto &cell) { return cell.design == heading.design; });
                QVERIFY(below != page.cells.end());
                QCOMPARE(below->area.top(), heading.area.bottom());
            }
        }
        for (const int first : {0, 30, 32})
            QVERIFY(firsts.contains(first));
    }

    void breaksPages()
    {
        PageFlow flow(QSizeF(100, 100));
        QStringList painted;
        const auto paint = [&painted](const char *name) {
            return [&painted, name](QPainter &, const QRectF &area) {
                painted.append(QStringLiteral("%1 %2-%3")
                                   .arg(QLatin1String(name))
                                   .arg(area.top())
                                   .arg(area.bottom()));
            };
        };
        flow.add(60, paint("head"));
        flow.repeat(10, paint("again"));
        flow.add(30, paint("row"), 5);
        flow.add(30, paint("row"));
        flow.repeat(0, nullptr);
        flow.addRest(20, paint("rest"), 5);
        flow.breakPage();
        flow.breakPage();
        flow.addRest(500, paint("tall"));
        QImage image(1, 1, QImage::Format_RGB32);
        QPainter painter(&image);
        for (int page = 0; page < flow.pageCount(); ++page) {
            painted.append(QString::number(page));
            flow.paint(painter, page);
        }
        QCOMPARE(painted, QStringList({"0", "head 0-60", "row 65-95", "1", "again 0-10",
                                       "row 10-40", "rest 45-100", "2", "tall 0-100"}));
    }

    void wraps_data()
    {
        const Rows<QString, int, int, bool> row("text", "most", "lines", "whole");
        const QString words = "several words that need a few lines of the paper";
        row("nothing", {}, 3, 0, true);
        row("blanks", " \n ", 3, 0, true);
        row("one word", "Rose", 3, 1, true);
        row("lines", "a\n\nb", 3, 3, true);
        row("too many lines", "a\nb\nc\nd", 2, 2, true);
        row("words", words, 2, 2, false);
        row("no blank", QString(500, QLatin1Char('m')), 2, 2, false);
        row("one line", words, 1, 1, false);
    }

    void wraps()
    {
        QFETCH(QString, text);
        QFETCH(int, most);
        constexpr double width = 20 * Millimetre;
        const QFont font = PageText::font(8);
        const QStringList lines = PageText::wrapped(font, text, width, most);
        QTEST(lines.size(), "lines");
        for (const QString &line : lines)
            QVERIFY2(PageText::width(font, line) <= width + 1, qPrintable(line));
        if (!lines.isEmpty())
            QTEST(!lines.last().endsWith(QChar(0x2026)), "whole");
    }

    void placesInTrueSize_data()
    {
        const Rows<QSizeF, QString> row("design", "placement");
        row("small", QSizeF(50, 60), "100 upright in hoop");
        row("lying hoop", QSizeF(250, 140), "100 turned in hoop");
        row("hoop too large", QSizeF(183, 240), "100 upright");
        row("turned without hoop", QSizeF(240, 183), "100 turned");
        row("too large", QSizeF(372, 100), "73 turned");
        row("larger than any hoop", QSizeF(1000, 1365), "18 upright");
        row("a single line", QSizeF(0, 40), "100 upright in hoop");
    }

    void placesInTrueSize()
    {
        QFETCH(QSizeF, design);
        const TrueSizePicture picture(designOf(design.width(), design.height()), A4, false);
        const TrueSizePicture::Placement &placement = picture.placement();
        const QString text =
            QString::number(int(placement.scale * 100)) +
            (placement.turned ? QStringLiteral(" turned") : QStringLiteral(" upright")) +
            (placement.hoop ? QStringLiteral(" in hoop") : QString());
        QTEST(text, "placement");
    }
};

QTEST_MAIN(tst_SheetLayout)
#include "tst_sheetlayout.moc"
