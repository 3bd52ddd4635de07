#include "catalogue/models/DesignTotals.h"

#include "catalogue/records/Thread.h"

#include <QElapsedTimer>

namespace {

constexpr int SliceMilliseconds = 4;
// Asking for the time costs as much as a few designs.
constexpr int DesignsAtOnce = 64;

} // namespace

DesignTotals::DesignTotals(QObject *parent) : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &DesignTotals::countSlice);
}

void DesignTotals::count(const QList<QSharedPointer<IFile>> &files)
{
    m_files = files;
    m_next = 0;
    m_stitches = 0;
    m_colors.clear();
    m_timer.start(0);
    countSlice();
}

void DesignTotals::countSlice()
{
    QElapsedTimer clock;
    clock.start();
    while (m_next < m_files.size() && clock.elapsed() < SliceMilliseconds) {
        const int end = qMin(m_next + DesignsAtOnce, m_files.size());
        for (; m_next < end; ++m_next)
            add(*m_files.at(m_next));
    }
    if (m_next < m_files.size())
        return;
    m_timer.stop();
    m_files.clear();
    emit counted(m_stitches, m_colors.size());
}

void DesignTotals::add(const IFile &file)
{
    m_stitches += file.stitchCount();
    const PropertyListT<Thread> *threads = file.threadsProp();
    for (int i = 0; i < threads->count(); ++i) {
        const QColor color = threads->at(i)->color();
        if (color.isValid())
            m_colors.insert(color.rgb());
    }
}
