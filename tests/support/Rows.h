#pragma once

#include <QTest>

/// The table of a `_data` function: it names the columns when it is made, and each call adds a row.
template <typename... Values>
class Rows
{
public:
    template <typename... Names>
    explicit Rows(const Names &...columns)
    {
        static_assert(sizeof...(Names) == sizeof...(Values));
        (QTest::addColumn<Values>(columns), ...);
    }

    void operator()(const char *name, const Values &...values) const { (QTest::newRow(name) << ... << values); }
};
