#include "base/DI.h"

#include <QtTest>

namespace {

struct Shape
{
    virtual ~Shape() = default;
    virtual QString name() const = 0;
};

struct Default : Shape
{
    explicit Default(const QString &) {}
    explicit Default(int) {}
    QString name() const override { return "default"; }
};

struct Round : Shape
{
    explicit Round(const QString &suffix) : m_suffix(suffix) {}
    QString name() const override { return "round" + m_suffix; }
    QString m_suffix;
};

const QString Role = "Test::Shape";

QString made()
{
    return DI::newObject1<Shape, Default>(Role, QStringLiteral("!"))->name();
}

} // namespace

/** Objects by role. */
class tst_Registry : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { theDependencyRegistry()->reset(); }
    void unknownRoleGivesTheDefault() { QCOMPARE(made(), "default"); }

    void lastRegistrationWins()
    {
        auto *registry = theDependencyRegistry();
        registry->setConstructorWith1ParameterForRole<Shape, Default, QString>(Role);
        const ConstructorBase *first = registry->constructorBaseForName(Role);
        registry->setConstructorWith1ParameterForRole<Shape, Round, QString>(Role);
        QCOMPARE(made(), "round!");
        QVERIFY(first->className().endsWith("Default"));
        registry->reset();
        QVERIFY(!registry->constructorBaseForName(Role));
        QCOMPARE(made(), "default");
    }

    void mismatchGivesTheDefault()
    {
        theDependencyRegistry()->setConstructorWith1ParameterForRole<Shape, Round, QString>(Role);
        QCOMPARE((DI::newObject1<Shape, Default>(Role, 7)->name()), "default");
    }

    void readyMadeInstance()
    {
        const QSharedPointer<Shape> round(new Round(QString()));
        theDependencyRegistry()->setInstanceForRole<Shape>(Role, round);
        QCOMPARE((DI::newObject1<Shape, Default>(Role, QString())), round);
    }
};

QTEST_GUILESS_MAIN(tst_Registry)
#include "tst_registry.moc"
