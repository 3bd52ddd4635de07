#include "writers/Steps.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

using namespace Embroidery;

namespace DesignWriters {

QVector<Step> relativeSteps(const EmbPattern &pattern, int limit)
{
    QVector<Step> steps;
    int x = 0;
    int y = 0;
    for (int i = 0; i < pattern.size(); ++i) {
        const int command = pattern.getData(i);
        if (command == StitchCommandEnd)
            break;
        const int dx = int(std::lround(pattern.getX(i))) - x;
        const int dy = int(std::lround(pattern.getY(i))) - y;
        const int parts = std::max(1, (std::max(std::abs(dx), std::abs(dy)) + limit - 1) / limit);
        const int fromX = x;
        const int fromY = y;
        for (int part = 1; part <= parts; ++part) {
            const int toX = fromX + dx * part / parts;
            const int toY = fromY + dy * part / parts;
            steps << Step{command, toX - x, toY - y};
            x = toX;
            y = toY;
        }
    }
    return steps;
}

int colorChanges(const QVector<Step> &steps)
{
    return int(std::count_if(steps.begin(), steps.end(), [](const Step &step) {
        return step.command == StitchCommandColorChange;
    }));
}

} // namespace DesignWriters
