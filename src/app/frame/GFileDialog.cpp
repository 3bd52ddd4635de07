#include "app/frame/GFileDialog.h"

QString GFileDialog::getExistingDirectory(QWidget *parent, const QString &caption,
                                          const QString &directory, QFileDialog::Options options)
{
    return QFileDialog::getExistingDirectory(parent, caption, directory, options);
}

QUrl GFileDialog::getExistingDirectoryUrl(QWidget *parent, const QString &caption,
                                          const QUrl &directory, QFileDialog::Options options)
{
    return QFileDialog::getExistingDirectoryUrl(parent, caption, directory, options);
}

QString GFileDialog::getOpenFileName(QWidget *parent, const QString &caption,
                                     const QString &directory, const QString &filter,
                                     QString *selectedFilter, QFileDialog::Options options)
{
    return QFileDialog::getOpenFileName(parent, caption, directory, filter, selectedFilter,
                                        options);
}

QStringList GFileDialog::getOpenFileNames(QWidget *parent, const QString &caption,
                                          const QString &directory, const QString &filter,
                                          QString *selectedFilter, QFileDialog::Options options)
{
    return QFileDialog::getOpenFileNames(parent, caption, directory, filter, selectedFilter,
                                         options);
}

QUrl GFileDialog::getOpenFileUrl(QWidget *parent, const QString &caption, const QUrl &directory,
                                 const QString &filter, QString *selectedFilter,
                                 QFileDialog::Options options)
{
    return QFileDialog::getOpenFileUrl(parent, caption, directory, filter, selectedFilter, options);
}

QList<QUrl> GFileDialog::getOpenFileUrls(QWidget *parent, const QString &caption,
                                         const QUrl &directory, const QString &filter,
                                         QString *selectedFilter, QFileDialog::Options options)
{
    return QFileDialog::getOpenFileUrls(parent, caption, directory, filter, selectedFilter,
                                        options);
}

QString GFileDialog::getSaveFileName(QWidget *parent, const QString &caption,
                                     const QString &directory, const QString &filter,
                                     QString *selectedFilter, QFileDialog::Options options)
{
    return QFileDialog::getSaveFileName(parent, caption, directory, filter, selectedFilter,
                                        options);
}

QUrl GFileDialog::getSaveFileUrl(QWidget *parent, const QString &caption, const QUrl &directory,
                                 const QString &filter, QString *selectedFilter,
                                 QFileDialog::Options options)
{
    return QFileDialog::getSaveFileUrl(parent, caption, directory, filter, selectedFilter, options);
}

bool GFileDialog::usesOverlayIcons()
{
    return false;
}

QStringList GFileDialog::listOfRegisteredOverlayIcons()
{
    return {};
}

QString GFileDialog::buildFilterFromMap(const KeyValueList<QString> &map, bool allKnownTypes,
                                        bool allFiles)
{
    QStringList patterns;
    QStringList filters;
    for (const auto &[extension, description] : map) {
        patterns.append(QStringLiteral("*%1").arg(extension));
        filters.append(QStringLiteral("%1 (*%2)").arg(description, extension));
    }
    if (allKnownTypes)
        filters.prepend(tr("All known types (%1)").arg(patterns.join(QLatin1Char(' '))));
    if (allFiles)
        filters.append(tr("All files (*.*)"));
    return filters.join(QStringLiteral(";;"));
}
