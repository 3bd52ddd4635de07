#include "catalogue/records/LocaleAwareFunctions.h"
#include "catalogue/records/Project.h"

#include <QtTest>

class TestLocaleAwareFunctions : public QObject
{
    Q_OBJECT

private slots:
    void naturalOrder();
    void sizes();
};

void TestLocaleAwareFunctions::naturalOrder()
{
    QStringList list = {"b", "a10", "A2", "\u00e4", "a2", "B"};
    LocaleAwareFunctions::sort(list);
    QCOMPARE(list.join(' '), QStringLiteral("\u00e4 A2 a2 a10 b B"));

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

void TestLocaleAwareFunctions::sizes()
{
    const auto text = &LocaleAwareFunctions::toString;
    QCOMPARE(text({5, -1}, true), QString());
    QCOMPARE(text({94.6, 120.2}, false), QStringLiteral("95mm x 120mm"));
    QCOMPARE(text({25.4, 130}, true), QStringLiteral("1.0\" x 5.1\""));
    QCOMPARE(text({0, 0}, false), QStringLiteral("0mm x 0mm"));
}

QTEST_MAIN(TestLocaleAwareFunctions)
#include "tst_localeawarefunctions.moc"
