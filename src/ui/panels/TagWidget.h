#pragma once

#include "properties/changes/ManyObservables.h"
#include "properties/changes/Observer.h"

#include <functional>
#include <QFrame>
#include <QHash>
#include <QList>
#include <QSharedPointer>

class FlowLayout;
class Project;
class PropertyStringList;
class QComboBox;
class QPushButton;
class QToolButton;
class TagLabel;

/**
 * The tags of the selected files as chips, with a field that adds one to all of them. A change
 * is one undo step, however many files there are. Of many tags the first are shown, and more
 * on demand.
 */
class TagWidget : public QFrame, public Observer
{
    Q_OBJECT

public:
    TagWidget(const QSharedPointer<Project> &project, QWidget *parent);

    /** The tags to choose from; not owned. */
    void setAllTagsList(PropertyStringList *allTagsList);

    /** The tags of each selected file; not owned, to be replaced before they die. */
    void setTagLists(const QList<PropertyStringList *> &tagLists);

    /** Gives the keys to the field for a new tag. */
    void editTags();

    /** What ensureVisible() is about. */
    QWidget *input() const { return m_input; }

    void refreshProperties();
    void observedObjectChanged(const Observable *observable) override;

public slots:
    void addTag(const QString &text);
    void addPressed();
    void updateAddButtonState(const QString &text);
    void removeTag(TagLabel *label);

signals:
    /** The field for a new tag should be scrolled into view. */
    void ensureVisible();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createMoreButton();
    void createInput();
    void changeInBulk(const QString &text, const std::function<void()> &change);
    void setOnAll(const QString &tag);
    void addTagToTagLists(const QString &tag);
    void addTagToAllTagsList(const QString &tag);
    void removeTagFromLists(const QString &tag);
    void updateAllTagsListInComboBox();
    void updateDisplayedTags();
    void showMoreTags();
    void scheduleDisplayedTags();
    QHash<QString, int> createTagHistogram() const;
    TagLabel *createNewTagLabel();

    FlowLayout *m_flowLayout;
    QToolButton *m_moreButton;
    QWidget *m_input;
    QComboBox *m_comboBox;
    QPushButton *m_addButton;
    PropertyStringList *m_allTagsList = nullptr;
    QList<PropertyStringList *> m_tagLists;
    ManyObservables m_observedTagLists{this};
    QSharedPointer<Project> m_project;
    QList<TagLabel *> m_tagLabels;
    int m_mostChips;
    bool m_bulkChangeActive = false;
    bool m_displayPending = false;
};
