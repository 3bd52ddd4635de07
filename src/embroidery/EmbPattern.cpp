#include "embroidery/EmbPattern.h"

#include <QRandomGenerator>

namespace Embroidery {

namespace {

QSharedPointer<EmbThread> grayThread(int gray, const QString &description)
{
    return QSharedPointer<EmbThread>::create(gray & 255, gray & 255, gray & 255, description,
                                             QString(), QString(), QString());
}

} // namespace

QSharedPointer<EmbPattern> EmbPattern::create()
{
    return QSharedPointer<EmbPattern>(new EmbPattern);
}

EmbPattern::EmbPattern() : m_points(QSharedPointer<DataPoints>::create()) {}

bool EmbPattern::isEmpty() const
{
    return m_points->isEmpty() && m_threads.isEmpty();
}

void EmbPattern::setThreadList(const QList<QSharedPointer<EmbThread>> &list)
{
    if (!m_threads.isSharedWith(list))
        m_threads = list;
}

void EmbPattern::addThread(const QSharedPointer<EmbThread> &thread)
{
    m_threads.append(thread);
}

QSharedPointer<EmbThread> EmbPattern::threadForIndex(int i)
{
    while (m_threads.size() <= i)
        m_threads.append(getRandomThread());
    return m_threads.at(i);
}

QSharedPointer<EmbThread> EmbPattern::getRandomThread() const
{
    return grayThread(QRandomGenerator64::global()->bounded(31, 223), QStringLiteral("Random"));
}

int EmbPattern::lastColorIndex() const
{
    int color = -1;
    bool stitching = false;
    for (const int data : m_points->commands()) {
        const bool stitch = (data & 0xFF) == StitchCommandStitch;
        if (stitch && !stitching && color == -1)
            color = 0;
        else if (isColorChange(data))
            ++color;
        stitching = stitch;
    }
    return color;
}

int EmbPattern::getThreadCount() const
{
    return lastColorIndex() + 1;
}

void EmbPattern::ensureAllThreadsSetup()
{
    const int present = m_threads.size();
    const int missing = getThreadCount() - present;
    for (int k = 0; k < missing; ++k) {
        const qint64 gray = (Q_INT64_C(196) * (present + k)) / missing + 32;
        m_threads.append(grayThread(static_cast<int>(gray & 255), QString()));
    }
}

QList<StitchBlock> EmbPattern::asStitchBlock()
{
    threadForIndex(0);
    QList<StitchBlock> blocks;
    QPointF position(0, 0);
    const QVector<int> &commands = m_points->commands();
    const auto isStitch = [&commands](int i) {
        return (commands.at(i) & 0xFF) == StitchCommandStitch;
    };
    const int n = size();
    int color = -1;
    for (int i = 0; i < n;) {
        for (; i < n && !isStitch(i); ++i) {
            if ((commands.at(i) & 0xFF) == StitchCommandMove)
                position = m_points->pos(i);
            else if (isColorChange(commands.at(i)))
                ++color;
        }
        if (color == -1)
            color = 0;
        QVector<QPointF> run{position};
        for (; i < n && isStitch(i); ++i) {
            position = m_points->pos(i);
            run.append(position);
        }
        if (run.size() > 1)
            blocks.append(StitchBlock{run, threadForIndex(color)});
    }
    return blocks;
}

void EmbPattern::setMetadata(const QString &key, const QString &value)
{
    if (value.isEmpty())
        m_metadata.remove(key);
    else
        m_metadata.insert(key, value);
}

QString EmbPattern::metadata(const QString &key, const QString &defaultValue) const
{
    return m_metadata.value(key, defaultValue);
}

} // namespace Embroidery
