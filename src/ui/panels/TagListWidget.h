#pragma once

#include "widgets/style/GIcon.h"

#include <QListView>
#include <QTimer>

class QStandardItem;
class QStandardItemModel;

/**
 * All tags as a list below the entry that stands for no tag. Tags are added and renamed in place;
 * a fading highlight shows where a new one went.
 */
class TagListWidget : public QListView
{
    Q_OBJECT

public:
    explicit TagListWidget(QWidget *parent = nullptr);

    /** Shows \a tags in this order; the selection stays on its tag as far as that is there. */
    void setTags(const QStringList &tags);

    /** Empty when no tag is selected. */
    QString selectedTag() const;

    /** The tag that a command is about: the one that a context menu is open for, or selected. */
    QString commandTag() const;

    /** Whether what is being renamed is not the selected tag. */
    bool isRenamingUnselected() const { return m_renamingUnselected; }

    /** Selects the tag, or the entry for all files when there is no such tag. */
    void selectTag(const QString &tag);

    void highlightTag(const QString &tag);

public slots:
    void startAddingTag();
    void startRenamingTag();

signals:
    void tagAdded(const QString &name);
    void tagRenamed(const QString &oldName, const QString &newName);
    /** Empty for the entry that stands for all files. */
    void selectedTagChanged(const QString &tag);
    /** The user wants the tag of commandTag() removed. */
    void removeTag();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void onItemSelectionChanged();
    void onItemChanged(QStandardItem *item);
    void onEditorClosed();
    void animateItems();
    void finishAdding(const QString &text);
    void finishRenaming(const QString &text);
    QStandardItem *findItem(const QString &tag) const;
    QStandardItem *selectedItem() const;
    QStandardItem *createTagItem(const QString &text) const;
    void scrollIntoView(const QStandardItem *item);
    void setItemBackground(QStandardItem *item, const QVariant &background);

    QStandardItemModel *m_model;
    GIcon m_tagIcon;
    GIcon m_allIcon;
    QStandardItem *m_allItem = nullptr;
    QStandardItem *m_addedItem = nullptr;
    QString m_editedOldName;
    QString m_menuTag;         ///< empty while no context menu is open
    QString m_selectedOldName; ///< while a new name for the selected tag is being told
    bool m_renamingUnselected = false;
    QList<QStandardItem *> m_highlightedItems;
    QTimer m_fadeTimer;
    bool m_changingItems = false;
};
