#include "ui/ScanReportDialog.h"

#include "catalogue/sync/ScanReport.h"
#include "widgets/controls/DesktopInteraction.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr QSize InitialSize(720, 420);
constexpr int PathRole = Qt::UserRole;
constexpr int MostOpen = 200; // files of a section that is open from the start

enum Column { NameColumn, RemarkColumn };

/** File names may hold what would break the line. */
QString singleLine(QString text)
{
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control)
            c = QLatin1Char(' ');
    }
    return text;
}

void addFile(QTreeWidgetItem *section, const QString &path, const QString &remark)
{
    auto *item = new QTreeWidgetItem(section);
    item->setText(NameColumn, singleLine(QDir::toNativeSeparators(path)));
    item->setText(RemarkColumn, singleLine(remark));
    item->setToolTip(NameColumn, item->text(NameColumn).toHtmlEscaped());
    item->setToolTip(RemarkColumn, item->text(RemarkColumn).toHtmlEscaped());
    item->setData(NameColumn, PathRole, path);
}

} // namespace

ScanReportDialog::ScanReportDialog(const ScanReport &report, QWidget *parent)
    : QDialog(parent, Qt::Sheet), m_list(new QTreeWidget(this))
{
    setWindowTitle(tr("Result of the scan"));
    m_list->setHeaderLabels({tr("File"), tr("Remark")});
    m_list->setUniformRowHeights(true);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setAccessibleName(windowTitle());
    m_list->header()->setStretchLastSection(true);
    fill(report);
    m_list->header()->resizeSection(NameColumn, InitialSize.width() * 2 / 3);
    connect(m_list, &QTreeWidget::itemActivated, this, [](const QTreeWidgetItem *item) {
        const QString path = item->data(NameColumn, PathRole).toString();
        if (!path.isEmpty())
            DesktopInteraction::revealInFinder(path);
    });

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton *copy = buttons->addButton(tr("Copy list"), QDialogButtonBox::ActionRole);
    copy->setObjectName(QStringLiteral("copy"));
    connect(copy, &QPushButton::clicked, this, &ScanReportDialog::copyAll);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
    resize(InitialSize);
    m_list->setFocus();
}

/** What asks for something to be done comes first. */
void ScanReportDialog::fill(const ScanReport &report)
{
    if (QTreeWidgetItem *section = addSection(tr("Not readable"), report.unreadable.size())) {
        for (const UnreadableFile &file : report.unreadable)
            addFile(section, file.path, file.reason);
    }
    if (QTreeWidgetItem *section = addSection(tr("Left out"), report.skipped.size())) {
        for (const SkippedEntry &entry : report.skipped)
            addFile(section, entry.path,
                    entry.kind == SkippedEntry::UndecodableName ? tr("The name is not valid text.")
                                                                : entry.reason);
    }
    addSection(tr("Not read yet"), report.unreached);
    addSection(tr("New"), report.added);
    addSection(tr("Changed"), report.changed);
    if (QTreeWidgetItem *section = addSection(tr("Moved"), report.moved.size())) {
        for (const ScanReport::Move &move : report.moved)
            addFile(section, move.to, tr("was %1").arg(QDir::toNativeSeparators(move.from)));
    }
    addSection(tr("Gone"), report.removed);
    m_list->setCurrentItem(m_list->topLevelItem(0));
}

/** Null when there is nothing to list. */
QTreeWidgetItem *ScanReportDialog::addSection(const QString &title, int count)
{
    if (count == 0)
        return nullptr;
    auto *section = new QTreeWidgetItem(m_list);
    section->setText(
        NameColumn,
        tr("%1 (%2)", "section and number of files").arg(title, QLocale().toString(count)));
    QFont font = m_list->font();
    font.setBold(true);
    section->setFont(NameColumn, font);
    section->setFirstColumnSpanned(true);
    section->setExpanded(count <= MostOpen);
    return section;
}

void ScanReportDialog::addSection(const QString &title, const QStringList &paths)
{
    QTreeWidgetItem *section = addSection(title, paths.size());
    for (const QString &path : paths)
        addFile(section, path, QString());
}

void ScanReportDialog::copyAll() const
{
    QStringList lines;
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *section = m_list->topLevelItem(i);
        lines.append(section->text(NameColumn));
        for (int j = 0; j < section->childCount(); ++j) {
            const QTreeWidgetItem *file = section->child(j);
            const QString remark = file->text(RemarkColumn);
            lines.append(QLatin1Char('\t') + file->text(NameColumn) +
                         (remark.isEmpty() ? QString() : QLatin1Char('\t') + remark));
        }
    }
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')) + QLatin1Char('\n'));
}
