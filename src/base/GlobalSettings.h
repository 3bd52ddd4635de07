#pragma once

#include "base/GSettings.h"

#include <QByteArray>

/** The preferences of the product itself. */
class GlobalSettings : public GSettings
{
public:
    /**
     * Root of the catalogue file and of the preview directory, without a trailing
     * slash. Decided on the first call and stored, so that it stays when the
     * platform's default moves.
     */
    QString applicationDataPath();
    void setApplicationDataPath(const QString &path);

    /** The catalogue, below the data path. */
    QString catalogueFilePath();

    /**
     * For the rest of the process @p path, which is absolute, is the catalogue and its folder
     * the data path. Nothing of that is stored, and nothing happens when it is the catalogue
     * anyhow, be it by another name.
     */
    static void useCatalogue(const QString &path);
    /** Whether useCatalogue() has chosen another one than the organiser's own. */
    static bool usesOtherCatalogue();

    /**
     * The preview file of a design with the raw MD5 digest @p hash; with a null
     * array the preview directory, with its trailing slash.
     */
    QString previewImagePath(const QByteArray &hash);

    /** What whoever writes the catalogue holds a lock on, beside the catalogue. */
    QString lockFilePath();

    /** Where the add-folder dialog starts. */
    QString lastImportPath() const;
    void setLastImportPath(const QString &path);

    /** Zoom of the grid, in per cent. */
    int gridScaleFactor() const;
    void setGridScaleFactor(int percent);

    /** What the grid is sorted by, as SortOrder::toText() writes it; empty when never chosen. */
    QString sortOrder() const;
    void setSortOrder(const QString &order);

    /** Whether the design window shows the jumps between stitches, and the hoop. */
    bool jumpsShown() const;
    void setJumpsShown(bool shown);
    bool hoopShown() const;
    void setHoopShown(bool shown);

    /** Where the design window was, as QWidget::saveGeometry() has it; empty when never shown. */
    QByteArray designWindowGeometry() const;
    void setDesignWindowGeometry(const QByteArray &geometry);

    /** Inches rather than millimetres. Decided by the system's locale on the first call. */
    bool imperialUnits();
    void setImperialUnits(bool imperial);

private:
    static QString otherCatalogue;
};
