#include "app/frame/GRecentFileProvider.h"

#include "app/frame/GAction.h"
#include "base/GSettings.h"

#include <algorithm>
#include <iterator>
#include <QFileInfo>
#include <QMenu>

QList<GRecentFileProvider *> GRecentFileProvider::mRecentFileProviders;

GRecentFileProvider::GRecentFileProvider(QObject *parent) : QObject(parent)
{
    for (int i = 0; i < GSettings::MaxRecentFiles; ++i) {
        auto *action = new GAction(this);
        action->setVisible(false);
        connect(action, &QAction::triggered, this, &GRecentFileProvider::openRecentFile);
        m_actions.append(action);
    }
    mRecentFileProviders.append(this);
}

GRecentFileProvider::~GRecentFileProvider()
{
    mRecentFileProviders.removeOne(this);
}

QString GRecentFileProvider::lastFileName() const
{
    return GSettings().lastFileName();
}

QList<GAction *> GRecentFileProvider::recentFileActions() const
{
    return m_actions;
}

void GRecentFileProvider::openLastFile()
{
    const QStringList names = removeNonExistingFiles(GSettings().recentFiles());
    if (!names.isEmpty())
        emit loadFile(names.first());
}

void GRecentFileProvider::openRecentFile()
{
    if (const auto *action = qobject_cast<QAction *>(sender()))
        emit loadFile(action->data().toString());
}

void GRecentFileProvider::addToRecentFiles(const QString &name)
{
    if (!QFileInfo::exists(name))
        return;
    GSettings settings;
    settings.addRecentFile(name);
    const QStringList names = settings.recentFiles();
    for (GRecentFileProvider *provider : std::as_const(mRecentFileProviders))
        provider->updateRecentFileActions(names);
    emit fileListRefreshed();
}

void GRecentFileProvider::updateRecentFileActions(const QStringList &names)
{
    for (int i = 0; i < m_actions.size(); ++i) {
        GAction *action = m_actions.at(i);
        action->setVisible(i < names.size());
        if (i >= names.size())
            continue;
        action->setText(QStringLiteral("&%1 %2").arg(i + 1).arg(QFileInfo(names.at(i)).fileName()));
        action->setData(names.at(i));
    }
}

void GRecentFileProvider::addRecentMenuActions(QMenu *menu)
{
    for (GAction *action : std::as_const(m_actions))
        menu->addAction(action);
    updateRecentFileActions(GSettings().recentFiles());
}

QStringList GRecentFileProvider::removeNonExistingFiles(const QStringList &names)
{
    QStringList existing;
    std::copy_if(names.cbegin(), names.cend(), std::back_inserter(existing),
                 [](const QString &name) { return QFileInfo::exists(name); });
    return existing;
}
