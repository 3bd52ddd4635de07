#include "ui/EmptyHint.h"

#include "catalogue/models/IFilterModel.h"
#include "catalogue/records/Project.h"

#include <algorithm>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int Margin = 24;
constexpr int Gap = 16;
constexpr int WidestText = 420;

} // namespace

EmptyHint::EmptyHint(QWidget *sheet, const QSharedPointer<Project> &project, IFilterModel *filter)
    : QWidget(sheet), m_project(project), m_filter(filter)
{
    createWidgets();
    sheet->installEventFilter(this);
    m_project->filesProp()->registerObserver(this);
    m_project->smartFoldersProp()->registerObserver(this);
    connect(m_filter, &IFilterModel::filterChanged, this, &EmptyHint::refresh);
    connect(m_filter, &IFilterModel::directoryFilterChanged, this, &EmptyHint::refresh);
    refresh();
}

void EmptyHint::createWidgets()
{
    m_label = new QLabel;
    m_label->setAlignment(Qt::AlignCenter);
    m_label->setWordWrap(true);
    m_label->setMaximumWidth(WidestText);
    m_button = new QPushButton;
    // Return presses it, too.
    m_button->setAutoDefault(true);
    connect(m_button, &QPushButton::clicked, this, &EmptyHint::onButtonClicked);

    auto *row = new QHBoxLayout;
    row->addWidget(m_label, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Gap);
    layout->addStretch();
    layout->addLayout(row);
    layout->addWidget(m_button, 0, Qt::AlignHCenter);
    layout->addStretch();
}

void EmptyHint::setSuspended(bool suspended)
{
    m_suspended = suspended;
    refresh();
}

void EmptyHint::observedObjectChanged(const Observable *)
{
    refresh();
}

EmptyHint::Reason EmptyHint::reason() const
{
    if (!m_filter->filteredFiles().isEmpty())
        return Reason::None;
    const auto files = m_project->files();
    if (files.isEmpty())
        return m_project->smartFolders().isEmpty() ? Reason::NoFolders : Reason::NoDesigns;
    const QString folder = m_filter->directoryFilter();
    const auto isInFolder = [&folder](const QSharedPointer<IFile> &file) {
        return file->absoluteFilePath().startsWith(folder);
    };
    return std::any_of(files.begin(), files.end(), isInFolder) ? Reason::NoMatch
                                                               : Reason::NoDesignsInFolder;
}

QString EmptyHint::text() const
{
    switch (m_reason) {
    case Reason::None:
        break;
    case Reason::NoFolders:
        return tr("Add a folder with embroidery designs to begin.");
    case Reason::NoDesigns:
        return tr("No embroidery designs were found in your folders. Add another folder, or put "
                  "designs there and rescan.");
    case Reason::NoDesignsInFolder:
        return tr("No embroidery designs were found in this folder.");
    case Reason::NoMatch:
        return tr("No design matches the filter.");
    }
    return QString();
}

void EmptyHint::refresh()
{
    m_reason = reason();
    const bool wantsFolder = m_reason == Reason::NoFolders || m_reason == Reason::NoDesigns;
    m_label->setText(text());
    m_button->setText(wantsFolder ? tr("Add folder...") : tr("Show all designs"));
    setVisible(m_reason != Reason::None && !m_suspended);
}

void EmptyHint::onButtonClicked()
{
    if (m_reason == Reason::NoFolders || m_reason == Reason::NoDesigns)
        emit addFolderRequested();
    else
        emit allDesignsRequested();
}

bool EmptyHint::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}
