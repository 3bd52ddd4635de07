#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

/** Shows how far the search for duplicates is, and lets the user end it. */
class SearchPage : public QWidget
{
    Q_OBJECT

public:
    explicit SearchPage(QWidget *parent);

    /** @param count how many files there are to be read as far as is known; 0 for not yet */
    void showProgress(int read, int count);

signals:
    void cancelled();

private:
    QLabel *m_label;
    QProgressBar *m_bar;
    QPushButton *m_cancel;
};
