#include "base/GSettings.h"
#include "base/GTranslationLoader.h"

#include <QtTest>

/** The choice of the language, without any translation compiled in. */
class tst_Translations : public QObject
{
    Q_OBJECT

private slots:
    void argumentOverridesTheSetting()
    {
        QTemporaryDir dir;
        GSettings::setIniFile(dir.filePath("s.ini"));
        GSettings().setUiLanguage("en");
        auto *loader = GTranslationLoader::instance();
        loader->setTranslations(QCoreApplication::instance());
        QCOMPARE(loader->languageCode(), "zh-CN");
    }

    void noMatchFallsBackToEnglish()
    {
        const auto *loader = GTranslationLoader::instance();
        QVERIFY(loader->getAvailableLanguages().isEmpty());
        QCOMPARE(loader->getBestMatchingLanguage({"de-DE"}), "en");
    }

    void localizedFilename()
    {
        QTemporaryDir dir;
        const QString plain = dir.filePath("a.b.html");
        const QString localized = dir.filePath("a.b.zh-CN.html");
        const auto *loader = GTranslationLoader::instance();
        QCOMPARE(loader->localizedFilename(plain), plain);
        QFile file(localized);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(loader->localizedFilename(plain), localized);
    }
};

int main(int argc, char **argv)
{
    Q_UNUSED(argc)
    char language[] = "--language=zh-CN";
    char *arguments[] = {argv[0], language, nullptr};
    int count = 2;
    QCoreApplication app(count, arguments);
    tst_Translations test;
    return QTest::qExec(&test, QStringList{QString::fromLocal8Bit(argv[0])});
}
#include "tst_translations.moc"
