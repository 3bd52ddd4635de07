#include "ui/BackupsDialog.h"

#include "base/GDebug.h"
#include "base/GTranslationLoader.h"
#include "widgets/controls/DesktopInteraction.h"
#include "widgets/controls/GMessageBox.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr QSize InitialSize(640, 400);
constexpr std::chrono::milliseconds LookInterval(30);
constexpr WorkerLimits Limits{2, qint64(512) << 20};
// How much larger a catalogue is than its backup, at most.
constexpr int Expansion = 20;

enum Column { DateColumn, DesignsColumn, TaggedColumn, NotesColumn, ColumnCount };

} // namespace

BackupsDialog::BackupsDialog(const BackupFolder &backups, QWidget *parent)
    : QDialog(parent, Qt::Sheet), m_entries(backups.entries()), m_folder(backups.path()),
      m_list(new QTreeWidget(this))
{
    setWindowTitle(tr("Backups"));
    auto *layout = new QVBoxLayout(this);
    auto *label = new QLabel(
        m_entries.isEmpty()
            ? tr("There are no backups yet. Before the first change of a day the catalogue is "
                 "kept here as it was.")
            : tr("The catalogue as it was before the first change of a day, or when something "
                 "else took its place. What is there now is kept when you restore one."),
        this);
    label->setWordWrap(true);
    layout->addWidget(label);
    layout->addWidget(m_list);
    createList();
    fill();
    createButtons();
    resize(InitialSize);
    m_list->setFocus();
    connect(&m_timer, &QTimer::timeout, this, &BackupsDialog::takeCounted);
    count();
}

BackupsDialog::~BackupsDialog() = default;

qint64 BackupsDialog::Job::memoryNeed() const
{
    return size * Expansion;
}

QString BackupsDialog::title(const BackupName &name)
{
    const QLocale locale = GTranslationLoader::instance()->locale();
    const QString date = locale.toString(name.date, QLocale::LongFormat);
    return name.isOfDay() ? date
                          : tr("%1, %2", "date and time")
                                .arg(date, locale.toString(name.time, QLocale::ShortFormat));
}

void BackupsDialog::createList()
{
    m_list->setHeaderLabels({tr("Date"), tr("Designs"), tr("Tagged"), tr("Notes")});
    m_list->headerItem()->setToolTip(TaggedColumn, tr("Designs with at least one tag"));
    m_list->headerItem()->setToolTip(NotesColumn, tr("Designs with notes"));
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAccessibleName(windowTitle());
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(DateColumn, QHeaderView::Stretch);
    for (int column = DesignsColumn; column < ColumnCount; ++column)
        m_list->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &BackupsDialog::updateButtons);
    connect(m_list, &QTreeWidget::itemActivated, this, &BackupsDialog::restore);
}

void BackupsDialog::fill()
{
    for (const BackupFolder::Entry &entry : qAsConst(m_entries)) {
        auto *item = new QTreeWidgetItem(m_list, {title(entry.name)});
        for (int column = DesignsColumn; column < ColumnCount; ++column) {
            item->setText(column, QStringLiteral("…"));
            item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
        }
    }
}

void BackupsDialog::createButtons()
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_restore = buttons->addButton(tr("Restore..."), QDialogButtonBox::ActionRole);
    m_restore->setObjectName(QStringLiteral("restore"));
    connect(m_restore, &QPushButton::clicked, this, &BackupsDialog::restore);
    if (!m_entries.isEmpty()) {
        QPushButton *reveal = buttons->addButton(DesktopInteraction::revealActionTextString(),
                                                 QDialogButtonBox::ActionRole);
        connect(reveal, &QPushButton::clicked, this,
                [this] { DesktopInteraction::revealInFinder(m_entries.constFirst().path); });
    }
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout()->addWidget(buttons);
    m_list->setCurrentItem(m_list->topLevelItem(0));
    updateButtons();
}

void BackupsDialog::count()
{
    if (m_entries.isEmpty())
        return;
    std::vector<Job> jobs;
    for (const BackupFolder::Entry &entry : qAsConst(m_entries))
        jobs.push_back({entry.path, QFileInfo(entry.path).size()});
    try {
        m_workers = std::make_unique<OrderedWorkers<Job, Result>>(std::move(jobs), &look, Limits);
        m_timer.start(LookInterval);
    } catch (const std::system_error &error) {
        // The numbers are an extra.
        gWarning("BackupsDialog") << error.what();
    }
}

BackupsDialog::Result BackupsDialog::look(const Job &job, const IAbortCheck &abort)
{
    if (abort.abortState() != 0)
        return {};
    try {
        return {BackupSummary::of(BackupFolder::read(job.path))};
    } catch (const std::exception &) {
        return {};
    }
}

void BackupsDialog::takeCounted()
{
    while (m_counted < m_entries.size()) {
        const auto result = m_workers->take(std::chrono::milliseconds(0));
        if (!result)
            return;
        show(m_list->topLevelItem(m_counted++), *result);
    }
    m_timer.stop();
}

void BackupsDialog::show(QTreeWidgetItem *item, const Result &result)
{
    if (!result.summary) {
        item->setDisabled(true);
        item->setText(DesignsColumn, tr("damaged"));
        item->setText(TaggedColumn, QString());
        item->setText(NotesColumn, QString());
        updateButtons();
        return;
    }
    const QLocale locale = GTranslationLoader::instance()->locale();
    item->setText(DesignsColumn, locale.toString(result.summary->designs));
    item->setText(TaggedColumn, locale.toString(result.summary->tagged));
    item->setText(NotesColumn, locale.toString(result.summary->notes));
}

void BackupsDialog::updateButtons()
{
    const QTreeWidgetItem *item = m_list->currentItem();
    m_restore->setEnabled(item && !item->isDisabled());
}

void BackupsDialog::restore()
{
    const int row = m_list->indexOfTopLevelItem(m_list->currentItem());
    if (row < 0 || m_list->currentItem()->isDisabled())
        return;
    const auto answer = GMessageBox::question(
        tr("Do you want to restore this backup?"),
        tr("Tags, notes and stars will be as on %1. What is there now is kept as a backup.")
            .arg(title(m_entries.at(row).name)),
        this);
    if (answer != QMessageBox::Yes)
        return;
    m_chosen = m_entries.at(row).path;
    m_chosenTitle = title(m_entries.at(row).name);
    accept();
}
