#include "PanelFixture.h"

#include "base/GlobalSettings.h"
#include "base/GTranslationLoader.h"
#include "catalogue/models/FilterModel.h"
#include "ui/panels/FilterBar.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <QtTest>
#include <QVBoxLayout>

class tst_filterbar : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void typeChoice();
    void sizeInMillimetres();
    void sizeInTheWritingOfTheLanguage_data();
    void sizeInTheWritingOfTheLanguage();
    void switchingUnitsResets();
    void searchByShortcutAndEscape();
    void tellsMistakesUnderTheField();
    void showsWhatIsSearchedFromElsewhere();
    void tabCompletesTheOnlyCandidate_data();
    void tabCompletesTheOnlyCandidate();
    void tabOffersCandidates();
    void tabMovesOnWhenNothingFits();
    void helpLeadsToFields();
    void favoritesByKeyboard();
    void clearLetsAllPass();
    void twoRowsWhenNarrow();

private:
    template <class T>
    T *child(const char *name) const
    {
        return m_window->findChild<T *>(QLatin1String(name));
    }
    int shown() const { return m_filter->filteredFiles().count(); }

    QTemporaryDir m_dir;
    QSharedPointer<Project> m_project;
    std::unique_ptr<FilterModel> m_filter;
    std::unique_ptr<QWidget> m_window;
    FilterBar *m_bar = nullptr;
};

void tst_filterbar::initTestCase()
{
    GSettings::setIniFile(m_dir.filePath(QStringLiteral("settings.ini")));
}

void tst_filterbar::init()
{
    GlobalSettings().setImperialUnits(false);
    m_window.reset();
    m_project = projectWithFiles({QStringLiteral("/d/rose.pes"), QStringLiteral("/d/Tulip.PES"),
                                  QStringLiteral("/d/rose.dst")});
    m_project->files().at(0)->setDesignSize(QSizeF(110, 50));
    m_project->files().at(1)->setDesignSize(QSizeF(50, 200));
    m_filter = std::make_unique<FilterModel>(m_project);
    m_window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(m_window.get());
    layout->setContentsMargins(0, 0, 0, 0);
    m_bar = new FilterBar(m_window.get(), m_project, m_filter.get());
    layout->addWidget(m_bar);
    layout->addStretch();
    m_window->resize(1000, 200);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_filterbar::typeChoice()
{
    auto *box = child<QComboBox>("fileTypeCombobox");
    QCOMPARE(box->itemText(0), QStringLiteral("any"));
    box->setCurrentText(QStringLiteral("dst"));
    QCOMPARE(box->currentText(), QStringLiteral("dst"));
    QCOMPARE(shown(), 1);
    box->setCurrentText(QStringLiteral("any"));
    QCOMPARE(shown(), 3);
}

void tst_filterbar::sizeInMillimetres()
{
    QCOMPARE(child<QLabel>("maxSizeLabel")->text(), QStringLiteral("Max. size (mm):"));
    auto *width = child<QComboBox>("widthCombobox");
    QCOMPARE(width->count(), 13);
    width->setFocus();
    width->lineEdit()->selectAll();
    QTest::keyClicks(width->lineEdit(), QStringLiteral("10"));
    QCOMPARE(width->currentText(), QStringLiteral("10"));
    QCOMPARE(shown(), 1);
    QTest::keyClicks(width->lineEdit(), QStringLiteral("0"));
    QCOMPARE(shown(), 2);
    width->setEditText(QStringLiteral("wide"));
    QCOMPARE(shown(), 3);
    child<QComboBox>("heightCombobox")->setCurrentText(QStringLiteral("100"));
    QCOMPARE(shown(), 2);
}

void tst_filterbar::sizeInTheWritingOfTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("designs");
    QTest::newRow("comma") << "de"
                           << "109,5" << 2;
    QTest::newRow("point") << "de"
                           << "109.5" << 2;
    QTest::newRow("just wide enough") << "de"
                                      << "110,0" << 3;
    QTest::newRow("comma that parts thousands") << "en"
                                                << "10,9" << 3;
    QTest::newRow("no number") << "de"
                               << "1,0,9" << 3;
    QTest::newRow("endless") << "en"
                             << "nan" << 3;
}

void tst_filterbar::sizeInTheWritingOfTheLanguage()
{
    QFETCH(QString, language);
    QFETCH(QString, text);
    GSettings().setUiLanguage(language);
    GTranslationLoader::instance()->setTranslations(qApp);
    auto *width = child<QComboBox>("widthCombobox");
    width->lineEdit()->selectAll();
    QTest::keyClicks(width->lineEdit(), text);
    QTEST(shown(), "designs");
}

void tst_filterbar::switchingUnitsResets()
{
    auto *width = child<QComboBox>("widthCombobox");
    width->setCurrentText(QStringLiteral("90"));
    QCOMPARE(shown(), 2);
    GlobalSettings().setImperialUnits(true);
    m_bar->updateSizeWidgets();
    QCOMPARE(width->currentText(), QStringLiteral("any"));
    QCOMPARE(shown(), 3);
    QCOMPARE(child<QLabel>("maxSizeLabel")->text(), QStringLiteral("Max. size (in):"));
    width->setEditText(QStringLiteral("4"));
    QCOMPARE(shown(), 2);
    width->setEditText(QStringLiteral("4.4"));
    QCOMPARE(shown(), 3);
}

void tst_filterbar::searchByShortcutAndEscape()
{
    auto *search = child<QLineEdit>("searchTextLineEdit");
    search->setText(QStringLiteral("rose"));
    QCOMPARE(shown(), 2);
    child<QComboBox>("fileTypeCombobox")->setFocus();
    QTest::keySequence(m_window.get(), QKeySequence::Find);
    QVERIFY(search->hasFocus());
    QCOMPARE(search->selectedText(), QStringLiteral("rose"));
    QTest::keyClick(search, Qt::Key_Escape);
    QVERIFY(search->text().isEmpty());
    QCOMPARE(shown(), 3);
    search->setText(QStringLiteral("tulip"));
    QTest::mouseClick(child<QToolButton>("clearTextButton"), Qt::LeftButton);
    QCOMPARE(shown(), 3);
}

void tst_filterbar::tellsMistakesUnderTheField()
{
    auto *search = child<QLineEdit>("searchTextLineEdit");
    auto *message = child<QLabel>("searchMessage");
    search->setFocus();
    QTest::keyClicks(search, QStringLiteral("type:dst is:r"));
    QCOMPARE(shown(), 1);
    QTRY_VERIFY(message->isVisible());
    QVERIFY(message->y() >= search->geometry().bottom());
    QVERIFY(message->text().contains(QStringLiteral("'r'")));
    QCOMPARE(search->accessibleDescription(), message->text());
    QTest::keyClick(search, Qt::Key_Return);
    QCOMPARE(search->selectedText(), QStringLiteral("is:r"));
    QTest::keyClick(search, Qt::Key_Delete);
    QVERIFY(!message->isVisible());
    QVERIFY(search->accessibleDescription().isEmpty());
}

void tst_filterbar::showsWhatIsSearchedFromElsewhere()
{
    m_filter->setSearchSubstring(QStringLiteral("type:pes"));
    QCOMPARE(child<QLineEdit>("searchTextLineEdit")->text(), QStringLiteral("type:pes"));
    QCOMPARE(shown(), 2);
}

void tst_filterbar::tabCompletesTheOnlyCandidate_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("completed");
    QTest::newRow("field") << "rose sti"
                           << "rose stitches:";
    QTest::newRow("tag") << "-tag:RED"
                         << "-tag:red ";
    QTest::newRow("tag of two words") << "tag:to"
                                      << "tag:\"to do\" ";
    QTest::newRow("tag in quotation marks") << "tag:\"t"
                                            << "tag:\"to do\" ";
    QTest::newRow("state") << "is:d"
                           << "is:duplicate ";
}

void tst_filterbar::tabCompletesTheOnlyCandidate()
{
    m_project->setAllTags({"red", "to do", "flowers", "flow chart"});
    QFETCH(QString, typed);
    auto *search = child<QLineEdit>("searchTextLineEdit");
    search->setFocus();
    QTest::keyClicks(search, typed);
    QTest::keyClick(search, Qt::Key_Tab);
    QTEST(search->text(), "completed");
    QVERIFY(search->hasFocus());
}

void tst_filterbar::tabOffersCandidates()
{
    m_project->setAllTags({"red", "to do", "flowers", "flow chart"});
    auto *search = child<QLineEdit>("searchTextLineEdit");
    search->setFocus();
    QTest::keyClicks(search, QStringLiteral("tag:f"));
    QTest::keyClick(search, Qt::Key_Tab);
    QCOMPARE(search->text(), QStringLiteral("tag:flow"));
    auto *list = qobject_cast<QAbstractItemView *>(QApplication::activePopupWidget());
    QVERIFY(list);
    QCOMPARE(list->model()->rowCount(), 2);
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(search->text(), QStringLiteral("tag:flowers "));

    // Typing on narrows what is offered.
    search->setText(QStringLiteral("tag:flow"));
    QTest::keyClick(search, Qt::Key_Tab);
    QCOMPARE(list->model()->rowCount(), 2);
    QTest::keyClicks(list, QStringLiteral("e"));
    QCOMPARE(search->text(), QStringLiteral("tag:flowe"));
    QCOMPARE(list->model()->rowCount(), 1);
    QTest::keyClick(list, Qt::Key_Tab);
    QCOMPARE(search->text(), QStringLiteral("tag:flowers "));
    QVERIFY(!list->isVisible());
}

void tst_filterbar::tabMovesOnWhenNothingFits()
{
    m_project->setAllTags({"red"});
    auto *search = child<QLineEdit>("searchTextLineEdit");
    for (const char *text : {"", "rose", "tag:x", "tag:red", "12:30"}) {
        search->setFocus();
        search->setText(QLatin1String(text));
        QTest::keyClick(search, Qt::Key_Tab);
        QVERIFY2(child<QToolButton>("clearTextButton")->hasFocus(), text);
        QCOMPARE(search->text(), QLatin1String(text));
    }
}

void tst_filterbar::helpLeadsToFields()
{
    auto *search = child<QLineEdit>("searchTextLineEdit");
    auto *button = child<QToolButton>("searchHelpButton");
    search->setText(QStringLiteral("rose"));
    button->setFocus();
    QTimer::singleShot(0, this, [button] {
        QMenu *menu = button->menu();
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    QTest::keyClick(button, Qt::Key_Space); // returns when the menu has closed
    QCOMPARE(search->text(), QStringLiteral("rose tag:"));
    QCOMPARE(m_window->focusWidget(), search);
}

void tst_filterbar::favoritesByKeyboard()
{
    m_project->files().at(1)->setFavorite(true);
    auto *button = child<QToolButton>("favoritesButton");
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
    QCOMPARE(shown(), 1);
    m_project->files().at(0)->setFavorite(true);
    QCOMPARE(shown(), 1);
    QTest::mouseClick(child<QToolButton>("refreshButton"), Qt::LeftButton);
    QCOMPARE(shown(), 2);
}

void tst_filterbar::clearLetsAllPass()
{
    const QList<QComboBox *> boxes{child<QComboBox>("fileTypeCombobox"),
                                   child<QComboBox>("widthCombobox"),
                                   child<QComboBox>("heightCombobox")};
    boxes.at(0)->setCurrentText(QStringLiteral("jef"));
    boxes.at(1)->setCurrentText(QStringLiteral("1.5"));
    boxes.at(2)->setCurrentText(QStringLiteral("90"));
    child<QLineEdit>("searchTextLineEdit")->setText(QStringLiteral("rose"));
    child<QToolButton>("favoritesButton")->click();
    QCOMPARE(shown(), 0);
    m_bar->clear();
    QCOMPARE(shown(), 3);
    QVERIFY(!child<QToolButton>("favoritesButton")->isChecked());
    for (const QComboBox *box : boxes)
        QCOMPARE(box->currentText(), QStringLiteral("any"));
}

void tst_filterbar::twoRowsWhenNarrow()
{
    auto *search = child<QLineEdit>("searchTextLineEdit");
    auto *type = child<QComboBox>("fileTypeCombobox");
    const auto top = [this](QWidget *widget) { return widget->mapTo(m_bar, QPoint()).y(); };
    QVERIFY(qAbs(top(search) - top(type)) < 10);
    m_window->resize(500, 200);
    auto *size = child<QComboBox>("widthCombobox");
    QTRY_VERIFY(top(size) > top(type) + 15);
    QVERIFY(search->width() >= 100);
    QVERIFY(m_bar->minimumSizeHint().width() <= 500);
    const auto children = m_bar->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *widget : children)
        QVERIFY(widget->geometry().right() < m_bar->width());
    QCOMPARE(search->placeholderText(), QStringLiteral("Search text"));
    m_window->resize(1000, 200);
    QTRY_VERIFY(qAbs(top(size) - top(type)) < 10);
}

QTEST_MAIN(tst_filterbar)
#include "tst_filterbar.moc"
