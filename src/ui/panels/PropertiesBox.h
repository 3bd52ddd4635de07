#pragma once

#include "properties/changes/Observer.h"
#include "properties/descriptions/PropertyDescriptionValues.h"
#include "widgets/controls/GSideBarBox.h"

#include <QList>
#include <QSharedPointer>

class ElidedLabel;
class IFile;
class Project;
class PropertyStringMultilineEdit;
class QGridLayout;
class QLabel;
class QScrollArea;
class TagWidget;

/** The panel of the selected designs: facts of the one, notes and tags of all of them. */
class PropertiesBox : public GSideBarBox, public Observer
{
    Q_OBJECT

public:
    PropertiesBox(QWidget *parent, const QSharedPointer<Project> &project);

    void setFiles(const QList<QSharedPointer<IFile>> &files);
    void observedObjectChanged(const Observable *observable) override;

public slots:
    /** Gives the keys to the field for a new tag. */
    void editTags();
    void scrollToBottomDelayed();
    void scrollToBottom();

protected:
    void changeEvent(QEvent *event) override;

private:
    void initPanel();
    void addSimpleProperties();
    void addNotesProperty();
    void addTagsField();
    QLabel *addSimpleProperty(const QString &text, ElidedLabel *value);
    QVBoxLayout *addGroup(const QString &caption);
    QList<const Observable *> observedProperties() const;
    void showSelectionCount();
    void handOverNotesAndTags();
    void updateRows(const Observable *observable);
    void updateNameRow();
    void placeFileName();

    QSharedPointer<Project> m_project;
    QList<QSharedPointer<IFile>> m_files;
    QScrollArea *m_scrollArea;
    QWidget *m_scrollWidget;
    QVBoxLayout *m_mainLayout;
    QGridLayout *m_grid;
    int m_rows = 0; ///< of the facts in the grid
    ElidedLabel *m_fileNameValue;
    ElidedLabel *m_nameValue;
    ElidedLabel *m_designSizeValue;
    ElidedLabel *m_stitchCountValue;
    ElidedLabel *m_colorCountValue;
    QLabel *m_fileNameCaption = nullptr;
    QLabel *m_nameCaption = nullptr;
    QLabel *m_nameRoom = nullptr; ///< a row that is there while that of the name is not
    TagWidget *m_tagWidget = nullptr;
    PropertyDescriptionString m_notesDescription;
    PropertyStringMultilineEdit *m_notesEdit = nullptr;
};
