#pragma once

#include <QtTest>

/**
 * The table of a data-driven test: `const Rows<QString, int> row("text", "count")` declares its
 * columns, and each `row("nothing", "", 0)` adds a row of values of these very types.
 */
template <class... Types>
class Rows
{
public:
    template <class... Names>
    explicit Rows(Names... names)
    {
        static_assert(sizeof...(Names) == sizeof...(Types), "each column has a name");
        (QTest::addColumn<Types>(names), ...);
    }

    void operator()(const char *name, const Types &...values) const
    {
        QTestData &data = QTest::newRow(name);
        (data << ... << values);
    }
};
