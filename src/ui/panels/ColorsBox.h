#pragma once

#include "properties/changes/Observer.h"
#include "widgets/controls/GSideBarBox.h"

#include <QList>
#include <QSharedPointer>

class IFile;
class QTreeWidget;

/** The panel of the thread colours of the one selected design. */
class ColorsBox : public GSideBarBox, public Observer
{
    Q_OBJECT

public:
    explicit ColorsBox(QWidget *parent);

    void setFiles(const QList<QSharedPointer<IFile>> &files);
    void observedObjectChanged(const Observable *observable) override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void initTree();
    void addThreads();
    void fitColumns();

    QSharedPointer<IFile> m_file;
    QTreeWidget *m_tree;
};
