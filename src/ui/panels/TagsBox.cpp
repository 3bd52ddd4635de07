#include "ui/panels/TagsBox.h"

#include "catalogue/models/IFilterModel.h"
#include "catalogue/records/LocaleAwareFunctions.h"
#include "catalogue/records/Project.h"
#include "properties/undo/BulkMacro.h"
#include "ui/panels/TagListWidget.h"
#include "widgets/controls/GExpandingTitle.h"
#include "widgets/controls/GMessageBox.h"

#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int MostNamesShown = 10;

} // namespace

TagsBox::TagsBox(QWidget *parent, const QSharedPointer<Project> &project, IFilterModel *filter)
    : GSideBarBox(tr("Tags"), parent), m_project(project), m_filter(filter), m_controller(project),
      m_tagList(new TagListWidget(this))
{
    setObjectName(QStringLiteral("TagsBox"));
    setExpandable(false);
    createTagList();
    createButtons();
    m_project->allTagsProp()->registerObserver(this);
}

void TagsBox::createTagList()
{
    updateTagListWidget();
    contentLayout()->addWidget(m_tagList);
    connect(m_tagList, &TagListWidget::tagAdded, this, &TagsBox::onTagAdded);
    connect(m_tagList, &TagListWidget::tagRenamed, this, &TagsBox::onTagRenamed);
    connect(m_tagList, &TagListWidget::removeTag, this, &TagsBox::removeTag);
    connect(m_tagList, &TagListWidget::selectedTagChanged, m_filter, &IFilterModel::setTag);
    connect(m_filter, &IFilterModel::tagFilterChanged, m_tagList, &TagListWidget::selectTag);
}

void TagsBox::createButtons()
{
    const auto addButton = [this](const char *icon, const QString &toolTip) {
        const QString path = QStringLiteral(":/icons/%1.svg").arg(QLatin1String(icon));
        return titleBar()->addButton(GIcon(path), toolTip);
    };
    connect(addButton("small_tag", tr("Add tag")), &QToolButton::clicked, m_tagList,
            &TagListWidget::startAddingTag);
    connect(addButton("small_trash", tr("Remove tag")), &QToolButton::clicked, this,
            &TagsBox::removeTag);
    connect(addButton("small_rename", tr("Rename tag")), &QToolButton::clicked, m_tagList,
            &TagListWidget::startRenamingTag);
    connect(addButton("small_clear_alt", tr("Remove all unused tags")), &QToolButton::clicked, this,
            &TagsBox::removeUnusedTags);
    QToolButton *showAll = addButton("small_all", tr("Show all"));
    connect(showAll, &QToolButton::clicked, this, &TagsBox::clearTagFilter);
    setTabOrder(showAll, m_tagList);
}

void TagsBox::observedObjectChanged(const Observable *)
{
    updateTagListWidget();
}

void TagsBox::onTagAdded(const QString &name)
{
    if (checkNewTagName(name))
        m_controller.addTag(name);
    else
        updateTagListWidget();
}

void TagsBox::onTagRenamed(const QString &oldName, const QString &newName)
{
    if (!checkNewTagName(newName)) {
        updateTagListWidget();
        return;
    }
    BulkMacro macro(m_project->undoStack(), tr("rename tag"));
    m_controller.renameTag(oldName, newName);
    if (!m_tagList->isRenamingUnselected())
        m_filter->setTag(newName);
    macro.finish();
}

void TagsBox::removeTag()
{
    const QString tag = m_tagList->commandTag();
    if (tag.isEmpty())
        return;
    const bool isShown = tag == m_tagList->selectedTag();
    const int count = m_controller.filesWithTag(tag).count();
    if (count >= 1) {
        const auto answer = GMessageBox::question(
            tr("This tag is attached to %n files", nullptr, count),
            tr("Deleting the tag will also remove it from these files. Continue?"), window());
        if (answer == QMessageBox::No)
            return;
    }
    BulkMacro macro(m_project->undoStack(), tr("remove tag"));
    m_controller.removeTag(tag);
    if (isShown)
        m_filter->setTag(QString());
    macro.finish();
}

void TagsBox::removeUnusedTags()
{
    QStringList names = m_controller.unusedTags();
    if (names.isEmpty())
        return;
    const int count = names.count();
    if (count > MostNamesShown) {
        names = names.mid(0, MostNamesShown - 1);
        names.append(QStringLiteral("..."));
    }
    const auto answer = GMessageBox::question(tr("Delete %n unused tags?", nullptr, count),
                                              names.join(QLatin1Char('\n')), window());
    if (answer == QMessageBox::No)
        return;
    m_controller.removeUnusedTagsFromGlobalList();
    m_filter->setTag(QString());
}

void TagsBox::clearTagFilter()
{
    m_filter->setTag(QString());
}

void TagsBox::updateTagListWidget()
{
    QStringList tags = m_project->allTags();
    LocaleAwareFunctions::sort(tags);
    m_tagList->setTags(tags);
}

bool TagsBox::checkNewTagName(const QString &name)
{
    if (name.isEmpty()) {
        GMessageBox::critical(tr("Error"), tr("Empty tag name not allowed!"), window());
        return false;
    }
    if (m_project->allTags().contains(name)) {
        GMessageBox::critical(tr("Error"), tr("Tag with this name already exists!"), window());
        return false;
    }
    return true;
}
