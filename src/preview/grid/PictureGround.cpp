#include "preview/grid/PictureGround.h"

#include "catalogue/records/IFile.h"
#include "catalogue/records/IThread.h"
#include "widgets/style/WidgetHelper.h"
#include <algorithm>

namespace {

// Threads of less are lost among the shades that a preview gives them.
constexpr double LeastContrast = 1.25;

const QColor TintedGround(0xb9, 0xc4, 0xc6);

} // namespace

QColor PictureGround::of(const IFile &file)
{
    const auto threads = file.threads();
    const auto isLost = [](const QSharedPointer<IThread> &thread) {
        return thread->color().isValid() &&
               WidgetHelper::contrast(thread->color(), Qt::white) < LeastContrast;
    };
    return std::any_of(threads.begin(), threads.end(), isLost) ? TintedGround : QColor(Qt::white);
}
