#pragma once

#include "catalogue/query/QueryRemark.h"

#include <optional>
#include <QLabel>

class QLineEdit;

/** The line under the search field that says what is wrong with the text; hidden while nothing is.
 */
class SearchMessage : public QLabel
{
    Q_OBJECT

public:
    explicit SearchMessage(QWidget *parent = nullptr);

    /** Shows the remark below @p field and tells it to those who can't see it. */
    void setRemark(const std::optional<QueryRemark> &remark, QLineEdit *field);

    /** How far from its left edge the text begins, in pixels. */
    void setTextIndent(int indent);

protected:
    void changeEvent(QEvent *event) override;

private:
    void updateColor();

    QueryRemark::Kind m_kind = QueryRemark::Hint;
};
