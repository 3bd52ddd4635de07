#include "PanelFixture.h"

#include "base/GlobalSettings.h"
#include "base/GTranslationLoader.h"
#include "catalogue/models/FilterModel.h"
#include "support/Rows.h"
#include "ui/panels/FilterBar.h"

#include <QtTest>
#include <QtWidgets>

class tst_filterbar : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { GSettings::setIniFile(m_dir.filePath("settings.ini")); }

    void init()
    {
        GlobalSettings().setImperialUnits(false);
        m_window.reset();
        m_project = projectWithFiles({"/d/rose.pes", "/d/Tulip.PES", "/d/rose.dst"});
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

    void typeChoice()
    {
        auto *box = child<QComboBox>("fileTypeCombobox");
        QCOMPARE(box->itemText(0), "any");
        box->setCurrentText("dst");
        QCOMPARE(box->currentText(), "dst");
        QCOMPARE(shown(), 1);
        box->setCurrentText("any");
        QCOMPARE(shown(), 3);
    }

    void sizeInMillimetres()
    {
        QCOMPARE(child<QLabel>("maxSizeLabel")->text(), "Max. size (mm):");
        auto *width = child<QComboBox>("widthCombobox");
        QCOMPARE(width->count(), 13);
        width->setFocus();
        width->lineEdit()->selectAll();
        QTest::keyClicks(width->lineEdit(), "10");
        QCOMPARE(width->currentText(), "10");
        QCOMPARE(shown(), 1);
        QTest::keyClicks(width->lineEdit(), "0");
        QCOMPARE(shown(), 2);
        width->setEditText("wide");
        QCOMPARE(shown(), 3);
        child<QComboBox>("heightCombobox")->setCurrentText("130");
        QCOMPARE(shown(), 2);
    }

    void sizeInTheWritingOfTheLanguage_data()
    {
        const Rows<QString, QString, int> row("language", "text", "designs");
        row("comma", "de", "109,5", 2);
        row("point", "de", "109.5", 2);
        row("just wide enough", "de", "110,0", 3);
        row("comma that parts thousands", "en", "10,9", 3);
        row("no number", "de", "1,0,9", 3);
        row("endless", "en", "nan", 3);
    }

    void sizeInTheWritingOfTheLanguage()
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

    void switchingUnitsResets()
    {
        auto *width = child<QComboBox>("widthCombobox");
        width->setCurrentText("90");
        QCOMPARE(shown(), 2);
        GlobalSettings().setImperialUnits(true);
        m_bar->updateSizeWidgets();
        QCOMPARE(width->currentText(), "any");
        QCOMPARE(shown(), 3);
        QCOMPARE(child<QLabel>("maxSizeLabel")->text(), "Max. size (in):");
        width->setEditText("4");
        QCOMPARE(shown(), 2);
        width->setEditText("4.34");
        QCOMPARE(shown(), 3);
    }

    void searchByShortcutAndEscape()
    {
        auto *search = child<QLineEdit>("searchTextLineEdit");
        search->setText("rose");
        QCOMPARE(shown(), 2);
        child<QComboBox>("fileTypeCombobox")->setFocus();
        QTest::keySequence(m_window.get(), QKeySequence::Find);
        QVERIFY(search->hasFocus());
        QCOMPARE(search->selectedText(), "rose");
        QTest::keyClick(search, Qt::Key_Escape);
        QVERIFY(search->text().isEmpty());
        QCOMPARE(shown(), 3);
        search->setText("tulip");
        QTest::mouseClick(child<QToolButton>("clearTextButton"), Qt::LeftButton);
        QCOMPARE(shown(), 3);
    }

    void tellsMistakesUnderTheField()
    {
        auto *search = child<QLineEdit>("searchTextLineEdit");
        auto *message = child<QLabel>("searchMessage");
        search->setFocus();
        QTest::keyClicks(search, "type:dst is:r");
        QCOMPARE(shown(), 1);
        QTRY_VERIFY(message->isVisible());
        QVERIFY(message->y() >= search->geometry().bottom());
        QVERIFY(message->text().contains("'r'"));
        QCOMPARE(search->accessibleDescription(), message->text());
        QTest::keyClick(search, Qt::Key_Return);
        QCOMPARE(search->selectedText(), "is:r");
        QTest::keyClick(search, Qt::Key_Delete);
        QVERIFY(!message->isVisible());
        QVERIFY(search->accessibleDescription().isEmpty());
    }

    void showsWhatIsSearchedFromElsewhere()
    {
        m_filter->setSearchSubstring("type:pes");
        QCOMPARE(child<QLineEdit>("searchTextLineEdit")->text(), "type:pes");
        QCOMPARE(shown(), 2);
    }

    void tabCompletesTheOnlyCandidate_data()
    {
        const Rows<QString, QString> row("typed", "completed");
        row("field", "rose sti", "rose stitches:");
        row("tag", "-tag:RED", "-tag:red ");
        row("tag of two words", "tag:to", "tag:\"to do\" ");
        row("tag in quotation marks", "tag:\"t", "tag:\"to do\" ");
        row("state", "is:d", "is:duplicate ");
    }

    void tabCompletesTheOnlyCandidate()
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

    void tabOffersCandidates()
    {
        m_project->setAllTags({"red", "to do", "flowers", "flow chart"});
        auto *search = child<QLineEdit>("searchTextLineEdit");
        search->setFocus();
        QTest::keyClicks(search, "tag:f");
        QTest::keyClick(search, Qt::Key_Tab);
        QCOMPARE(search->text(), "tag:flow");
        auto *list = qobject_cast<QAbstractItemView *>(QApplication::activePopupWidget());
        QVERIFY(list);
        QCOMPARE(list->model()->rowCount(), 2);
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(search->text(), "tag:flowers ");

        // Typing on narrows what is offered.
        search->setText("tag:flow");
        QTest::keyClick(search, Qt::Key_Tab);
        QCOMPARE(list->model()->rowCount(), 2);
        QTest::keyClicks(list, "e");
        QCOMPARE(search->text(), "tag:flowe");
        QCOMPARE(list->model()->rowCount(), 1);
        QTest::keyClick(list, Qt::Key_Tab);
        QCOMPARE(search->text(), "tag:flowers ");
        QVERIFY(!list->isVisible());
    }

    void tabMovesOnWhenNothingFits()
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

    void helpLeadsToFields()
    {
        auto *search = child<QLineEdit>("searchTextLineEdit");
        auto *button = child<QToolButton>("searchHelpButton");
        search->setText("rose");
        button->setFocus();
        QTimer::singleShot(0, this, [button] {
            QMenu *menu = button->menu();
            QTest::keyClick(menu, Qt::Key_Down);
            QTest::keyClick(menu, Qt::Key_Return);
        });
        QTest::keyClick(button, Qt::Key_Space); // returns when the menu has closed
        QCOMPARE(search->text(), "rose tag:");
        QCOMPARE(m_window->focusWidget(), search);
    }

    void favoritesByKeyboard()
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

    void clearLetsAllPass()
    {
        const QList<QComboBox *> boxes{child<QComboBox>("fileTypeCombobox"),
                                       child<QComboBox>("widthCombobox"),
                                       child<QComboBox>("heightCombobox")};
        boxes.at(0)->setCurrentText("jef");
        boxes.at(1)->setCurrentText("1.5");
        boxes.at(2)->setCurrentText("90");
        child<QLineEdit>("searchTextLineEdit")->setText("rose");
        child<QToolButton>("favoritesButton")->click();
        QCOMPARE(shown(), 0);
        m_bar->clear();
        QCOMPARE(shown(), 3);
        QVERIFY(!child<QToolButton>("favoritesButton")->isChecked());
        for (const QComboBox *box : boxes)
            QCOMPARE(box->currentText(), "any");
    }

    void twoRowsWhenNarrow()
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
        QCOMPARE(search->placeholderText(), "Search text");
        m_window->resize(1000, 200);
        QTRY_VERIFY(qAbs(top(size) - top(type)) < 10);
    }

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

QTEST_MAIN(tst_filterbar)
#include "tst_filterbar.moc"
