#include "base/Error.h"
#include "base/GSettings.h"
#include "catalogue/records/Project.h"
#include "embroidery/EmbPattern.h"
#include "preview/drawing/SewingOrder.h"
#include "preview/sheets/PaperUnits.h"
#include "preview/sheets/PdfFile.h"
#include "preview/sheets/Sheet.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include "support/Rows.h"
#include "support/ScriptedListener.h"
#include <QPainter>
#include <QtTest>

Q_DECLARE_METATYPE(SheetOptions::Kind)

const QSizeF A4(18600, 27300);

static DstDesign striped(int threads)
{
    DstDesign design;
    for (int i = 0; i < threads; ++i) {
        design.thread("#c00000", "Red " + QByteArray::number(i));
        design.stitch(0, 5).stitch(100, 0).stitch(-100, 0).colorChange();
    }
    return design.end();
}

static int pagesOf(const QByteArray &pdf)
{
    static const QRegularExpression page("/Type /Page\\b");
    return QString::fromLatin1(pdf.constData(), pdf.size()).count(page);
}

/** A page as it comes onto paper, with so many pixels in a millimetre. */
static QImage painted(const Sheet &sheet, int page, const QVector<DrawnDesign> &drawn, double scale)
{
    QImage image((A4 / PaperUnits::Millimetre * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale / PaperUnits::Millimetre, scale / PaperUnits::Millimetre);
    sheet.paint(painter, 0, page, drawn);
    return image;
}

template <class Matches>
QRect boundsOf(const QImage &image, Matches matches)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (matches(image.pixel(x, y)))
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

static bool isRed(QRgb color)
{
    return qRed(color) > 150 && qGreen(color) < 60 && qBlue(color) < 60;
}

class tst_Sheets : public QObject
{
    Q_OBJECT

private slots:
    void writesPages_data()
    {
        const Rows<SheetOptions::Kind, int, int, bool, int> row("kind", "count", "threads",
                                                                "trueSize", "pages");
        row("contact sheet", SheetOptions::Contact, 45, 1, true, 3);
        row("work sheets", SheetOptions::Work, 3, 1, true, 6);
        row("without true size", SheetOptions::Work, 3, 1, false, 3);
        row("many threads", SheetOptions::Work, 1, 100, false, 3);
    }

    void writesPages()
    {
        QFETCH(SheetOptions::Kind, kind);
        QFETCH(int, count);
        QFETCH(int, threads);
        QFETCH(bool, trueSize);
        QFETCH(int, pages);
        const QString design = m_folder.design("design.dst");
        QVERIFY(striped(threads).writeTo(design));
        SheetOptions options;
        options.kind = kind;
        options.trueSize = trueSize;
        const QString path = m_folder.design("sheet.pdf");
        ScriptedListener listener;
        const QVector<SheetDesign> designs(count, SheetDesign::of(design));
        QCOMPARE(PdfFile::write(path, designs, options, listener), pages);
        const QByteArray pdf = CatalogueFolder::read(path);
        QVERIFY(pdf.startsWith("%PDF-"));
        QVERIFY(pdf.trimmed().endsWith("%%EOF"));
        QCOMPARE(pagesOf(pdf), pages);
    }

    void reportsAndIsCancelled()
    {
        const QString path = m_folder.design("cancelled.pdf");
        QVERIFY(CatalogueFolder::write(path, "before"));
        ScriptedListener listener;
        listener.onProceed = [&listener](const QString &) {
            listener.aborted = listener.texts.size() == 30;
        };
        QCOMPARE(PdfFile::write(path, designs(45), SheetOptions(), listener), 0);
        QCOMPARE(listener.steps, QList<int>{45});
        QCOMPARE(listener.texts.value(29), QString("29.dst"));
        QCOMPARE(CatalogueFolder::read(path), "before");
        QCOMPARE(QDir(m_folder.designs()).entryList({"*.part"}, QDir::Files | QDir::Hidden).size(),
                 0);
    }

    void losesNothingToAFailure_data()
    {
        const Rows<QString> row("path");
        row("no folder", m_folder.design("missing/sheet.pdf"));
        row("full disk", "/dev/full");
    }

    void losesNothingToAFailure()
    {
        QFETCH(QString, path);
        ScriptedListener listener;
        QVERIFY_EXCEPTION_THROWN(PdfFile::write(path, designs(2), SheetOptions(), listener), Error);
    }

    void putsFoldersTogether()
    {
        SheetOptions options;
        options.folderHeadings = true;
        const QStringList paths{"/b/2.dst", "/a/1.dst", "/b/1.dst", "/a/sub/1.dst", "/a/2.dst"};
        Project project;
        QVector<SheetDesign> strangers;
        QList<QSharedPointer<IFile>> records;
        for (const QString &path : paths) {
            strangers.append(SheetDesign::of(path));
            records.append(QSharedPointer<File>::create(&project));
            records.last()->setAbsoluteFilePath(path);
        }
        for (const SheetDesigns &designs : {SheetDesigns(strangers), SheetDesigns::of(records)}) {
            const auto sheet = Sheet::make(designs, options, A4);
            QStringList order;
            for (int i = 0; i < sheet->designs().size(); ++i)
                order.append(sheet->designs().at(i).path);
            QCOMPARE(order,
                     QStringList({"/b/2.dst", "/b/1.dst", "/a/1.dst", "/a/2.dst", "/a/sub/1.dst"}));
        }
    }

    void tellsWhatCannotBeRead()
    {
        const QString damaged = m_folder.design("damaged.hus");
        QVERIFY(CatalogueFolder::write(damaged, "no design"));
        for (const QString &path : {damaged, m_folder.design("gone.dst")}) {
            const DrawnDesign drawn = DrawnDesign::of(SheetDesign::of(path), {100, true});
            QVERIFY(drawn.picture.isNull());
            QVERIFY(!drawn.error.isEmpty());
            for (const auto kind : {SheetOptions::Contact, SheetOptions::Work}) {
                SheetOptions options;
                options.kind = kind;
                const auto sheet = Sheet::make({SheetDesign::of(path)}, options, A4);
                QCOMPARE(sheet->pageCount(0, {drawn}), 1);
                QVERIFY(painted(*sheet, 0, {drawn}, 1) != painted(*sheet, 0, {}, 1));
            }
        }
    }

    void showsThePreviewOfAMissingFile()
    {
        SheetDesign design;
        design.path = m_folder.design("on a drive that is not there.pes");
        design.previewPath = m_folder.design("preview.png");
        design.size = QSizeF(40, 20);
        design.stitches = 1234;
        QImage preview(400, 200, QImage::Format_ARGB32);
        preview.fill(Qt::red);
        QVERIFY(preview.save(design.previewPath));
        const DrawnDesign drawn = DrawnDesign::of(design, {300, false});
        QCOMPARE(drawn.picture.size(), QSize(300, 150));
        QCOMPARE(drawn.stitches, 1234);
        QCOMPARE(drawn.size, design.size);
    }

    void drawsInTrueSize()
    {
        const QString path = m_folder.design("square.dst");
        DstDesign design;
        design.thread("#c00000", "Red");
        for (int i = 0; i < 10; ++i)
            design.stitch(50, 0).stitch(0, 60).stitch(50, 0).stitch(-50, 0).stitch(0, -60);
        QVERIFY(design.end().writeTo(path));
        const auto sheet = workSheet(path);
        const QVector<DrawnDesign> drawn{DrawnDesign::of(sheet->designs().at(0), sheet->wish())};
        QCOMPARE(sheet->pageCount(0, drawn), 2);
        const QRectF bounds = drawn.first().order->bounds();
        constexpr double scale = 5; // pixels in a millimetre
        const QRect found = boundsOf(painted(*sheet, 1, drawn, scale), isRed);
        // Around the needle points lies half a thread on each side.
        QVERIFY(qAbs(found.width() / scale - (bounds.width() / 10 + 0.4)) < 0.5);
        QVERIFY(qAbs(found.height() / scale - (bounds.height() / 10 + 0.4)) < 0.5);
    }

    void showsWhiteThread()
    {
        const QString path = m_folder.design("white.dst");
        DstDesign design;
        design.thread("#ffffff", "White");
        QVERIFY(design.stitch(100, 0).stitch(0, 100).stitch(-100, 0).end().writeTo(path));
        const auto sheet = workSheet(path);
        const QVector<DrawnDesign> drawn{DrawnDesign::of(sheet->designs().at(0), sheet->wish())};
        const QImage page = painted(*sheet, 1, drawn, 5);
        // The middle of the paper, within the hoop.
        const QRect middle(page.width() / 2 - 100, page.height() / 2 - 100, 200, 240);
        const QRect found =
            boundsOf(page.copy(middle), [](QRgb color) { return qGray(color) < 230; });
        QVERIFY(found.width() > 40);
    }

private:
    static std::unique_ptr<Sheet> workSheet(const QString &design)
    {
        SheetOptions options;
        options.kind = SheetOptions::Work;
        return Sheet::make({SheetDesign::of(design)}, options, A4);
    }

    QVector<SheetDesign> designs(int count) const
    {
        QVector<SheetDesign> designs;
        for (int i = 0; i < count; ++i) {
            const QString path = m_folder.design(QStringLiteral("%1.dst").arg(i));
            if (!DstDesign::square().writeTo(path))
                return {};
            designs.append(SheetDesign::of(path));
        }
        return designs;
    }

    CatalogueFolder m_folder;
};

QTEST_MAIN(tst_Sheets)
#include "tst_sheets.moc"
