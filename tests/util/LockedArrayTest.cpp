#include "BKThreadSafeArray.h"
#include "WTSafeArray.h"

#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <numeric>
#include <thread>
#include <vector>

using namespace Qt::Literals::StringLiterals;

using Numbers = QList<int>;
using SafeNumbers = WTSafeArray<int>;
using ThreadSafeNumbers = BKThreadSafeArray<int>;

Q_DECLARE_METATYPE(std::function<void(ThreadSafeNumbers &)>)

class LockedArrayTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changes_data();
    void changes();
    void refusesPlacesBeyondTheEnd_data();
    void refusesPlacesBeyondTheEnd();
    void answersAbsentWhereNothingIs();
    void reads();
    void searches();
    void derivesNewArrays();
    void appliesADifference();
    void copiesToAnArrayOfItsOwn();
    void equalsOnlyItsOwnKind();
    void noticesChangesBetweenBatches();
    void readsAFileThatHoldsAnArray();
    void shufflesWithoutLoss();
    void servesManyThreads();
};

void LockedArrayTest::changes_data()
{
    QTest::addColumn<Numbers>("before");
    QTest::addColumn<std::function<void(ThreadSafeNumbers &)>>("change");
    QTest::addColumn<Numbers>("after");
    const auto row = [](const char *name, const Numbers &before, std::function<void(ThreadSafeNumbers &)> change,
                        const Numbers &after) { QTest::newRow(name) << before << std::move(change) << after; };
    using Array = ThreadSafeNumbers;
    const auto byValue = [](int left, int right) { return left - right; };

    row("addObject", {1}, [](Array &array) { array.addObject(2); }, {1, 2});
    row("insertObject at the end", {1}, [](Array &array) { array.insertObject(2, 1); }, {1, 2});
    row("insertObject at the front", {1}, [](Array &array) { array.insertObject(2, 0); }, {2, 1});
    row("removeLastObject", {1, 2}, [](Array &array) { array.removeLastObject(); }, {1});
    row("removeObjectAtIndex", {1, 2, 3}, [](Array &array) { array.removeObjectAtIndex(1); }, {1, 3});
    row("replaceObjectAtIndex", {1, 2}, [](Array &array) { array.replaceObjectAtIndex(1, 5); }, {1, 5});
    row("exchangeObjectAtIndex", {1, 2, 3}, [](Array &array) { array.exchangeObjectAtIndex(0, 2); }, {3, 2, 1});
    row("removeObject removes all", {1, 2, 1}, [](Array &array) { array.removeObject(1); }, {2});
    row("removeObject in a range", {1, 1, 1, 2}, [](Array &array) { array.removeObject(1, {1, 2}); }, {1, 2});
    row("removeObjectsInArray", {1, 2, 3, 2}, [](Array &array) { array.removeObjectsInArray({2, 9}); }, {1, 3});
    row("removeObjectsInRange", {1, 2, 3}, [](Array &array) { array.removeObjectsInRange({1, 2}); }, {1});
    row("replaceObjectsInRange", {1, 2, 3},
        [](Array &array) {
            array.replaceObjectsInRange({0, 2}, {7, 8, 9});
        },
        {7, 8, 9, 3});
    row("replaceObjectsInRange by a part", {1, 2},
        [](Array &array) {
            array.replaceObjectsInRange({1, 1}, {7, 8, 9}, {1, 2});
        },
        {1, 8, 9});
    row("insertObjects at places", {1, 2},
        [](Array &array) {
            array.insertObjects({7, 8, 9}, IndexSet{0, 2, 4});
        },
        {7, 1, 8, 2, 9});
    row("removeObjectsAtIndexes", {1, 2, 3}, [](Array &array) { array.removeObjectsAtIndexes({0, 2}); }, {2});
    row("replaceObjectsAtIndexes", {1, 2, 3},
        [](Array &array) {
            array.replaceObjectsAtIndexes({0, 2}, {7, 9});
        },
        {7, 2, 9});
    row("setObject at the end adds", {1}, [](Array &array) { array.setObject(2, 1); }, {1, 2});
    row("setObject replaces", {1, 3}, [](Array &array) { array.setObject(2, 1); }, {1, 2});
    row("setArray", {1}, [](Array &array) { array.setArray({4, 5}); }, {4, 5});
    row("sortUsingComparator", {3, 1, 2}, [=](Array &array) { array.sortUsingComparator(byValue); }, {1, 2, 3});
    row("sortUsingFunction", {3, 1, 2},
        [](Array &array) {
            array.sortUsingFunction([](int left, int right, int sign) { return sign * (left - right); }, -1);
        },
        {3, 2, 1});
    row("appendObjects", {1}, [](Array &array) { array.appendObjects({2, 3}); }, {1, 2, 3});
    row("prependObjects", {1}, [](Array &array) { array.prependObjects({2, 3}); }, {2, 3, 1});
    row("insertObjects at an index", {1, 4}, [](Array &array) { array.insertObjects({2, 3}, 1); }, {1, 2, 3, 4});
    row("removeFirstObject", {1, 2}, [](Array &array) { array.removeFirstObject(); }, {2});
    row("removeFirstObject of none", {}, [](Array &array) { array.removeFirstObject(); }, {});
    row("reverse keeps the middle", {1, 2, 3}, [](Array &array) { array.reverse(); }, {3, 2, 1});
    row("reverse an even count", {1, 2, 3, 4}, [](Array &array) { array.reverse(); }, {4, 3, 2, 1});
    row("shuffle one", {1}, [](Array &array) { array.shuffle(); }, {1});
}

void LockedArrayTest::changes()
{
    QFETCH(Numbers, before);
    QFETCH(std::function<void(ThreadSafeNumbers &)>, change);
    ThreadSafeNumbers array(before);
    change(array);
    QTEST(array.objectEnumerator(), "after");
}

void LockedArrayTest::refusesPlacesBeyondTheEnd_data()
{
    QTest::addColumn<std::function<void(ThreadSafeNumbers &)>>("change");
    const auto row = [](const char *name, std::function<void(ThreadSafeNumbers &)> change) {
        QTest::newRow(name) << std::move(change);
    };
    using Array = ThreadSafeNumbers;

    row("read at the end", [](Array &array) { array.objectAtIndex(2); });
    row("read before the start", [](Array &array) { array.objectAtIndexedSubscript(-1); });
    row("range", [](Array &array) { array.subarrayWithRange({1, 2}); });
    row("range that overflows", [](Array &array) {
        array.subarrayWithRange({1, std::numeric_limits<qsizetype>::max()});
    });
    row("insert", [](Array &array) { array.insertObject(9, 3); });
    row("set", [](Array &array) { array.setObject(9, 3); });
    row("replace", [](Array &array) { array.replaceObjectAtIndex(2, 9); });
    row("exchange", [](Array &array) { array.exchangeObjectAtIndex(0, 2); });
    row("remove one of several", [](Array &array) { array.removeObjectsAtIndexes({0, 2}); });
    row("insert one of several", [](Array &array) { array.insertObjects({7, 8}, IndexSet{0, 4}); });
    row("visit one of several", [](Array &array) {
        array.enumerateObjectsAtIndexes({0, 2}, EnumerationOption::Forward, [](int, qsizetype, bool &) {});
    });
    row("test one of several", [](Array &array) {
        array.indexesOfObjectsAtIndexes({0, 2}, EnumerationOption::Forward,
                                        [](int, qsizetype, bool &) { return true; });
    });
    row("look for one of several", [](Array &array) {
        array.indexOfObjectAtIndexes({0, 2}, EnumerationOption::Reverse, [](int, qsizetype, bool &) { return true; });
    });
    row("too few to insert", [](Array &array) { array.insertObjects({7}, IndexSet{0, 1}); });
    row("too few to replace", [](Array &array) { array.replaceObjectsAtIndexes({0, 1}, {7}); });
    row("last of none", [](Array &array) {
        ThreadSafeNumbers().removeLastObject();
        Q_UNUSED(array)
    });
}

void LockedArrayTest::refusesPlacesBeyondTheEnd()
{
    QFETCH(std::function<void(ThreadSafeNumbers &)>, change);
    ThreadSafeNumbers array(Numbers{1, 2});
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, change(array));
    QCOMPARE(array.objectEnumerator(), Numbers({1, 2}));
}

void LockedArrayTest::answersAbsentWhereNothingIs()
{
    ThreadSafeNumbers array(Numbers{7});
    QCOMPARE(array.objectOrNilAtIndex(0), 7);
    QCOMPARE(array.objectOrNilAtIndex(1), std::nullopt);
    QCOMPARE(array.objectOrNilAtIndex(-1), std::nullopt);
    QCOMPARE(array.randomObject(), 7);
    QCOMPARE(array.popLastObject(), 7);
    QCOMPARE(array.popLastObject(), std::nullopt);
    QCOMPARE(array.popFirstObject(), std::nullopt);
    QCOMPARE(array.randomObject(), std::nullopt);
    QCOMPARE(array.firstObject(), std::nullopt);
    QCOMPARE(array.lastObject(), std::nullopt);
}

void LockedArrayTest::reads()
{
    const SafeNumbers array(Numbers{3, 1, 2});
    QCOMPARE(array.count(), 3);
    QCOMPARE(array.firstObject(), 3);
    QCOMPARE(array.lastObject(), 2);
    QVERIFY(array.containsObject(1));
    QCOMPARE(array.objectsAtIndexes({0, 2}), Numbers({3, 2}));
    QCOMPARE(array.getObjects({1, 2}), Numbers({1, 2}));
    QCOMPARE(array.reverseObjectEnumerator(), Numbers({2, 1, 3}));
    QCOMPARE(array.firstObjectCommonWithArray({2, 1}), 1);
    QCOMPARE(array.componentsJoinedByString(u"-"_s), u"3-1-2"_s);
    QCOMPARE(array.description(), u"(\n    3,\n    1,\n    2\n)"_s);
    QCOMPARE(WTSafeArray<QString>().description(), u"(\n)"_s);

    Numbers seen;
    array.enumerateObjectsWithOptions(EnumerationOption::Reverse, [&](int number, qsizetype index, bool &stop) {
        seen.append(number);
        stop = index == 1;
    });
    QCOMPARE(seen, Numbers({2, 1}));
}

void LockedArrayTest::searches()
{
    const SafeNumbers array(Numbers{1, 2, 2, 4});
    const auto even = [](int number, qsizetype, bool &) { return number % 2 == 0; };
    const auto byValue = [](int left, int right) { return left <=> right; };
    QCOMPARE(array.indexOfObject(2), 1);
    QCOMPARE(array.indexOfObject(2, {2, 2}), 2);
    QCOMPARE(array.indexOfObject(4, {0, 3}), std::nullopt);
    QCOMPARE(array.indexOfObjectPassingTest(even), 1);
    QCOMPARE(array.indexOfObjectWithOptions(EnumerationOption::Reverse, even), 3);
    QCOMPARE(array.indexOfObjectAtIndexes({0, 2}, EnumerationOption::Forward, even), 2);
    QCOMPARE(array.indexesOfObjectsPassingTest(even), IndexSet({1, 2, 3}));
    QCOMPARE(array.indexesOfObjectsAtIndexes({0, 3}, EnumerationOption::Forward, even), IndexSet({3}));
    QCOMPARE(array.indexOfObject(2, {0, 4}, BinarySearchOption::FirstEqual, byValue), 1);
    QCOMPARE(array.indexOfObject(2, {0, 4}, BinarySearchOption::LastEqual, byValue), 2);
    QCOMPARE(array.indexOfObject(3, {0, 4}, BinarySearchOption::AnyEqual, byValue), std::nullopt);
    QCOMPARE(array.indexOfObject(3, {0, 4}, BinarySearchOption::InsertionIndex, byValue), 3);
}

void LockedArrayTest::derivesNewArrays()
{
    const WTSafeArray<QString> array(QList{u"b"_s, u"a"_s});
    QCOMPARE(array.arrayByAddingObject(u"c"_s).objectEnumerator(), QList({u"b"_s, u"a"_s, u"c"_s}));
    const auto sorted =
        array.sortedArrayUsingSelector([](const QString &left, const QString &right) { return left.compare(right); });
    QCOMPARE(sorted.objectEnumerator(), QList({u"a"_s, u"b"_s}));
    QCOMPARE(array.firstObject(), u"b"_s);
}

void LockedArrayTest::appliesADifference()
{
    const SafeNumbers array(Numbers{1, 2, 3});
    const ArrayDifference<int> difference{.removals = {0, 2}, .insertions = {{0, 7}, {2, 9}}};
    QCOMPARE(array.arrayByApplyingDifference(difference).objectEnumerator(), Numbers({7, 2, 9}));
}

void LockedArrayTest::copiesToAnArrayOfItsOwn()
{
    SafeNumbers array(Numbers{1});
    SafeNumbers copy = array.copy();
    copy.addObject(2);
    QCOMPARE(array.count(), 1);
    array = copy;
    QVERIFY(array.isEqual(copy));
    array.removeAllObjects();
    QCOMPARE(copy.count(), 2);
}

void LockedArrayTest::equalsOnlyItsOwnKind()
{
    const SafeNumbers array(Numbers{1, 2});
    QVERIFY(array.isEqual(array));
    QVERIFY(array.isEqualToArray(SafeNumbers(Numbers{1, 2})));
    QCOMPARE(array.hash(), SafeNumbers(Numbers{1, 2}).hash());
    QVERIFY(!array.isEqual(SafeNumbers(Numbers{2, 1})));
    QVERIFY(!array.isEqual(Numbers{1, 2}));
    QVERIFY(!array.isEqual(ThreadSafeNumbers(Numbers{1, 2})));
}

void LockedArrayTest::noticesChangesBetweenBatches()
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

void LockedArrayTest::readsAFileThatHoldsAnArray()
{
    const QTemporaryDir folder;
    const auto write = [&](const char *contents) {
        QFile file(folder.filePath(u"array.json"_s));
        return file.open(QIODevice::WriteOnly) && file.write(contents) > 0;
    };
    const QString path = folder.filePath(u"array.json"_s);
    QVERIFY(!SafeNumbers::initWithContentsOfFile(path));
    QVERIFY(write("{}"));
    QVERIFY(!SafeNumbers::initWithContentsOfFile(path));
    QVERIFY(write("[1, 2]"));
    QCOMPARE(SafeNumbers::initWithContentsOfURL(QUrl::fromLocalFile(path)).value().objectEnumerator(), Numbers({1, 2}));
}

void LockedArrayTest::shufflesWithoutLoss()
{
    Numbers numbers(200);
    std::iota(numbers.begin(), numbers.end(), 0);
    ThreadSafeNumbers array(numbers);
    array.shuffle();
    QVERIFY(array.objectEnumerator() != numbers);
    array.sortUsingComparator([](int left, int right) { return left - right; });
    QCOMPARE(array.objectEnumerator(), numbers);
}

void LockedArrayTest::servesManyThreads()
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

QTEST_GUILESS_MAIN(LockedArrayTest)
#include "LockedArrayTest.moc"
