#include "PanelFixture.h"

#include "app/frame/GAction.h"
#include "catalogue/models/FilterModel.h"
#include "catalogue/query/SavedSearches.h"
#include "support/MessageBoxes.h"
#include "ui/panels/SavedSearchesBox.h"
#include "widgets/controls/GExpandingTitle.h"

#include <QtTest>
#include <QtWidgets>

class tst_savedsearchesbox : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_box.reset();
        m_searches = std::make_unique<SavedSearches>();
        m_filter = std::make_unique<FilterModel>(projectWithFiles({"/d/rose.pes", "/d/tulip.dst"}));
        m_box = std::make_unique<SavedSearchesBox>(nullptr, m_searches.get(), m_filter.get());
        m_list = m_box->findChild<QListWidget *>();
        m_box->show();
        QVERIFY(QTest::qWaitForWindowActive(m_box.get()));
    }

    void savesUnderAName()
    {
        m_filter->setSearchSubstring("type:pes");
        QTest::mouseClick(m_box->titleBar()->findChildren<QToolButton *>().at(1), Qt::LeftButton);
        QVERIFY(editor());
        QCOMPARE(editor()->text(), "type:pes");
        QTest::keyClicks(editor(), "Brother");
        QTest::keyClick(editor(), Qt::Key_Return);
        QTRY_COMPARE(m_searches->all(), (QList<SavedSearch>{{"Brother", "type:pes"}}));
        QTRY_COMPARE(names(), "Brother*");
    }

    void savesOnlyWhatIsWorthIt()
    {
        const QMap<QString, bool> worth = {{"", false},     {"  ", false},   {"rose", true},
                                           {"is:", false},  {"is:x", false}, {"stiches:5", true},
                                           {"saved", false}};
        m_searches->add({"name", "saved"});
        for (auto it = worth.cbegin(); it != worth.cend(); ++it) {
            m_filter->setSearchSubstring(it.key());
            QVERIFY2(m_box->saveAction()->isEnabled() == it.value(), qPrintable(it.key()));
        }
        // The name that is proposed is a free one.
        m_filter->setSearchSubstring("name");
        m_box->saveAction()->trigger();
        QCOMPARE(m_searches->all().count(), 2);
    }

    void choosingSearches()
    {
        m_searches->add({"Dst", "type:dst"});
        m_searches->add({"Roses", "rose"});
        QTest::mouseClick(m_list->viewport(), Qt::LeftButton, {},
                          m_list->visualItemRect(m_list->item(1)).center());
        QCOMPARE(m_filter->searchText(), "rose");
        QTest::keyClick(m_list, Qt::Key_Up);
        QCOMPARE(m_filter->searchText(), "type:dst");
        // Another search takes the selection back; the same one finds it.
        m_filter->setSearchSubstring("type:pes");
        QCOMPARE(names(), "Dst|Roses");
        m_filter->setSearchSubstring("rose");
        QCOMPARE(names(), "Dst|Roses*");
    }

    void renamesByKeyboard()
    {
        m_searches->add({"Roses", "rose"});
        m_filter->setSearchSubstring("rose");
        m_list->setFocus();
        QTest::keyClick(m_list, Qt::Key_F2);
        QVERIFY(editor());
        QTest::keyClicks(editor(), "My roses");
        QTest::keyClick(editor(), Qt::Key_Return);
        QTRY_COMPARE(m_searches->all().at(0).name, "My roses");
        QCOMPARE(names(), "My roses*");
        // Nothing typed leaves the name.
        QTRY_VERIFY(!editor());
        QTest::keyClick(m_list, Qt::Key_F2);
        editor()->clear();
        QTest::keyClick(editor(), Qt::Key_Return);
        QTRY_COMPARE(names(), "My roses*");
    }

    void refusesTakenNames()
    {
        m_searches->add({"a", "rose"});
        m_searches->add({"b", "tulip"});
        const MessageBoxes ok(QMessageBox::Ok);
        m_list->item(0)->setText("b");
        QTRY_COMPARE(ok.count(), 1);
        QTRY_COMPARE(names(), "a|b");
        QCOMPARE(m_searches->all().at(0).name, "a");
    }

    void removesAfterAQuestion()
    {
        m_searches->add({"Roses", "rose"});
        m_filter->setSearchSubstring("rose");
        {
            const MessageBoxes no(QMessageBox::No);
            QTest::keyClick(m_list, Qt::Key_Delete);
            QCOMPARE(no.count(), 1);
        }
        QCOMPARE(m_searches->all().count(), 1);
        const MessageBoxes yes(QMessageBox::Yes);
        QTest::keyClick(m_list, Qt::Key_Delete);
        QCOMPARE(m_searches->all().count(), 0);
        QVERIFY(!m_list->isVisible());
        // The search itself stays.
        QCOMPARE(m_filter->searchText(), "rose");
    }

private:
    QString names() const
    {
        QStringList names;
        for (int row = 0; row < m_list->count(); ++row)
            names << m_list->item(row)->text() + (m_list->item(row)->isSelected() ? "*" : "");
        return names.join('|');
    }

    QLineEdit *editor() const { return m_list->findChild<QLineEdit *>(); }

    std::unique_ptr<SavedSearches> m_searches;
    std::unique_ptr<FilterModel> m_filter;
    std::unique_ptr<SavedSearchesBox> m_box;
    QListWidget *m_list = nullptr;
};

QTEST_MAIN(tst_savedsearchesbox)
#include "tst_savedsearchesbox.moc"
