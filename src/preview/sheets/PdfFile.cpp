#include "preview/sheets/PdfFile.h"

#include "base/Error.h"
#include "base/files/FileReplacement.h"
#include "preview/sheets/PaperUnits.h"
#include "preview/sheets/SheetWriter.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QIODevice>
#include <QPdfWriter>

namespace {

/** Takes what is written to it to a new file. */
class ReplacementDevice : public QIODevice
{
public:
    explicit ReplacementDevice(FileReplacement &file) : m_file(file) { QIODevice::open(WriteOnly); }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 size) override
    {
        return m_file.write(QByteArray::fromRawData(data, int(size))) ? size : -1;
    }

private:
    FileReplacement &m_file;
};

QString titleOf(const QString &path, const SheetOptions &options)
{
    return options.title.isEmpty() ? QFileInfo(path).completeBaseName() : options.title;
}

} // namespace

int PdfFile::write(const QString &path, const SheetDesigns &designs, const SheetOptions &options,
                   IProgressAbortListener &progress)
{
    FileReplacement file(path, FileReplacement::AsBefore);
    const auto expectHealth = [&file, &path] {
        if (!file.errorString().isNull())
            throw Error(QCoreApplication::translate("PdfFile", "Failed to write %1: %2")
                            .arg(path, file.errorString()));
    };
    expectHealth();
    int pageCount = 0;
    {
        ReplacementDevice device(file);
        QPdfWriter writer(&device);
        writer.setPageLayout(options.pageLayout());
        writer.setResolution(PaperUnits::PerInch);
        writer.setTitle(titleOf(path, options));
        writer.setCreator(QCoreApplication::applicationName());
        const QSizeF area =
            options.pageLayout().paintRect(QPageLayout::Millimeter).size() * PaperUnits::Millimetre;
        const auto sheet = Sheet::make(designs, options, area);
        SheetWriter pages(*sheet, progress);
        if (!pages.write(writer, expectHealth))
            return 0;
        pageCount = pages.pageCount();
    }
    if (!file.commit(FileReplacement::Durable))
        expectHealth();
    return pageCount;
}
