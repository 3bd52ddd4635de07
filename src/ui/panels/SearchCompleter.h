#pragma once

#include "catalogue/query/QueryCompletion.h"

#include <functional>
#include <QCompleter>

class QLineEdit;
class QListView;
class QStringListModel;

/**
 * Lets the Tab key complete names of fields and tags in the search field. Of several that fit,
 * a list is shown, which narrows as the user types on. Where nothing fits, Tab moves the focus.
 */
class SearchCompleter : public QCompleter
{
    Q_OBJECT

public:
    /** @param tags is asked for the tags whenever Tab is pressed */
    SearchCompleter(QLineEdit *field, const std::function<QStringList()> &tags);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QueryCompletion completion() const;
    /** False when there is nothing to complete. */
    bool complete();
    void showCandidates(const QueryCompletion &completion);
    void narrowCandidates();
    void choose(const QString &shown);
    void replace(const QueryCompletion &completion, QString text);

    QLineEdit *m_field;
    std::function<QStringList()> m_tags;
    QStringListModel *m_candidates;
    QListView *m_list;
};
