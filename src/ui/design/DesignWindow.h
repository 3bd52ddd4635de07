#pragma once

#include "catalogue/records/IFile.h"
#include "ui/design/DesignReader.h"

#include <optional>
#include <QList>
#include <QSharedPointer>
#include <QSizeF>
#include <QTimer>
#include <QWidget>

class DesignFactsPanel;
class DesignLoader;
class DesignToolBar;
class DesignView;
class IFilterModel;
class Playback;
class PlaybackBar;
class RememberedValues;

/**
 * A window of its own in which one design is looked at closely: in any size, in its
 * hoop, thread by thread, and while it is sewn. The arrow keys lead through the
 * designs that the filter lets through, in their order.
 *
 * It is made for whoever owns it, is hidden when it is closed and shown again for the
 * next design; the program does not stay for its sake.
 */
class DesignWindow : public QWidget
{
    Q_OBJECT

public:
    /** None is owned, and both must outlive the window. */
    DesignWindow(IFilterModel *filter, RememberedValues *values);
    ~DesignWindow() override;

    /** Shows the window before all others with this design. */
    void open(const QSharedPointer<IFile> &file);

    QSharedPointer<IFile> file() const { return m_file; }

public slots:
    void showPrevious();
    void showNext();

signals:
    /** Another design is shown: what was asked for, or where the arrow keys led to. */
    void designShown(const QSharedPointer<IFile> &file);

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void createLayout();
    void connectParts();
    void showFile(const QSharedPointer<IFile> &file);
    void showNeighbour(int step);
    void showPlace();
    int neighbour(int step) const;
    void takeDesign(const ReadDesign &design);
    void showFacts();
    std::optional<QSizeF> hoop() const;
    void keepAppearance();
    void applyAppearance();
    void showUse(int use);
    void showPosition(int position);
    void highlight(int use);
    bool panByKey(int key);

    IFilterModel *m_filter;
    RememberedValues *m_values;
    DesignLoader *m_loader;
    Playback *m_playback;
    DesignView *m_view;
    DesignToolBar *m_toolBar;
    DesignFactsPanel *m_facts;
    PlaybackBar *m_playbackBar;
    QSharedPointer<IFile> m_file;
    QSharedPointer<const SewingOrder> m_order;
    // Where among the designs the shown one is, or was before it left the filter.
    int m_index = -1;
    bool m_choosingUse = false;
    // A file that is read at once needs no word about it.
    QTimer m_readingTold;
};
