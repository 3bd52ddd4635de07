#include "ui/CatalogueQuestions.h"

#include "app/frame/GFileDialog.h"
#include "base/Error.h"
#include "widgets/controls/GMessageBox.h"

#include <QAbstractButton>
#include <QDate>
#include <QPushButton>
#include <QStandardPaths>

bool CatalogueQuestions::wantsToTryAgain(const Error &error)
{
    GMessageBox box(GMessageBox::Warning, nullptr, tr("The catalogue cannot be used."),
                    error.toString());
    box.setStandardButtons(QMessageBox::NoButton);
    QPushButton *again = box.addButton(tr("Try again"), QMessageBox::AcceptRole);
    box.setEscapeButton(box.addButton(tr("Quit"), QMessageBox::RejectRole));
    box.setDefaultButton(again);
    box.exec();
    return box.clickedButton() == again;
}

CatalogueQuestions::AtEnd CatalogueQuestions::askAtEnd(QWidget *parent, const QString &reason)
{
    GMessageBox box(GMessageBox::Warning, parent, tr("Your last changes could not be saved."),
                    reason);
    box.setStandardButtons(QMessageBox::Cancel);
    QPushButton *again = box.addButton(tr("Try again"), QMessageBox::AcceptRole);
    const QAbstractButton *copy = box.addButton(tr("Save a copy..."), QMessageBox::ActionRole);
    const QAbstractButton *quit = box.addButton(tr("Quit without saving"), QMessageBox::ActionRole);
    box.setDefaultButton(again);
    box.setEscapeButton(QMessageBox::Cancel);
    box.exec();
    if (box.clickedButton() == again)
        return TryToSave;
    if (box.clickedButton() == copy)
        return SaveCopy;
    return box.clickedButton() == quit ? QuitUnsaved : Stay;
}

QString CatalogueQuestions::chooseCopy(QWidget *parent)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString name = QStringLiteral("%1/hoopline-organizer %2.xml")
                             .arg(folder, QDate::currentDate().toString(Qt::ISODate));
    return GFileDialog::getSaveFileName(parent, tr("Save a copy of the catalogue"), name,
                                        tr("Catalogues (*.xml)"));
}
