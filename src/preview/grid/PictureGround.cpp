#include "preview/grid/PictureGround.h"

#include "catalogue/records/IFile.h"
#include "catalogue/records/IThread.h"
#include "widgets/style/WidgetHelper.h"
#include "widgets/style/WidgetStyles.h"
#include <algorithm>
#include <cstdlib>

namespace {

// Threads of less are lost among the shades that a preview gives them, which are darker.
constexpr double LeastContrast = 1.25;
constexpr double LeastContrastOnDark = 2.0;
constexpr int LeastDistance = 60; // of red, green and blue together

const QColor TintedGround(0xb9, 0xc4, 0xc6);

bool showsAllThreads(const QColor &ground, const IFile &file, double leastContrast)
{
    const auto threads = file.threads();
    return std::all_of(threads.begin(), threads.end(), [&](const QSharedPointer<IThread> &thread) {
        return !thread->color().isValid() ||
               WidgetHelper::contrast(thread->color(), ground) >= leastContrast;
    });
}

/** Whether a thread has about the colour of the ground. */
bool holdsLikeThread(const QColor &ground, const IFile &file)
{
    const auto threads = file.threads();
    return std::any_of(threads.begin(), threads.end(), [&](const QSharedPointer<IThread> &thread) {
        const QColor color = thread->color();
        return std::abs(color.red() - ground.red()) + std::abs(color.green() - ground.green()) +
                   std::abs(color.blue() - ground.blue()) <
               LeastDistance;
    });
}

} // namespace

QColor PictureGround::of(const IFile &file)
{
    if (!WidgetHelper::isDarkMode()) {
        return showsAllThreads(Qt::white, file, LeastContrast) ? QColor(Qt::white) : TintedGround;
    }
    if (showsAllThreads(WidgetStyles::CardGround(), file, LeastContrastOnDark)) {
        return WidgetStyles::CardGround();
    }
    // Light, but no lighter than it must be.
    return holdsLikeThread(TintedGround, file) ? QColor(Qt::white) : TintedGround;
}
