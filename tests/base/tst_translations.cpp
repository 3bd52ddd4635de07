#include "base/GSettings.h"
#include "base/GTranslationLoader.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

/** The choice of the language, without any translation compiled in. */
class tst_Translations : public QObject
{
    Q_OBJECT

private slots:
    void argumentOverridesTheSetting();
    void noMatchFallsBackToEnglish();
    void localizedFilename();
};

void tst_Translations::argumentOverridesTheSetting()
{
    QTemporaryDir dir;
    GSettings::setIniFile(dir.filePath(QStringLiteral("s.ini")));
    GSettings().setUiLanguage(QStringLiteral("en"));
    auto *loader = GTranslationLoader::instance();
    loader->setTranslations(QCoreApplication::instance());
    QCOMPARE(loader->languageCode(), QStringLiteral("zh-CN"));
}

void tst_Translations::noMatchFallsBackToEnglish()
{
    const auto *loader = GTranslationLoader::instance();
    QVERIFY(loader->getAvailableLanguages().isEmpty());
    QCOMPARE(loader->getBestMatchingLanguage({QStringLiteral("de-DE")}), QStringLiteral("en"));
}

void tst_Translations::localizedFilename()
{
    QTemporaryDir dir;
    const QString plain = dir.filePath(QStringLiteral("a.b.html"));
    const QString localized = dir.filePath(QStringLiteral("a.b.zh-CN.html"));
    const auto *loader = GTranslationLoader::instance();
    QCOMPARE(loader->localizedFilename(plain), plain);
    QFile file(localized);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(loader->localizedFilename(plain), localized);
}

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
