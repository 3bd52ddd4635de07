#pragma once

#include "preview/drawing/SewingOrder.h"

#include <optional>
#include <QSharedPointer>
#include <QSizeF>
#include <QWidget>

class ElidedLabel;
class QFormLayout;
class QLabel;
class ThreadTable;

/** What there is to know of the design beside its picture: its name, facts and threads. */
class DesignFactsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit DesignFactsPanel(QWidget *parent = nullptr);

    void setFileName(const QString &name);
    /** Null while there is no design to tell of. @param hoop none where no hoop fits */
    void setDesign(const QSharedPointer<const SewingOrder> &order,
                   const std::optional<QSizeF> &hoop, bool imperial);
    /** Says so where the true size is a guess. */
    void setTrueSizeKnown(bool known);

    ThreadTable *threads() const { return m_threads; }
    /** The facts in one line, for whoever cannot see the picture. */
    QString summary() const;

private:
    QLabel *addFact(const QString &caption);

    ElidedLabel *m_fileName;
    QFormLayout *m_facts;
    QLabel *m_size;
    QLabel *m_hoop;
    QLabel *m_stitches;
    QLabel *m_colors;
    QLabel *m_length;
    ThreadTable *m_threads;
    QLabel *m_note;
};
