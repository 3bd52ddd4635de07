#include "ui/SheetCommands.h"

#include "app/frame/GAction.h"
#include "app/frame/GFileDialog.h"
#include "base/Error.h"
#include "base/GSettings.h"
#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/models/ISelectionModel.h"
#include "preview/sheets/PdfFile.h"
#include "ui/NoticeBar.h"
#include "ui/print/SheetDialog.h"
#include "ui/print/SheetPrinter.h"
#include "ui/ProgressDialog.h"
#include "widgets/controls/GMessageBox.h"
#include "widgets/controls/StatusActivity.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QStandardPaths>
#include <QUrl>

namespace {

const QString NoticeId = QStringLiteral("sheet");
const QString LastFolder = QStringLiteral("sheet/pdfFolder");
const QString Suffix = QStringLiteral(".pdf");

QString documentName(const SheetDialog &dialog)
{
    QString name = dialog.options().title;
    if (name.isEmpty() && dialog.designs().size() == 1)
        name = QFileInfo(dialog.designs().at(0).path).completeBaseName();
    if (name.isEmpty())
        name = SheetCommands::tr("Designs");
    return name.replace(QLatin1Char('/'), QLatin1Char('-'));
}

} // namespace

SheetCommands::SheetCommands(QWidget *window, FilterSelectionModel *model, NoticeBar *notices)
    : QObject(window), m_window(window), m_model(model), m_notices(notices)
{
}

void SheetCommands::addTo(QMenu *menu)
{
    auto *printAction = new GAction(tr("&Print..."), this);
    printAction->setShortcuts(QKeySequence::Print);
    connect(printAction, &QAction::triggered, this, QOverload<>::of(&SheetCommands::print));
    auto *pdfAction = new GAction(tr("&Export as PDF..."), this);
    pdfAction->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P));
    connect(pdfAction, &QAction::triggered, this, &SheetCommands::exportPdf);
    menu->addAction(printAction);
    menu->addAction(pdfAction);
}

SheetDesigns SheetCommands::selectedDesigns() const
{
    return SheetDesigns::of(m_model->selection()->selectedFiles());
}

SheetDesigns SheetCommands::shownDesigns() const
{
    return SheetDesigns::of(m_model->filter()->filteredFiles());
}

/** Tells that there are none. */
bool SheetCommands::hasDesigns() const
{
    if (!m_model->filter()->filteredFiles().isEmpty())
        return true;
    GMessageBox(GMessageBox::Information, m_window, tr("There are no designs to print."),
                tr("A sheet shows the selected designs, or all that the grid shows."))
        .exec();
    return false;
}

void SheetCommands::print()
{
    if (!hasDesigns())
        return;
    SheetDialog dialog(SheetDialog::Print, selectedDesigns(), shownDesigns(), m_window);
    if (dialog.exec() == QDialog::Accepted)
        print(dialog);
}

void SheetCommands::print(const SheetDialog &dialog)
{
    SheetPrinter printer(dialog.options());
    if (!printer.choose(m_window))
        return;
    const StatusActivity activity(m_window, tr("Printing..."));
    ProgressDialog progress(m_window);
    progress.begin();
    try {
        if (!printer.print(dialog.designs(), progress))
            tell(tr("Printing was canceled. Pages that are on their way may still be printed."));
    } catch (const Error &error) {
        progress.hide();
        tellFailure(tr("The designs could not be printed."), error.toString());
    }
    progress.hide();
}

void SheetCommands::exportPdf()
{
    if (!hasDesigns())
        return;
    SheetDialog dialog(SheetDialog::ExportPdf, selectedDesigns(), shownDesigns(), m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString path = askForPath(dialog);
    if (!path.isEmpty())
        writePdf(dialog, path);
}

/** Empty when the user does not want any more. */
QString SheetCommands::askForPath(const SheetDialog &dialog)
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString folder = GSettings().value(LastFolder, documents).toString();
    QString path = GFileDialog::getSaveFileName(
        m_window, tr("Export as PDF"), folder + QLatin1Char('/') + documentName(dialog) + Suffix,
        tr("PDF documents (*.pdf)"));
    if (path.isEmpty())
        return path;
    GSettings().setValue(LastFolder, QFileInfo(path).path());
    if (path.endsWith(Suffix, Qt::CaseInsensitive))
        return path;
    // The desktop has asked about the name without its end only.
    path += Suffix;
    if (!QFileInfo::exists(path))
        return path;
    GMessageBox question(GMessageBox::Question, m_window, tr("Replace the file?"),
                         QDir::toNativeSeparators(path));
    return question.exec() == QMessageBox::Yes ? path : QString();
}

void SheetCommands::writePdf(const SheetDialog &dialog, const QString &path)
{
    m_notices->withdraw(NoticeId);
    const StatusActivity activity(m_window, tr("Writing the PDF..."));
    ProgressDialog progress(m_window);
    progress.begin();
    try {
        const int pages = PdfFile::write(path, dialog.designs(), dialog.options(), progress);
        progress.hide();
        if (pages > 0)
            tell(tr("%1 was written: %n page(s).", nullptr, pages).arg(QFileInfo(path).fileName()),
                 path);
    } catch (const Error &error) {
        progress.hide();
        tellFailure(tr("The PDF could not be written."), error.toString());
    }
}

void SheetCommands::tell(const QString &text, const QString &path)
{
    Notice notice;
    notice.id = NoticeId;
    notice.text = text;
    if (!path.isEmpty())
        notice.actions.append(Notice::Action{
            tr("Open"), [path] { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); }});
    m_notices->tell(notice);
}

void SheetCommands::tellFailure(const QString &headline, const QString &reason)
{
    GMessageBox(GMessageBox::Critical, m_window, headline, reason).exec();
}
