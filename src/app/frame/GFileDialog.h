#pragma once

#include "app/frame/KeyValueList.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QUrl>

/**
 * The one door to the platform's file dialogs. Every function shows a modal
 * dialog over the parent; a cancelled dialog gives an empty result.
 */
class GFileDialog
{
    Q_DECLARE_TR_FUNCTIONS(GFileDialog)

public:
    static QString getExistingDirectory(QWidget *parent, const QString &caption = QString(),
                                        const QString &directory = QString(),
                                        QFileDialog::Options options = QFileDialog::ShowDirsOnly);
    static QUrl getExistingDirectoryUrl(QWidget *parent, const QString &caption = QString(),
                                        const QUrl &directory = QUrl(),
                                        QFileDialog::Options options = QFileDialog::ShowDirsOnly);
    static QString getOpenFileName(QWidget *parent, const QString &caption = QString(),
                                   const QString &directory = QString(),
                                   const QString &filter = QString(),
                                   QString *selectedFilter = nullptr,
                                   QFileDialog::Options options = {});
    static QStringList getOpenFileNames(QWidget *parent, const QString &caption = QString(),
                                        const QString &directory = QString(),
                                        const QString &filter = QString(),
                                        QString *selectedFilter = nullptr,
                                        QFileDialog::Options options = {});
    static QUrl getOpenFileUrl(QWidget *parent, const QString &caption = QString(),
                               const QUrl &directory = QUrl(), const QString &filter = QString(),
                               QString *selectedFilter = nullptr,
                               QFileDialog::Options options = {});
    static QList<QUrl> getOpenFileUrls(QWidget *parent, const QString &caption = QString(),
                                       const QUrl &directory = QUrl(),
                                       const QString &filter = QString(),
                                       QString *selectedFilter = nullptr,
                                       QFileDialog::Options options = {});
    static QString getSaveFileName(QWidget *parent, const QString &caption = QString(),
                                   const QString &directory = QString(),
                                   const QString &filter = QString(),
                                   QString *selectedFilter = nullptr,
                                   QFileDialog::Options options = {});
    static QUrl getSaveFileUrl(QWidget *parent, const QString &caption = QString(),
                               const QUrl &directory = QUrl(), const QString &filter = QString(),
                               QString *selectedFilter = nullptr,
                               QFileDialog::Options options = {});

    /** Whether other programs' shell extensions draw into the dialogs. */
    static bool usesOverlayIcons();
    static QStringList listOfRegisteredOverlayIcons();

    /**
     * The filter text for the pairs of extension (with its dot) and description,
     * with an entry for all of them in front and one for every file at the end
     * as asked for.
     */
    static QString buildFilterFromMap(const KeyValueList<QString> &map, bool allKnownTypes,
                                      bool allFiles);
};
