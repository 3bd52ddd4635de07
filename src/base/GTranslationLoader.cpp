#include "base/GTranslationLoader.h"

#include "base/GSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace {

const QString Product = QStringLiteral(":/translations/%1.qm");
const QString Frame = QStringLiteral(":/tnw_translations/%1.qm");
const QString QtOwn = QStringLiteral(":/tnw_translations/qt_%1.qm");

QString fileForLanguage(const QString &pattern, QString code)
{
    return pattern.arg(code.replace(QLatin1Char('-'), QLatin1Char('_')));
}

QString languageArgument()
{
    const QString option = QStringLiteral("--language=");
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    for (const QString &argument : arguments) {
        if (argument.startsWith(option))
            return argument.mid(option.size());
    }
    return QString();
}

} // namespace

GTranslationLoader *GTranslationLoader::instance()
{
    static GTranslationLoader loader;
    return &loader;
}

void GTranslationLoader::setTranslations(QCoreApplication *app)
{
    initLanguage(app);
    loadLanguage(app, m_qt, QtOwn);
    loadLanguage(app, m_frame, Frame);
    loadLanguage(app, m_product, Product);
    // What counts are written with, in texts whose plural form follows them.
    QLocale::setDefault(locale());
}

void GTranslationLoader::initLanguage(const QCoreApplication *)
{
    m_languageCode = languageArgument();
    if (m_languageCode.isEmpty())
        m_languageCode = GSettings().uiLanguage();
    if (m_languageCode.isEmpty())
        m_languageCode = getBestMatchingLanguage();
}

void GTranslationLoader::loadLanguage(QCoreApplication *app, QTranslator &translator,
                                      const QString &pattern)
{
    app->removeTranslator(&translator);
    const QString file = fileForLanguage(pattern, m_languageCode);
    if (QFile::exists(file) && translator.load(file))
        app->installTranslator(&translator);
}

QLocale GTranslationLoader::locale() const
{
    const QLocale system = QLocale::system();
    const QLocale program(m_languageCode);
    const bool same =
        system.language() == program.language() && system.script() == program.script();
    return same ? system : program;
}

QStringList GTranslationLoader::getAvailableLanguages() const
{
    QStringList candidates{QStringLiteral("en"), QStringLiteral("zh-CN"), QStringLiteral("de")};
    for (const QString &folder :
         {QStringLiteral(":/tnw_translations"), QStringLiteral(":/translations")}) {
        const auto files = QDir(folder).entryInfoList({QStringLiteral("*.qm")}, QDir::Files);
        for (const QFileInfo &file : files)
            candidates.append(file.completeBaseName().replace(QLatin1Char('_'), QLatin1Char('-')));
    }
    candidates.removeDuplicates();

    QStringList available;
    for (const QString &code : std::as_const(candidates)) {
        if (QFile::exists(fileForLanguage(Product, code)))
            available.append(code);
    }
    return available;
}

QString GTranslationLoader::getBestMatchingLanguage() const
{
    return getBestMatchingLanguage(QLocale::system().uiLanguages());
}

QString GTranslationLoader::getBestMatchingLanguage(const QStringList &uiLanguages) const
{
    const QStringList available = getAvailableLanguages();
    for (const QString &entry : uiLanguages) {
        const QString language =
            entry.startsWith(QStringLiteral("zh-Hans")) ? QStringLiteral("zh-CN") : entry;
        for (const QString &code : available) {
            if (language.startsWith(code))
                return code;
        }
    }
    return QStringLiteral("en");
}

QString GTranslationLoader::localizedFilename(const QString &name) const
{
    QString localized = name;
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    localized.insert(dot < 0 ? name.size() : dot, QLatin1Char('.') + m_languageCode);
    return QFile::exists(localized) ? localized : name;
}
