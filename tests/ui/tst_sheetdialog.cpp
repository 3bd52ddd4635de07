#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include "support/Rows.h"
#include "support/Widgets.h"
#include "ui/print/SheetDialog.h"
#include "ui/print/SheetPages.h"
#include "ui/print/SheetPreview.h"
#include "ui/print/SheetSettings.h"
#include <algorithm>
#include <QtTest>
#include <QtWidgets>

Q_DECLARE_METATYPE(SheetOptions::Kind)

class tst_SheetDialog : public QObject
{
    Q_OBJECT

private slots:
    void choosesDesigns_data()
    {
        const Rows<SheetOptions::Kind, int, int, int> row("kind", "selected", "shown", "chosen");
        row("contact sheet of all", SheetOptions::Contact, 0, 5, 5);
        row("one card is no choice", SheetOptions::Contact, 1, 5, 5);
        row("contact sheet of some", SheetOptions::Contact, 2, 5, 2);
        row("work sheet of one", SheetOptions::Work, 1, 5, 1);
        row("work sheets of all", SheetOptions::Work, 0, 5, 5);
        row("hidden ones", SheetOptions::Contact, 1, 0, 1);
    }

    void choosesDesigns()
    {
        QFETCH(SheetOptions::Kind, kind);
        QFETCH(int, selected);
        QFETCH(int, shown);
        SheetOptions options;
        options.kind = kind;
        SheetSettings::save(options);
        SheetDialog dialog(SheetDialog::Print, designs(selected), designs(shown), nullptr);
        QTEST(dialog.designs().size(), "chosen");
        QCOMPARE(buttonOf<QRadioButton>(dialog, "Selected")->isEnabled(), selected > 0);
        if (shown > 0) {
            // From now on the kind of the sheet changes nothing.
            buttonOf<QRadioButton>(dialog, "All shown")->click();
            buttonOf<QRadioButton>(dialog, "Work sheet")->click();
            QCOMPARE(dialog.designs().size(), shown);
        }
    }

    void turnsPages()
    {
        SheetSettings::save(SheetOptions());
        SheetDialog dialog(SheetDialog::ExportPdf, {}, designs(45), nullptr);
        dialog.show();
        QVERIFY(says(dialog, "Page 1 of 3"));
        auto *preview = dialog.findChild<SheetPreview *>();
        QTest::keyClick(preview, Qt::Key_PageUp);
        QVERIFY(says(dialog, "Page 1 of 3"));
        QTest::keyClick(preview, Qt::Key_PageDown);
        QVERIFY(says(dialog, "Page 2 of 3"));
        QTest::keyClick(preview, Qt::Key_End);
        QVERIFY(says(dialog, "Page 3 of 3"));
        QTest::keyClick(preview, Qt::Key_Right);
        QVERIFY(says(dialog, "Page 3 of 3"));
        QCOMPARE(preview->accessibleDescription(), QString("Page 3 of 3"));
        // Fewer pages: from the first one on.
        dialog.findChild<QSpinBox *>()->setValue(8);
        QTRY_VERIFY(says(dialog, "Page 1 of 1"));
    }

    void turnsPagesOfWorkSheets()
    {
        SheetOptions options;
        options.kind = SheetOptions::Work;
        SheetSettings::save(options);
        SheetDialog dialog(SheetDialog::Print, designs(2), {}, nullptr);
        dialog.show();
        auto *preview = dialog.findChild<SheetPreview *>();
        QTRY_VERIFY(says(dialog, "Design 1 of 2, page 1 of 2"));
        QTest::keyClick(preview, Qt::Key_Right);
        QTest::keyClick(preview, Qt::Key_Right);
        QTRY_VERIFY(says(dialog, "Design 2 of 2, page 1 of 2"));
        QTest::keyClick(preview, Qt::Key_Left);
        QTRY_VERIFY(says(dialog, "Design 1 of 2, page 2 of 2"));
        QTest::keyClick(preview, Qt::Key_End);
        QTRY_VERIFY(says(dialog, "Design 2 of 2, page 2 of 2"));
    }

    void remembersChoices()
    {
        SheetSettings::save(SheetOptions());
        {
            SheetDialog dialog(SheetDialog::Print, {}, designs(3), nullptr);
            dialog.show();
            dialog.findChild<QSpinBox *>()->setValue(6);
            dialog.findChild<QComboBox *>()->setCurrentText("Letter");
            buttonOf<QCheckBox>(dialog, "Stitches")->click();
            buttonOf<QCheckBox>(dialog, "By folder")->click();
            buttonOf<QCheckBox>(dialog, "Page numbers")->click();
            QTest::keyClick(&dialog, Qt::Key_Return);
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
        }
        SheetDialog dialog(SheetDialog::Print, {}, designs(3), nullptr);
        const SheetOptions options = dialog.options();
        QCOMPARE(options.columns, 6);
        QCOMPARE(options.paper, QPageSize::Letter);
        QVERIFY(!options.facts.testFlag(SheetOptions::Stitches));
        QVERIFY(options.facts.testFlag(SheetOptions::Size));
        QVERIFY(options.folderHeadings);
        QVERIFY(!options.pageNumbers);
    }

    void survivesStrangeSettings()
    {
        GSettings settings;
        for (const char *key : {"kind", "paper", "landscape", "columns", "facts"})
            settings.setValue("sheet/" + QLatin1String(key), "-7");
        const SheetOptions options = SheetSettings::load();
        QCOMPARE(options.columns, 1);
        QVERIFY(SheetOptions::papers().contains(options.paper));
    }

    void showsDesignsAsTheyAreDrawn()
    {
        SheetPages pages;
        QSignalSpy changed(&pages, &SheetPages::changed);
        pages.setSheet(designs(3), SheetOptions());
        const QImage before = pages.image(300);
        QTRY_VERIFY(changed.size() > 1);
        QTRY_VERIFY(pages.image(300) != before);
        QCOMPARE(before.width(), 300);
    }

private:
    QVector<SheetDesign> designs(int count) const
    {
        const QString path = m_folder.design("rose.dst");
        if (!DstDesign::square().writeTo(path))
            return {};
        return QVector<SheetDesign>(count, SheetDesign::of(path));
    }

    CatalogueFolder m_folder;
};

QTEST_MAIN(tst_SheetDialog)
#include "tst_sheetdialog.moc"
