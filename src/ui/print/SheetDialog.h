#pragma once

#include "preview/sheets/SheetDesigns.h"
#include "preview/sheets/SheetOptions.h"

#include <QDialog>
#include <QTimer>
#include <QVector>

class QLabel;
class QPushButton;
class SheetForm;
class SheetPages;
class SheetPreview;

/** Lets the user choose what is printed, and see it beforehand. */
class SheetDialog : public QDialog
{
    Q_OBJECT

public:
    enum Purpose { Print, ExportPdf };

    /** At least one of both lists must not be empty. */
    SheetDialog(Purpose purpose, const SheetDesigns &selected, const SheetDesigns &shown,
                QWidget *parent);

    SheetOptions options() const;
    const SheetDesigns &designs() const;

public slots:
    void accept() override;

private:
    QWidget *createNavigation();
    QPushButton *createTurner(const QString &icon, const QString &name);
    void showSheet();
    void showPlace();

    const SheetDesigns m_selected;
    const SheetDesigns m_shown;
    SheetForm *m_form;
    SheetPages *m_pages;
    SheetPreview *m_preview;
    QPushButton *m_previous = nullptr;
    QPushButton *m_next = nullptr;
    QLabel *m_place = nullptr;
    // The sheet follows the hand when it rests, not with each letter of the title.
    QTimer m_delay;
};
