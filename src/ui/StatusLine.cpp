#include "ui/StatusLine.h"

#include "base/GTranslationLoader.h"
#include "catalogue/models/DesignTotals.h"
#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/models/ISelectionModel.h"
#include "widgets/controls/ActivityList.h"
#include "widgets/controls/ScreenReader.h"

#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QSlider>
#include <utility>

namespace {

constexpr int RecountAfter = 80; // milliseconds
constexpr int ZoomWidth = 110;
constexpr int Margin = 6;

template <class Number>
QString text(Number value)
{
    return GTranslationLoader::instance()->locale().toString(value);
}

// What stands for the plural in the choice of words; numbers beyond are all alike.
int pluralOf(qint64 value)
{
    constexpr int Many = 1000;
    return int(value < Many ? value : Many + value % Many);
}

} // namespace

StatusLine::StatusLine(QWidget *parent, FilterSelectionModel *model, ActivityList *activities)
    : QStatusBar(parent), m_model(model), m_totals(new DesignTotals(this)),
      m_text(new QLabel(this)), m_activity(new QLabel(this)),
      m_zoom(new QSlider(Qt::Horizontal, this)), m_percent(new QLabel(this))
{
    setSizeGripEnabled(false);
    m_text->setContentsMargins(Margin, 0, Margin, 0);
    m_text->setToolTip(tr("Stitches and colors are those of the selected designs or, when none "
                          "is selected, of all that are shown."));
    m_activity->setTextFormat(Qt::PlainText);
    addWidget(m_text, 1);
    addPermanentWidget(m_activity);
    createZoom();
    m_recount.setSingleShot(true);
    m_recount.setInterval(RecountAfter);
    connect(&m_recount, &QTimer::timeout, this, &StatusLine::count);
    connect(m_totals, &DesignTotals::counted, this, &StatusLine::showCounted);
    connect(m_model->filter(), &IFilterModel::filterChanged, this, &StatusLine::designsChanged);
    connect(m_model->selection(), &ISelectionModel::selectionChanged, this,
            &StatusLine::designsChanged);
    connect(activities, &ActivityList::changed, this, &StatusLine::showActivity);
    showActivity(activities->latest());
    designsChanged();
}

void StatusLine::createZoom()
{
    m_zoom->setFixedWidth(ZoomWidth);
    m_zoom->setPageStep(1);
    m_zoom->setAccessibleName(tr("Zoom"));
    m_zoom->setToolTip(tr("Zoom"));
    m_percent->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_percent->setMinimumWidth(m_percent->fontMetrics().horizontalAdvance(tr("%1%").arg(1000)));
    m_percent->setContentsMargins(0, 0, Margin, 0);
    addPermanentWidget(m_zoom);
    addPermanentWidget(m_percent);
    connect(m_zoom, &QSlider::valueChanged, this, &StatusLine::zoomStepChosen);
}

void StatusLine::setZoomSteps(int count)
{
    const QSignalBlocker blocker(m_zoom);
    m_zoom->setRange(0, count - 1);
}

void StatusLine::showZoom(int percent, int step)
{
    const QSignalBlocker blocker(m_zoom);
    m_zoom->setValue(step);
    m_percent->setText(tr("%1%").arg(text(percent)));
}

void StatusLine::showActivity(const QString &text)
{
    m_activity->setText(text);
    // What it tells of may keep the event loop from coming to it.
    m_activity->repaint();
}

void StatusLine::designsChanged()
{
    m_shownCount = m_model->filter()->filteredFiles().size();
    m_selected = m_model->selection()->selectedFiles();
    showText();
    refresh();
}

void StatusLine::refresh()
{
    m_recount.start();
}

void StatusLine::count()
{
    announceCounts();
    m_totals->count(m_selected.isEmpty() ? m_model->filter()->filteredFiles() : m_selected);
}

void StatusLine::showCounted(qint64 stitches, int colors)
{
    m_stitches = stitches;
    m_colors = colors;
    showText();
}

QString StatusLine::shownText() const
{
    return tr("%1 designs", nullptr, m_shownCount).arg(text(m_shownCount));
}

QString StatusLine::selectedText() const
{
    return tr("%1 selected", nullptr, m_selected.size()).arg(text(m_selected.size()));
}

void StatusLine::announceCounts()
{
    QStringList changes;
    if (std::exchange(m_announcedCount, m_shownCount) != m_shownCount)
        changes.append(shownText());
    if (std::exchange(m_announcedSelected, m_selected.size()) != m_selected.size())
        changes.append(selectedText());
    if (!changes.isEmpty())
        ScreenReader::say(window(), changes.join(QStringLiteral(", ")));
}

void StatusLine::showText()
{
    QStringList parts{shownText()};
    if (!m_selected.isEmpty())
        parts.append(selectedText());
    parts.append(tr("%1 stitches", nullptr, pluralOf(m_stitches)).arg(text(m_stitches)));
    parts.append(tr("%1 colors", nullptr, m_colors).arg(text(m_colors)));
    m_text->setText(parts.join(QStringLiteral(" · ")));
}
