#include "embroidery/support/DesignTable.h"
#include "embroidery/support/PatternText.h"

#include <QtTest>

using namespace TestSupport;

class TestExpReader : public QObject
{
    Q_OBJECT

private slots:
    void records_data() { addDesigns("exp"); }

    void records()
    {
        QFETCH(QByteArray, bytes);
        QTEST(read("exp", bytes), "points");
    }
};

QTEST_APPLESS_MAIN(TestExpReader)
#include "tst_expreader.moc"
