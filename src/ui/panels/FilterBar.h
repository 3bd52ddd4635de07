#pragma once

#include <memory>
#include <QList>
#include <QSharedPointer>
#include <QWidget>

class IFilterModel;
class Project;
class QToolButton;
class SearchMessage;
class Ui_FilterBarUI;

/**
 * The strip above the grid: file type, largest design size, search text and favourites. Each
 * change goes straight to the filter. Too narrow for one row, the size fields move to a second one.
 */
class FilterBar : public QWidget
{
    Q_OBJECT

public:
    /** \a filter is not owned. */
    FilterBar(QWidget *parent, const QSharedPointer<Project> &project, IFilterModel *filter);
    ~FilterBar() override;

    QSize minimumSizeHint() const override;

public slots:
    void setTypeFilter(const QString &text);
    void setSizeFilter();
    void setSearchTextFilter(const QString &text);
    void updateSizeWidgets();
    void updateFileTypes();
    /** Gives the keys to the search field. */
    void search();
    /** Lets every design pass that the bar has held back. */
    void clear();

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void initWidgets();
    void connectWidgets();
    void createSearchAids(const QSharedPointer<Project> &project);
    void showSearch(const QString &text);
    void selectRemark();
    void addFieldToSearch(const QString &name);
    QList<QToolButton *> buttons() const;
    void createShortcut();
    int minimumWidthOfSearchRow() const;
    int widthOfOneRow() const;
    void setTwoRows(bool twoRows);
    void updateTabOrder();

    std::unique_ptr<Ui_FilterBarUI> m_ui;
    IFilterModel *m_filter;
    SearchMessage *m_message = nullptr;
    /** Millimetres in one of the units that the user types. */
    double m_sizeUnitFactor = 1.0;
    bool m_twoRows = false;
};
