// Feeds any text to the search language: each must end with a query or a remark on a passage
// of it, and be held against a design and completed at any place.

#include "catalogue/query/DuplicateIndex.h"
#include "catalogue/query/Query.h"
#include "catalogue/query/QueryCompletion.h"
#include "catalogue/records/Project.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void check(bool holds)
{
    if (!holds)
        std::abort();
}

QSharedPointer<IFile> makeDesign(Project *project)
{
    const auto file = QSharedPointer<File>::create(project);
    file->setAbsoluteFilePath(QStringLiteral("/home/user/Designs/Rose 12.pes"));
    file->setContentHash("0123456789abcdef");
    file->setModificationDate(1609459200U);
    file->setDesignSize({100, 129.6});
    file->setStitchCount(10311);
    const auto thread = QSharedPointer<Thread>::create(project);
    thread->setColor(QColor(0xf6, 0x4a, 0x8a));
    thread->setColorName(QStringLiteral("Deep Rose"));
    file->setThreads({thread});
    file->tagsProp()->setValueWithoutUndoAndAnnounceChange({QStringLiteral("flowers")});
    return file;
}

bool liesIn(int position, int length, const QString &text)
{
    return position >= 0 && length >= 0 && position <= text.length() - length;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static Project project;
    static const QSharedPointer<IFile> design = makeDesign(&project);
    static const DuplicateIndex duplicates = [] {
        DuplicateIndex index;
        index.setFiles({design});
        return index;
    }();
    static const QDateTime now(QDate(2024, 6, 15), QTime(12, 0));
    if (size == 0)
        return 0;
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data) + 1, static_cast<int>(size) - 1);

    const Query query = Query::parse(text, now);
    if (query.remark()) {
        check(liesIn(query.remark()->position, query.remark()->length, text));
        check(!query.remark()->message.isEmpty());
    }
    query.matches(*design, duplicates);

    const int cursor = text.isEmpty() ? 0 : data[0] % (text.length() + 1);
    const auto completion =
        QueryCompletion::at(text, cursor, {QStringLiteral("flowers"), QStringLiteral("to \"do\"")});
    if (!completion.isEmpty()) {
        check(liesIn(completion.position, completion.length, text));
        check(completion.position + completion.length == cursor);
    }
    return 0;
}
