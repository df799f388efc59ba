#include "BKThreadSafeArray.h"
#include "Rows.h"
#include "WTSafeArray.h"

#include <QTemporaryDir>
#include <functional>
#include <numeric>
#include <thread>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using enum EnumerationOption;

using Numbers = QList<int>;
using SafeNumbers = WTSafeArray<int>;
using Array = BKThreadSafeArray<int>;
using Change = std::function<void(Array &)>;

// Every operation compiles, also those that nobody calls.
template class LockedArray<Array, int>;
template class BKThreadSafeArray<int>;
template class WTSafeArray<int>;

namespace
{

const IndexSet outer{0, 2};
constexpr auto any = [](int, qsizetype, bool &) { return true; };
constexpr auto even = [](int number, qsizetype, bool &) { return number % 2 == 0; };
constexpr auto byValue = [](int left, int right) { return left - right; };
constexpr auto signedByValue = [](int left, int right, int sign) { return sign * (left - right); };

} // namespace

class LockedArrayTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changes_data();
    void changes();
    void refusesPlacesBeyondTheEnd_data();
    void refusesPlacesBeyondTheEnd();
    void answersAbsentWhereNothingIs();
    void reads();
    void copiesAndEqualsItsOwnKind();
    void noticesChangesBetweenBatches();
    void readsAFileThatHoldsAnArray();
    void shufflesWithoutLoss();
    void servesManyThreads();
};

void LockedArrayTests::changes_data()
{
    const Rows<Numbers, Change, Numbers> row{"before", "change", "after"};
    row("exchangeObjectAtIndex", {1, 2, 3}, [](Array &array) { array.exchangeObjectAtIndex(0, 2); }, {3, 2, 1});
    row("removeObject removes all", {1, 2, 1}, [](Array &array) { array.removeObject(1); }, {2});
    row("removeObject in a range", {1, 1, 1, 2}, [](Array &array) { array.removeObject(1, {1, 2}); }, {1, 2});
    row("removeObjectsInArray", {1, 2, 3, 2}, [](Array &array) { array.removeObjectsInArray({2, 9}); }, {1, 3});
    row("removeObjectsInRange", {1, 2, 3}, [](Array &array) { array.removeObjectsInRange({1, 2}); }, {1});
    row("removeObjectsAtIndexes", {1, 2, 3}, [](Array &array) { array.removeObjectsAtIndexes(outer); }, {2});
    row("removeFirstObject of none", {}, [](Array &array) { array.removeFirstObject(); }, {});
    const Numbers three{7, 8, 9};
    row("replaceObjectsInRange by a part", {1, 2},
        [=](Array &array) {
            array.replaceObjectsInRange({1, 1}, three, {1, 2});
        },
        {1, 8, 9});
    row("replaceObjectsAtIndexes", {1, 2, 3},
        [](Array &array) {
            array.replaceObjectsAtIndexes(outer, {7, 9});
        },
        {7, 2, 9});
    row("insertObjects at places", {1, 2},
        [=](Array &array) {
            array.insertObjects(three, IndexSet{0, 2, 4});
        },
        {7, 1, 8, 2, 9});
    row("insertObjects at an index", {1, 4}, [](Array &array) { array.insertObjects({2, 3}, 1); }, {1, 2, 3, 4});
    row("insertObject at the end", {1}, [](Array &array) { array.insertObject(2, 1); }, {1, 2});
    row("setObject at the end adds", {1}, [](Array &array) { array.setObject(2, 1); }, {1, 2});
    row("setObject replaces", {1, 3}, [](Array &array) { array.setObject(2, 1); }, {1, 2});
    row("prependObjects", {1}, [](Array &array) { array.prependObjects({2, 3}); }, {2, 3, 1});
    row("sortUsingFunction", {3, 1, 2}, [](Array &array) { array.sortUsingFunction(signedByValue, -1); }, {3, 2, 1});
    row("reverse keeps the middle", {1, 2, 3}, [](Array &array) { array.reverse(); }, {3, 2, 1});
    row("reverse an even count", {1, 2, 3, 4}, [](Array &array) { array.reverse(); }, {4, 3, 2, 1});
}

void LockedArrayTests::changes()
{
    QFETCH(Numbers, before);
    QFETCH(Change, change);
    Array array(before);
    change(array);
    QTEST(array.objectEnumerator(), "after");
}

void LockedArrayTests::refusesPlacesBeyondTheEnd_data()
{
    constexpr auto tooLong = std::numeric_limits<qsizetype>::max();
    const Rows<Change> row{"change"};
    row("read at the end", [](Array &array) { array.objectAtIndex(2); });
    row("read before the start", [](Array &array) { array.objectAtIndexedSubscript(-1); });
    row("range", [](Array &array) { array.subarrayWithRange({1, 2}); });
    row("range that overflows", [](Array &array) { array.subarrayWithRange({1, tooLong}); });
    row("insert", [](Array &array) { array.insertObject(9, 3); });
    row("set", [](Array &array) { array.setObject(9, 3); });
    row("exchange", [](Array &array) { array.exchangeObjectAtIndex(0, 2); });
    row("remove one of several", [](Array &array) { array.removeObjectsAtIndexes(outer); });
    row("insert one of several", [](Array &array) { array.insertObjects({7, 8}, IndexSet{0, 4}); });
    row("visit one of several", [](Array &array) { array.enumerateObjectsAtIndexes(outer, Forward, any); });
    row("test one of several", [](Array &array) { array.indexesOfObjectsAtIndexes(outer, Forward, any); });
    row("look for one of several", [](Array &array) { array.indexOfObjectAtIndexes(outer, Reverse, any); });
    row("too few to insert", [](Array &array) { array.insertObjects({7}, IndexSet{0, 1}); });
    row("too few to replace", [](Array &array) { array.replaceObjectsAtIndexes({0, 1}, {7}); });
    row("last of none", [](Array &) { Array().removeLastObject(); });
}

void LockedArrayTests::refusesPlacesBeyondTheEnd()
{
    QFETCH(Change, change);
    Array array(Numbers{1, 2});
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, change(array));
    QCOMPARE(array.objectEnumerator(), Numbers({1, 2}));
}

void LockedArrayTests::answersAbsentWhereNothingIs()
{
    Array array(Numbers{7});
    QCOMPARE(array.objectOrNilAtIndex(0), 7);
    QCOMPARE(array.objectOrNilAtIndex(1), std::nullopt);
    QCOMPARE(array.objectOrNilAtIndex(-1), std::nullopt);
    QCOMPARE(array.popLastObject(), 7);
    QCOMPARE(array.popLastObject(), std::nullopt);
    QCOMPARE(array.popFirstObject(), std::nullopt);
    QCOMPARE(array.randomObject(), std::nullopt);
    QCOMPARE(array.firstObject(), std::nullopt);
    QCOMPARE(array.lastObject(), std::nullopt);
}

void LockedArrayTests::reads()
{
    const SafeNumbers array(Numbers{1, 2, 2, 4});
    QCOMPARE(array.objectsAtIndexes({0, 3}), Numbers({1, 4}));
    QCOMPARE(array.reverseObjectEnumerator(), Numbers({4, 2, 2, 1}));
    QCOMPARE(array.firstObjectCommonWithArray({4, 2}), 2);
    QCOMPARE(array.description(), u"(\n    1,\n    2,\n    2,\n    4\n)"_s);
    QCOMPARE(WTSafeArray<QString>().description(), u"(\n)"_s);
    QCOMPARE(array.indexOfObject(2, {2, 2}), 2);
    QCOMPARE(array.indexOfObject(4, {0, 3}), std::nullopt);
    QCOMPARE(array.indexOfObjectPassingTest(even), 1);
    QCOMPARE(array.indexOfObjectWithOptions(Reverse, even), 3);
    QCOMPARE(array.indexOfObjectAtIndexes(outer, Forward, even), 2);
    QCOMPARE(array.indexesOfObjectsPassingTest(even), IndexSet({1, 2, 3}));
    QCOMPARE(array.indexesOfObjectsAtIndexes({0, 3}, Forward, even), IndexSet({3}));
    QCOMPARE(array.indexOfObject(2, {0, 4}, BinarySearchOption::FirstEqual, byValue), 1);
    QCOMPARE(array.indexOfObject(2, {0, 4}, BinarySearchOption::LastEqual, byValue), 2);
    QCOMPARE(array.indexOfObject(3, {0, 4}, BinarySearchOption::AnyEqual, byValue), std::nullopt);
    QCOMPARE(array.indexOfObject(3, {0, 4}, BinarySearchOption::InsertionIndex, byValue), 3);
    const ArrayDifference<int> difference{.removals = outer, .insertions = {{0, 7}, {2, 9}}};
    QCOMPARE(array.arrayByApplyingDifference(difference).objectEnumerator(), Numbers({7, 2, 9, 4}));
    QCOMPARE(array.count(), 4);
}

void LockedArrayTests::copiesAndEqualsItsOwnKind()
{
    SafeNumbers array(Numbers{1, 2});
    SafeNumbers copy = array.copy();
    QVERIFY(array.isEqual(array) && array.isEqualToArray(copy));
    QCOMPARE(array.hash(), copy.hash());
    QVERIFY(!array.isEqual(SafeNumbers(Numbers{2, 1})));
    QVERIFY(!array.isEqual(Numbers{1, 2}));
    QVERIFY(!array.isEqual(Array(Numbers{1, 2})));
    copy.addObject(3);
    QCOMPARE(array.count(), 2);
    array = copy;
    array.removeAllObjects();
    QCOMPARE(copy.count(), 3);
}

void LockedArrayTests::noticesChangesBetweenBatches()
{
    SafeNumbers array(Numbers{1, 2, 3});
    std::array<int, 2> batch{};
    ArrayEnumerationState state;
    QCOMPARE(array.countByEnumeratingWithState(state, batch.data(), 2), 2);
    QCOMPARE(array.countByEnumeratingWithState(state, batch.data(), 2), 1);
    QCOMPARE(batch.at(0), 3);
    QCOMPARE(array.countByEnumeratingWithState(state, batch.data(), 2), 0);
    array.addObject(4);
    QVERIFY_THROWS_EXCEPTION(std::logic_error, array.countByEnumeratingWithState(state, batch.data(), 2));
}

void LockedArrayTests::readsAFileThatHoldsAnArray()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"array.json"_s);
    const auto write = [&](const char *contents) {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(contents) > 0;
    };
    QVERIFY(!SafeNumbers::initWithContentsOfFile(path));
    QVERIFY(write("{}") && !SafeNumbers::initWithContentsOfFile(path));
    QVERIFY(write("[1, 2]"));
    QCOMPARE(SafeNumbers::initWithContentsOfURL(QUrl::fromLocalFile(path)).value().objectEnumerator(), Numbers({1, 2}));
}

void LockedArrayTests::shufflesWithoutLoss()
{
    Numbers numbers(200);
    std::iota(numbers.begin(), numbers.end(), 0);
    Array array(numbers);
    array.shuffle();
    QVERIFY(array.objectEnumerator() != numbers);
    array.sortUsingComparator(byValue);
    QCOMPARE(array.objectEnumerator(), numbers);
}

void LockedArrayTests::servesManyThreads()
{
    constexpr int writers = 4, objects = 500;
    SafeNumbers array;
    std::vector<std::thread> threads;
    for (int writer = 0; writer < writers; ++writer) {
        threads.emplace_back([&] {
            for (int object = 0; object < objects; ++object) {
                array.addObject(object);
                if (object % 3 == 0)
                    array.removeLastObject();
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(array.count(), writers * (objects - (objects + 2) / 3));
}

QTEST_GUILESS_MAIN(LockedArrayTests)
#include "LockedArrayTests.moc"
