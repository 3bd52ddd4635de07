#include "ui/print/SheetPrinter.h"

#include "base/Error.h"
#include "preview/sheets/PaperUnits.h"
#include "preview/sheets/SheetWriter.h"

#include <QPrintDialog>
#include <QPrinter>

SheetPrinter::SheetPrinter(const SheetOptions &options)
    : m_options(options), m_printer(std::make_unique<QPrinter>(QPrinter::HighResolution))
{
    const QString program = QCoreApplication::applicationName();
    m_printer->setPageLayout(options.pageLayout());
    m_printer->setDocName(options.title.isEmpty() ? program : options.title);
    m_printer->setCreator(program);
}

SheetPrinter::~SheetPrinter() = default;

bool SheetPrinter::choose(QWidget *parent)
{
    QPrintDialog dialog(m_printer.get(), parent);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    return dialog.exec() == QDialog::Accepted;
}

bool SheetPrinter::print(const SheetDesigns &designs, IProgressAbortListener &progress)
{
    const auto expectHealth = [this] {
        if (m_printer->printerState() == QPrinter::Error)
            throw Error(tr("The printer has failed."));
    };
    const QSizeF area =
        m_printer->pageLayout().paintRect(QPageLayout::Millimeter).size() * PaperUnits::Millimetre;
    const auto sheet = Sheet::make(designs, m_options, area);
    const bool complete = SheetWriter(*sheet, progress).write(*m_printer, expectHealth);
    if (!complete)
        m_printer->abort();
    return complete;
}
