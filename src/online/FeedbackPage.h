#pragma once

#include <QWidget>

class QVBoxLayout;

/** Frame of a page of the feedback dialog: a picture on the left, the fields on the right. */
class FeedbackPage : public QWidget
{
    Q_OBJECT

public:
    /** @param image name of a picture among the resources for feedback, "bug.svg" */
    FeedbackPage(QWidget *parent, const QString &image);

    /** Takes the fields. */
    QVBoxLayout *fields() const { return m_fields; }

private:
    QPixmap picture(const QString &image) const;

    QVBoxLayout *m_fields;
};
