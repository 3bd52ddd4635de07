#include "app/addons/GApplicationAddons.h"
#include "app/base/GSettings.h"
#include "app/base/GTranslationLoader.h"
#include "widgets/controls/About.h"
#include "widgets/controls/About2.h"
#include "widgets/controls/DragDropHelper.h"
#include "widgets/controls/GExpandingTitle.h"
#include "widgets/controls/GMessageBox.h"
#include "widgets/controls/GResizingTextEdit.h"
#include "widgets/controls/GSideBar.h"
#include "widgets/controls/GSideBarBoxAdvanced.h"
#include "widgets/controls/GToolBar.h"
#include "widgets/controls/GTreeView.h"
#include "widgets/style/WidgetStyles.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QSplitter>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>
#include <QUrl>
#include <QVBoxLayout>

class tst_controls : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void questionDefaultsToNo();
    void messageIsPlainText();
    void sideBarKeepsItsState();
    void titleFoldsByKeyboard();
    void fixedTitleStaysOpen();
    void titleButtonsHaveNames();
    void toolBarButtonsTakeFocus();
    void treeDescribesItsEmptiness();
    void textEditGrowsUpToAMost();
    void dropKeepsFoldersOnly();
    void dropIsBlockedByModalWindow();
    void aboutBannerIsReadable();
    void aboutTellsTheDateInTheProgramsLanguage();

private:
    QTemporaryDir m_dir;
};

void tst_controls::initTestCase()
{
    GSettings::setIniFile(m_dir.filePath(QStringLiteral("settings.ini")));
}

void tst_controls::questionDefaultsToNo()
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        QTimer::singleShot(0, this, [key] {
            QWidget *box = QApplication::activeModalWidget();
            QTest::keyClick(box, key);
        });
        QCOMPARE(GMessageBox::question(QStringLiteral("Sure?")), QMessageBox::No);
    }
}

void tst_controls::messageIsPlainText()
{
    const QString hostile = QStringLiteral("<b>a</b> & ") + QString(500, QLatin1Char('x'));
    GMessageBox box(GMessageBox::Question, nullptr, QStringLiteral("<i>main</i>"), hostile);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    int seen = 0;
    const auto labels = box.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->text().isEmpty())
            continue;
        ++seen;
        QCOMPARE(label->textFormat(), Qt::PlainText);
    }
    QCOMPARE(seen, 2);
    QVERIFY(box.width() < 900);
}

void tst_controls::sideBarKeepsItsState()
{
    const auto create = [] {
        auto bar = std::make_unique<GSideBar>();
        bar->setObjectName(QStringLiteral("leftSidebar"));
        auto *advanced = new GSideBarBoxAdvanced(QStringLiteral("One"));
        advanced->setObjectName(QStringLiteral("box"));
        bar->addBox(advanced);
        bar->addBox(new GSideBarBox(QStringLiteral("Two")));
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
        settings.beginGroup(QStringLiteral("windowSettings"));
        first->saveWidgetState(settings);
    }
    GSettings settings;
    QVERIFY(settings.contains(QStringLiteral("windowSettings/leftSidebarSplitter")));
    QCOMPARE(settings.value(QStringLiteral("windowSettings/box-showAdvanced")).toBool(), true);

    auto second = create();
    settings.beginGroup(QStringLiteral("windowSettings"));
    second->restoreWidgetState(settings);
    QCOMPARE(second->findChild<QSplitter *>()->sizes(), sizes);
    QVERIFY(second->findChild<GSideBarBoxAdvanced *>()->showAdvanced());
}

void tst_controls::titleFoldsByKeyboard()
{
    GSideBarBox box(QStringLiteral("Folders"));
    box.contentLayout()->addWidget(new QLabel(QStringLiteral("content")));
    box.show();
    QVERIFY(QTest::qWaitForWindowActive(&box));
    auto *arrow = box.titleBar()->findChild<QToolButton *>();
    QCOMPARE(arrow->accessibleName(), QStringLiteral("Folders"));
    arrow->setFocus();
    QTest::keyClick(arrow, Qt::Key_Space);
    QVERIFY(!box.isExpanded());
    QVERIFY(!box.contentLayout()->parentWidget()->isVisible());
    QTest::keyClick(arrow, Qt::Key_Space);
    QVERIFY(box.contentLayout()->parentWidget()->isVisible());
}

void tst_controls::fixedTitleStaysOpen()
{
    GSideBarBox box(QStringLiteral("Folders"));
    box.setExpandable(false);
    box.show();
    QTest::mouseClick(box.titleBar(), Qt::LeftButton, {}, QPoint(20, 10));
    QVERIFY(box.isExpanded());
}

void tst_controls::titleButtonsHaveNames()
{
    GExpandingTitle title(QStringLiteral("Tags"));
    QToolButton *button = title.addButton(GIcon(), QStringLiteral("Add tag"));
    QCOMPARE(button->accessibleName(), QStringLiteral("Add tag"));
    QCOMPARE(button->toolTip(), QStringLiteral("Add tag"));
    QVERIFY(button->focusPolicy() & Qt::TabFocus);
}

void tst_controls::toolBarButtonsTakeFocus()
{
    GToolBar bar(QStringLiteral("Toolbar"));
    QAction action(QStringLiteral("&Rescan"));
    bar.addAction(&action);
    bar.addSeparator();
    bar.addExpandingSeparator();
    auto *button = qobject_cast<QToolButton *>(bar.widgetForAction(&action));
    QVERIFY(button->focusPolicy() & Qt::TabFocus);
    QCOMPARE(button->accessibleName(), QStringLiteral("Rescan"));
    QVERIFY(!bar.isMovable());
}

void tst_controls::treeDescribesItsEmptiness()
{
    GTreeView tree;
    QStandardItemModel model;
    tree.setModel(&model);
    tree.setPlaceholder(QIcon(), QStringLiteral("<center>Drop<br/>here</center>"), Qt::black);
    QCOMPARE(tree.accessibleDescription(), QStringLiteral("Drop here"));
    model.appendRow(new QStandardItem(QStringLiteral("folder")));
    QVERIFY(tree.accessibleDescription().isEmpty());
    model.clear();
    QCOMPARE(tree.accessibleDescription(), QStringLiteral("Drop here"));
}

void tst_controls::textEditGrowsUpToAMost()
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

void tst_controls::dropKeepsFoldersOnly()
{
    const QString folder = m_dir.filePath(QStringLiteral("a \"b\" & c\nd"));
    QVERIFY(QDir().mkdir(folder));
    const QString file = m_dir.filePath(QStringLiteral("x.pes"));
    QFile(file).open(QIODevice::WriteOnly);

    QWidget target;
    DragDropHelper helper(&target, DragDropHelper::Directories);
    QSignalSpy dropped(&helper, &DragDropHelper::filesDropped);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file), QUrl(QStringLiteral("https://example.org/"))});
    QDragEnterEvent refused(QPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    helper.dragEnterEvent(&refused);
    QVERIFY(!refused.isAccepted());

    data.setUrls({QUrl::fromLocalFile(file), QUrl::fromLocalFile(folder)});
    QDragEnterEvent enter(QPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    helper.dragEnterEvent(&enter);
    QVERIFY(enter.isAccepted());
    QVERIFY(helper.isDragActive());
    QDropEvent drop(QPointF(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    helper.dropEvent(&drop);
    QVERIFY(drop.isAccepted());
    QVERIFY(!helper.isDragActive());
    QCOMPARE(dropped.count(), 0);
    QTRY_COMPARE(dropped.count(), 1);
    QCOMPARE(dropped.first().first().toStringList(), QStringList{folder});
}

void tst_controls::dropIsBlockedByModalWindow()
{
    QWidget target;
    target.show();
    DragDropHelper helper(&target, DragDropHelper::Directories);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(m_dir.path())});
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    QDragEnterEvent enter(QPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    helper.dragEnterEvent(&enter);
    QVERIFY(!enter.isAccepted());
}

/** As the program has it: style sheets that hand their colours on keep palettes from doing so. */
void tst_controls::aboutBannerIsReadable()
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

void tst_controls::aboutTellsTheDateInTheProgramsLanguage()
{
    for (const QString &code : {QStringLiteral("de"), QStringLiteral("zh-CN")}) {
        GSettings().setUiLanguage(code);
        GTranslationLoader::instance()->setTranslations(qApp);
        const QString date =
            QLocale(code).toString(GApplicationAddons::buildDate(), QLocale::LongFormat);
        QVERIFY2(About::versionText().contains(date), qPrintable(About::versionText()));
    }
}

QTEST_MAIN(tst_controls)
#include "tst_controls.moc"
