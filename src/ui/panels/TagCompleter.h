#pragma once

#include <QCompleter>

class QComboBox;
class QSortFilterProxyModel;

/**
 * Offers the tags that hold what is typed into a box, in whatever case, in a list as wide as
 * they are. It takes no tag for another: "rose" and "Rose" stay two, so that the box adds
 * what stands in it.
 */
class TagCompleter : public QCompleter
{
    Q_OBJECT

public:
    /** Completes the entries of \a box, which owns this. */
    explicit TagCompleter(QComboBox *box);

    QStringList splitPath(const QString &path) const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QSortFilterProxyModel *m_matches;
};
