#pragma once

#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/models/ISelectionModel.h"
#include "preview/grid/GridEmbroideryItem.h"
#include "preview/grid/GridGraphicsView.h"
#include "preview/grid/GridPreviewScene.h"
#include "preview/grid/PreviewBrowser.h"
#include "PreviewFixture.h"
#include <QLineEdit>
#include <QtTest>
#include <QVBoxLayout>

using Files = QList<QSharedPointer<IFile>>;

/**
 * The grid of so many designs, "00.dst", "01.pes", "02.dst" and so on, in a window
 * below a line edit. At 100 % the usual window shows three columns, two rows and a bit.
 */
class GridFixture
{
public:
    explicit GridFixture(int count, const QSize &size = QSize(800, 720), int zoom = 100)
        : models(project)
    {
        GlobalSettings().setGridScaleFactor(zoom);
        for (int i = 0; i < count; ++i) {
            const QString ending = i % 2 == 0 ? QStringLiteral("dst") : QStringLiteral("pes");
            files.append(PreviewFixture::makeFile(
                project.data(),
                QStringLiteral("/designs/%1.%2").arg(i, 2, 10, QLatin1Char('0')).arg(ending)));
        }
        project->setFiles(files);
        edit = new QLineEdit;
        browser = new PreviewBrowser(&window, project, &models);
        view = browser->findChild<GridGraphicsView *>();
        scene = view->gridScene();
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(edit);
        layout->addWidget(browser);
        window.resize(size);
        window.show();
        if (!QTest::qWaitForWindowActive(&window)) {
            qFatal("the window does not become active");
        }
        view->setFocus();
        viewport()->repaint();
    }

    QWidget *viewport() const { return view->viewport(); }
    GridEmbroideryItem *card(int index) const { return scene->cardAt(index); }
    /** In pixels of the viewport. */
    QRect cardRect(int index) const
    {
        return view->mapFromScene(scene->sheetLayout().rectOf(index)).boundingRect();
    }
    bool isInView(int index) const { return viewport()->rect().contains(cardRect(index)); }

    Files selected() const { return models.selection()->selectedFiles(); }
    /** The files from @p first to @p last. */
    Files range(int first, int last) const { return files.mid(first, last - first + 1); }
    int current() const { return scene->currentIndex(); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(view, key, modifiers);
    }
    void click(int index, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
               Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(viewport(), button, modifiers, cardRect(index).center());
    }
    void drag(Qt::MouseButton button, const QPoint &from, const QPoint &to)
    {
        QTest::mousePress(viewport(), button, Qt::NoModifier, from);
        QMouseEvent move(QEvent::MouseMove, to, viewport()->mapToGlobal(to), Qt::NoButton, button,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(viewport(), &move);
        QTest::mouseRelease(viewport(), button, Qt::NoModifier, to);
    }

    const QSharedPointer<Project> project = QSharedPointer<Project>::create();
    FilterSelectionModel models;
    Files files;
    QWidget window;
    QLineEdit *edit;
    PreviewBrowser *browser;
    GridGraphicsView *view;
    GridPreviewScene *scene;
};
