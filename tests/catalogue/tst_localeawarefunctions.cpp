#include "base/GSettings.h"
#include "base/GTranslationLoader.h"
#include "catalogue/records/LocaleAwareFunctions.h"
#include "catalogue/records/Project.h"

#include <QtTest>

class TestLocaleAwareFunctions : public QObject
{
    Q_OBJECT

private slots:
    void naturalOrder()
    {
        QStringList list = {"b", "a10", "A2", "\u00e4", "a2", "B"};
        LocaleAwareFunctions::sort(list);
        QCOMPARE(list.join(' '), "\u00e4 A2 a2 a10 b B");

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

    void sizes()
    {
        const auto text = &LocaleAwareFunctions::toString;
        QCOMPARE(text({5, -1}, true), QString());
        QCOMPARE(text({94.6, 120.2}, false), "95mm x 120mm");
        QCOMPARE(text({25.4, 130}, true), "1.0\" x 5.1\"");
        QCOMPARE(text({0, 0}, false), "0mm x 0mm");
        QCOMPARE(text({1234, 1}, false), "1234mm x 1mm");
    }

    void sizesAsPeopleWriteThem()
    {
        const auto text = &LocaleAwareFunctions::toText;
        const auto setLanguage = [](const char *language) {
            GSettings().setUiLanguage(QString::fromLatin1(language));
            GTranslationLoader::instance()->setTranslations(QCoreApplication::instance());
        };
        setLanguage("de");
        QCOMPARE(text({5, -1}, true), QString());
        QCOMPARE(text({53.3, 43.2}, true), "2,1\" × 1,7\"");
        QCOMPARE(text({1234, 43.2}, false), "1.234 mm × 43 mm");
        // The cards stay as they are.
        QCOMPARE(LocaleAwareFunctions::toString({53.3, 43.2}, true), "2.1\" x 1.7\"");
        setLanguage("en");
        QCOMPARE(text({53.3, 43.2}, true), "2.1\" × 1.7\"");
    }
};

QTEST_MAIN(TestLocaleAwareFunctions)
#include "tst_localeawarefunctions.moc"
