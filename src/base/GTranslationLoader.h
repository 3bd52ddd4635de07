#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>
#include <QTranslator>

class QCoreApplication;

/** Chooses the language of the program and installs its translations. Main thread only. */
class GTranslationLoader
{
public:
    static GTranslationLoader *instance();

    /**
     * Chooses the language anew and installs what there is for it; locale() becomes the
     * default of the process. May be called again at any time; a missing translation leaves
     * the source texts in place.
     */
    void setTranslations(QCoreApplication *app);

    /** The chosen language, for instance "de" or "zh-CN". */
    QString languageCode() const { return m_languageCode; }

    /**
     * How numbers and dates are written: the system's own way, unless its language is
     * not that of the program's texts.
     */
    QLocale locale() const;

    /** Codes of the languages that the product is translated into. */
    QStringList getAvailableLanguages() const;

    /** The first of the system's preferred languages that is available, else "en". */
    QString getBestMatchingLanguage() const;
    /** The same for the preferences @p uiLanguages, the most wanted first. */
    QString getBestMatchingLanguage(const QStringList &uiLanguages) const;

    /** @p name with the language code before its suffix when that file exists, else @p name. */
    QString localizedFilename(const QString &name) const;

private:
    GTranslationLoader() = default;
    void initLanguage(const QCoreApplication *app);
    void loadLanguage(QCoreApplication *app, QTranslator &translator, const QString &pattern);

    QTranslator m_frame;
    QTranslator m_product;
    QTranslator m_qt;
    QString m_languageCode;
};
