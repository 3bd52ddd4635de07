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
#include "widgets/style/WidgetStyles.h"

#include <QApplication>
#include <QLabel>
#include <QSplitter>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>
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
    void treeDescribesItsEmptiness();
    void textEditGrowsUpToAMost();
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
    box.setExpandable(false);
    QTest::mouseClick(box.titleBar(), Qt::LeftButton, {}, QPoint(20, 10));
    QVERIFY(box.isExpanded());
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
