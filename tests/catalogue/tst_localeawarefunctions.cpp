#include "catalogue/records/LocaleAwareFunctions.h"
#include "catalogue/records/Project.h"

#include <QtTest>

class TestLocaleAwareFunctions : public QObject
{
    Q_OBJECT

private slots:
    void naturalOrder();
    void filesByPath();
    void sizes_data();
    void sizes();
};

void TestLocaleAwareFunctions::naturalOrder()
{
    QStringList list = {"b", "a10", "A2", "\u00e4", "a2", "B"};
    LocaleAwareFunctions::sort(list);
    QCOMPARE(list.join(' '), QStringLiteral("\u00e4 A2 a2 a10 b B"));
}

void TestLocaleAwareFunctions::filesByPath()
{
    Project project;
    QList<QSharedPointer<IFile>> files;
    for (const char *path : {"/d/10.pes", "/d/9.pes", "/C/1.pes"}) {
        files << QSharedPointer<File>::create(&project);
        files.last()->setAbsoluteFilePath(QString::fromLatin1(path));
    }
    auto sorted = files;
    LocaleAwareFunctions::sort(sorted);
    QCOMPARE(sorted, QList<QSharedPointer<IFile>>({files.at(2), files.at(1), files.at(0)}));
}

void TestLocaleAwareFunctions::sizes_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<bool>("inch");
    QTest::addColumn<QString>("text");
    QTest::newRow("unknown") << QSizeF(-1, -1) << false << "";
    QTest::newRow("half known") << QSizeF(5, -1) << true << "";
    QTest::newRow("mm") << QSizeF(94.6, 120.2) << false << "95mm x 120mm";
    QTest::newRow("inch") << QSizeF(25.4, 130) << true << "1.0\" x 5.1\"";
    QTest::newRow("zero") << QSizeF(0, 0) << false << "0mm x 0mm";
}

void TestLocaleAwareFunctions::sizes()
{
    QFETCH(QSizeF, size);
    QFETCH(bool, inch);
    QFETCH(QString, text);
    QCOMPARE(LocaleAwareFunctions::toString(size, inch), text);
}

QTEST_MAIN(TestLocaleAwareFunctions)
#include "tst_localeawarefunctions.moc"
