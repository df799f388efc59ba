#pragma once

#include <QTest>
#include <initializer_list>
#include <tuple>

template <typename Call>
struct RowOfCall;

template <typename Test, typename... Parameters>
struct RowOfCall<void (Test::*)(Parameters...) const> {
    using Type = std::tuple<const char *, std::decay_t<Parameters>...>;
};

/// A name and the arguments of one call of the test.
template <typename Test>
using RowOf = typename RowOfCall<decltype(&Test::operator())>::Type;

/// Calls the test with every row, up to the first that fails, and says which row that was.
template <typename Test>
void eachRow(std::initializer_list<RowOf<Test>> rows, const Test &test)
{
    for (const RowOf<Test> &row : rows) {
        std::apply([&](const char *, const auto &...arguments) { test(arguments...); }, row);
        if (QTest::currentTestFailed())
            return qCritical("This was the row \"%s\".", std::get<0>(row));
    }
}
