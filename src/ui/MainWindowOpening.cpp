// What MainWindow does with files and folders that are opened from outside.

#include "catalogue/models/IFilterModel.h"
#include "ui/CenterView.h"
#include "ui/MainWindow.h"
#include "ui/NoticeBar.h"
#include "ui/PathOpener.h"

#include <QLayout>

void MainWindow::createPathOpener()
{
    m_pathOpener = new PathOpener(this, m_project);
    connect(m_pathOpener, &PathOpener::foldersWanted, this, &MainWindow::addDirectories);
    connect(m_pathOpener, &PathOpener::rescanWanted, this, &MainWindow::rescanDirectories);
    connect(m_pathOpener, &PathOpener::folderToShow, filter(), &IFilterModel::setDirectory);
    connect(m_pathOpener, &PathOpener::designsToShow, m_center, &CenterView::showDesigns);
    connect(m_pathOpener, &PathOpener::remark, this, [this](const QString &text) {
        Notice notice;
        notice.id = QStringLiteral("open");
        notice.text = text;
        m_notices->tell(notice);
        // The grid shall scroll by the height that is left to it.
        centralWidget()->layout()->activate();
    });
}

void MainWindow::showPaths(const QStringList &paths)
{
    m_notices->withdraw(QStringLiteral("open"));
    showRaiseActivateWindow();
    m_pathOpener->open(paths);
}
