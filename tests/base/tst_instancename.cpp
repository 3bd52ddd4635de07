#include "base/InstanceName.h"
#include "support/Rows.h"

#include <QtTest>

class InstanceNameTest : public QObject
{
    Q_OBJECT

private slots:
    void hashesItsFields_data()
    {
        const Rows<QStringList, QString> row("fields", "name");
        // Taken from an implementation of the hash in another language.
        row("as the product uses it",
            {"Hoopline Organizer", "hoopline.example", "", "", "", "ada0"},
            "rxVg20m+GkcT6mFeWX2XkJ53SHiHERJS5K_QZ1MY3WM=");
        row("all fields", {"App", "Org", "dom", "1.2", "/opt/app", QString::fromUtf8("Zo\303\253")},
            "E_ELiVAPRyTQiqykk0PzIfifXT0530T3WXOkboTfvz0=");
    }

    void hashesItsFields()
    {
        QFETCH(QStringList, fields);
        InstanceName name;
        name.applicationName = fields.at(0);
        name.organisationName = fields.at(1);
        name.organisationDomain = fields.at(2);
        name.applicationVersion = fields.at(3);
        name.applicationFilePath = fields.at(4);
        name.userName = fields.at(5);
        QTEST(name.toString(), "name");
    }
};

QTEST_GUILESS_MAIN(InstanceNameTest)
#include "tst_instancename.moc"
