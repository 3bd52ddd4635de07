// The condition about the nearness of a thread's colour.

#include "base/Error.h"
#include "catalogue/query/ColorDifference.h"
#include "catalogue/query/ColorNames.h"
#include "catalogue/query/Conditions.h"
#include "catalogue/records/IFile.h"
#include "catalogue/records/Thread.h"

#include <algorithm>
#include <memory>
#include <QHash>
#include <QVector>

namespace {

/** Which colours are near to one of some shades. Threads share few colours, so it remembers. */
class Nearness
{
public:
    explicit Nearness(const QVector<QColor> &shades)
    {
        for (const QColor &shade : shades)
            m_shades.append(LabColor::of(shade));
    }

    bool isNear(const QColor &color)
    {
        const auto known = m_known.constFind(color.rgb());
        return known != m_known.constEnd() ? *known : *m_known.insert(color.rgb(), compare(color));
    }

private:
    bool compare(const QColor &color) const
    {
        const LabColor lab = LabColor::of(color);
        return std::any_of(m_shades.begin(), m_shades.end(), [&lab](const LabColor &shade) {
            return ColorDifference::ciede2000(shade, lab) <= Conditions::LargestColorDifference;
        });
    }

    QVector<LabColor> m_shades;
    QHash<QRgb, bool> m_known;
};

} // namespace

Condition Conditions::color(const QString &value, const QDateTime &)
{
    const QVector<QColor> shades = ColorNames::shadesOf(value);
    if (shades.isEmpty())
        throw Error(tr("'%1' is no color such as red or #c03020").arg(value));
    const auto nearness = std::make_shared<Nearness>(shades);
    return [nearness](const IFile &file, const DuplicateIndex &) {
        const PropertyListT<Thread> *threads = file.threadsProp();
        for (int i = 0; i < threads->count(); ++i) {
            const QColor color = threads->at(i)->color();
            if (color.isValid() && nearness->isNear(color))
                return true;
        }
        return false;
    };
}
