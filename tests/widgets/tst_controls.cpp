#include "app/addons/GApplicationAddons.h"
#include "base/GSettings.h"
#include "base/GTranslationLoader.h"
#include "widgets/controls/About.h"
#include "widgets/controls/About2.h"
#include "widgets/controls/GExpandingTitle.h"
#include "widgets/controls/GMessageBox.h"
#include "widgets/controls/GResizingTextEdit.h"
#include "widgets/controls/GSideBar.h"
#include "widgets/controls/GSideBarBoxAdvanced.h"
#include "widgets/controls/GTreeView.h"
#include "widgets/controls/MessageText.h"
#include "widgets/style/WidgetHelper.h"
#include "widgets/style/WidgetStyles.h"

#include <QtTest>
#include <QtWidgets>

static bool showsName(const GTreeView &tree)
{
    const int left = tree.visualRect(tree.currentIndex()).left();
    const int width = tree.sizeHintForIndex(tree.currentIndex()).width();
    return left >= 0 && left + width <= tree.viewport()->width();
}

class tst_controls : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { GSettings::setIniFile(m_dir.filePath("settings.ini")); }

    void questionDefaultsToNo()
    {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
            QTimer::singleShot(0, this, [key] {
                QWidget *box = QApplication::activeModalWidget();
                QTest::keyClick(box, key);
            });
            QCOMPARE(GMessageBox::question("Sure?"), QMessageBox::No);
        }
    }

    void messageIsPlainText()
    {
        const QString path = "/d/<img src=x>" + QString(250, QLatin1Char('x'));
        GMessageBox box(GMessageBox::Critical, nullptr, "<i>main</i>", path);
        box.setExplanation("why");
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        QVERIFY(box.width() < 700);
        const auto labels = box.findChildren<QLabel *>();
        for (const QLabel *label : labels)
            QVERIFY(!label->isVisible() || label->text().isEmpty());
        const auto texts = box.findChildren<MessageText *>();
        QCOMPARE(texts.size(), 2);
        QCOMPARE(texts.first()->toPlainText(), "<i>main</i>");
        QVERIFY(texts.first()->font().bold() && !texts.last()->font().bold());
        for (MessageText *text : texts) {
            QVERIFY(text->isVisible());
            QVERIFY(text->document()->size().height() <= text->height());
            QVERIFY(text->document()->size().width() <= text->width());
        }
        // What is copied is what there is.
        QTest::mouseClick(texts.last()->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
        QTest::keyClick(texts.last(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(texts.last(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), path + "\n\nwhy");
        QCOMPARE(box.informativeText(), path);
    }

    void longMessageFitsTheScreen()
    {
        GMessageBox box(GMessageBox::Critical, nullptr, QStringLiteral("line\n").repeated(2000));
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        QVERIFY(box.height() < box.screen()->availableGeometry().height());
    }

    // A window that grows when it is on the screen already may be put elsewhere by it.
    void messageDoesNotGrow()
    {
        GMessageBox box(GMessageBox::Information, nullptr, QStringLiteral("main"),
                        QStringLiteral("line\n").repeated(20));
        box.show();
        const QSize size = box.size();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        QTest::qWait(0);
        QCOMPARE(box.size(), size);
    }

    // Nobody would answer a second box: the test would stand still.
    void sameMessageIsToldOnce()
    {
        const QString text = "lost";
        bool repeated = false;
        QTimer::singleShot(0, this, [&] {
            GMessageBox::alert("Error", text);
            GMessageBox::critical(text);
            repeated = true;
            QApplication::activeModalWidget()->close();
        });
        GMessageBox::alert("Error", text);
        QVERIFY(repeated);
        QVERIFY(!QApplication::activeModalWidget());
    }

    void sideBarKeepsItsState()
    {
        const auto create = [] {
            auto bar = std::make_unique<GSideBar>();
            bar->setObjectName("leftSidebar");
            auto *advanced = new GSideBarBoxAdvanced("One");
            advanced->setObjectName("box");
            bar->addBox(advanced);
            bar->addBox(new GSideBarBox("Two"));
            bar->resize(200, 600);
            bar->show();
            return bar;
        };
        auto first = create();
        first->findChild<QSplitter *>()->setSizes({150, 450});
        const QList<int> sizes = first->findChild<QSplitter *>()->sizes();
        first->findChild<GSideBarBoxAdvanced *>()->setShowAdvanced(true);
        {
            GSettings settings;
            settings.beginGroup("windowSettings");
            first->saveWidgetState(settings);
        }
        GSettings settings;
        QVERIFY(settings.contains("windowSettings/leftSidebarSplitter"));
        QCOMPARE(settings.value("windowSettings/box-showAdvanced").toBool(), true);

        auto second = create();
        settings.beginGroup("windowSettings");
        second->restoreWidgetState(settings);
        QCOMPARE(second->findChild<QSplitter *>()->sizes(), sizes);
        QVERIFY(second->findChild<GSideBarBoxAdvanced *>()->showAdvanced());
    }

    void titleFoldsByKeyboard()
    {
        GSideBarBox box("Folders");
        box.contentLayout()->addWidget(new QLabel("content"));
        box.show();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        auto *arrow = box.titleBar()->findChild<QToolButton *>();
        QCOMPARE(arrow->accessibleName(), "Folders");
        arrow->setFocus();
        QTest::keyClick(arrow, Qt::Key_Space);
        QVERIFY(!box.isExpanded());
        QVERIFY(!box.contentLayout()->parentWidget()->isVisible());
        QTest::keyClick(arrow, Qt::Key_Space);
        QVERIFY(box.contentLayout()->parentWidget()->isVisible());
        box.setExpandable(false);
        QTest::mouseClick(box.titleBar(), Qt::LeftButton, {}, QPoint(20, 10));
        QVERIFY(box.isExpanded());
    }

    void treeDescribesItsEmptiness()
    {
        GTreeView tree;
        QStandardItemModel model;
        tree.setModel(&model);
        tree.setPlaceholder(QIcon(), "<center>Drop<br/>here</center>", Qt::black);
        QCOMPARE(tree.accessibleDescription(), "Drop here");
        model.appendRow(new QStandardItem("folder"));
        QVERIFY(tree.accessibleDescription().isEmpty());
        model.clear();
        QCOMPARE(tree.accessibleDescription(), "Drop here");
    }

    void deepTreeKeepsItsNames()
    {
        QStandardItemModel model;
        QStandardItem *parent = model.invisibleRootItem();
        constexpr int Levels = 20;
        for (int level = 0; level < Levels; ++level) {
            parent->appendRow(new QStandardItem(QString::number(level)));
            parent->appendRow(new QStandardItem(QStringLiteral("beside %1").arg(level)));
            parent = parent->child(0);
        }
        GTreeView tree;
        tree.setHeaderHidden(true);
        tree.setModel(&model);
        tree.resize(200, 600);
        tree.show();
        QVERIFY(QTest::qWaitForWindowExposed(&tree));
        tree.setCurrentIndex(model.index(0, 0));
        for (int level = 0; level < Levels; ++level) {
            QCOMPARE(tree.currentIndex().data().toString(), QString::number(level));
            QVERIFY(showsName(tree));
            QTest::keyClick(&tree, Qt::Key_Right);
            QTest::keyClick(&tree, Qt::Key_Right);
        }
        QTest::keyClick(&tree, Qt::Key_Down);
        QCOMPARE(tree.currentIndex().data().toString(), "beside 19");
        QVERIFY(showsName(tree));
        for (int level = Levels - 2; level >= 0; --level) {
            QTest::keyClick(&tree, Qt::Key_Left);
            QCOMPARE(tree.currentIndex().data().toString(), QString::number(level));
            QVERIFY(showsName(tree));
            QTest::keyClick(&tree, Qt::Key_Left);
        }
        QCOMPARE(tree.horizontalScrollBar()->maximum(), 0);
    }

    void onlyTheLeftButtonChoosesAFolder()
    {
        QStandardItemModel model;
        model.appendRow(new QStandardItem("roses"));
        GTreeView tree;
        tree.setModel(&model);
        tree.show();
        QVERIFY(QTest::qWaitForWindowExposed(&tree));
        const QPoint place = tree.visualRect(model.index(0, 0)).center();
        QTest::mouseClick(tree.viewport(), Qt::RightButton, {}, place);
        QVERIFY(!tree.selectionModel()->hasSelection());
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, place);
        QVERIFY(tree.selectionModel()->hasSelection());
    }

    void elidedNameHasAToolTip()
    {
        const QString longName = QStringLiteral("<b>Roses</b> ").repeated(10);
        QStandardItemModel model;
        model.appendRow(new QStandardItem(longName));
        model.appendRow(new QStandardItem("short"));
        GTreeView tree;
        tree.setModel(&model);
        tree.resize(200, 200);
        tree.show();
        QVERIFY(QTest::qWaitForWindowExposed(&tree));
        const auto rest = [&tree, &model](int row) {
            const QPoint place = tree.visualRect(model.index(row, 0)).center();
            QHelpEvent event(QEvent::ToolTip, place, tree.viewport()->mapToGlobal(place));
            QCoreApplication::sendEvent(tree.viewport(), &event);
        };
        rest(0);
        QCOMPARE(QToolTip::text(), WidgetHelper::toolTipText(longName));
        rest(1);
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void textEditGrowsUpToAMost()
    {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *edit = new GResizingTextEdit;
        layout->addWidget(edit);
        layout->addStretch();
        window.resize(300, 800);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const int small = edit->height();
        edit->setPlainText(QStringLiteral("line\n").repeated(8));
        QTRY_VERIFY(edit->height() > small);
        const int grown = edit->height();
        edit->setPlainText(QStringLiteral("line\n").repeated(20000));
        QTRY_VERIFY(edit->height() > grown);
        QVERIFY(edit->height() < 600);
        edit->clear();
        QTRY_COMPARE(edit->height(), small);
    }

    /** As the program has it: style sheets that hand their colours on keep palettes from doing so.
     */
    void aboutBannerIsReadable()
    {
        WidgetStyles::init();
        About2::configure(Qt::black, 300);
        About2 dialog(nullptr);
        dialog.show();
        const QList<QLabel *> lines = dialog.findChildren<QLabel *>();
        QVERIFY(!lines.isEmpty());
        for (const QLabel *line : lines)
            QCOMPARE(line->palette().color(line->foregroundRole()), QColor(Qt::white));
    }

    void aboutTellsTheDateInTheProgramsLanguage()
    {
        for (const char *code : {"de", "zh-CN"}) {
            GSettings().setUiLanguage(code);
            GTranslationLoader::instance()->setTranslations(qApp);
            const QString date =
                QLocale(code).toString(GApplicationAddons::buildDate(), QLocale::LongFormat);
            QVERIFY2(About::versionText().contains(date), qPrintable(About::versionText()));
        }
    }

private:
    QTemporaryDir m_dir;
};

QTEST_MAIN(tst_controls)
#include "tst_controls.moc"
