#pragma once

#include <QSharedPointer>
#include <QString>

/** What the registry holds for a role: a way to come by an object of one class. */
class ConstructorBase
{
public:
    explicit ConstructorBase(const QString &className) : m_className(className) {}
    virtual ~ConstructorBase() = default;

    /** Readable name of the class that is made; for diagnostics. */
    QString className() const { return m_className; }

private:
    QString m_className;
};

/** Makes objects that are used as a T and built from one P1. */
template <typename T, typename P1>
class ConstructorP1 : public ConstructorBase
{
public:
    using ConstructorBase::ConstructorBase;
    virtual QSharedPointer<T> newObject(const P1 &p1) const = 0;
};

template <typename T, typename C, typename P1>
class ConcreteConstructorP1 : public ConstructorP1<T, P1>
{
public:
    using ConstructorP1<T, P1>::ConstructorP1;
    QSharedPointer<T> newObject(const P1 &p1) const override
    {
        return QSharedPointer<T>(new C(p1));
    }
};

/** Hands out one ready-made object. */
template <typename T>
class ConcreteInstance : public ConstructorBase
{
public:
    ConcreteInstance(const QString &className, const QSharedPointer<T> &instance)
        : ConstructorBase(className), m_instance(instance)
    {
    }
    QSharedPointer<T> instance() const { return m_instance; }

private:
    QSharedPointer<T> m_instance;
};
