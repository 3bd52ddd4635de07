#pragma once

#include "preview/sheets/SheetDesigns.h"

#include <QObject>
#include <QVector>

class FilterSelectionModel;
class NoticeBar;
class QMenu;
class QWidget;
class SheetDialog;
struct SheetOptions;

/** The commands that bring designs onto paper. */
class SheetCommands : public QObject
{
    Q_OBJECT

public:
    /** @param window owns this; neither of the others is owned, both must outlive it */
    SheetCommands(QWidget *window, FilterSelectionModel *model, NoticeBar *notices);

    void addTo(QMenu *menu);

public slots:
    void print();
    void exportPdf();

private:
    SheetDesigns selectedDesigns() const;
    SheetDesigns shownDesigns() const;
    bool hasDesigns() const;
    void print(const SheetDialog &dialog);
    void writePdf(const SheetDialog &dialog, const QString &path);
    QString askForPath(const SheetDialog &dialog);
    void tell(const QString &text, const QString &path = QString());
    void tellFailure(const QString &headline, const QString &reason);

    QWidget *m_window;
    FilterSelectionModel *m_model;
    NoticeBar *m_notices;
};
