#include "BKThreadSafeArray.h"
#include "BKThreadSafeDictionary.h"
#include "Rows.h"
#include "WTSafeArray.h"

#include <functional>
#include <thread>
#include <vector>

using namespace Qt::Literals::StringLiterals;

using Numbers = QList<int>;
using SafeNumbers = WTSafeArray<int>;
using Array = BKThreadSafeArray<int>;
using Change = std::function<void(Array &)>;
using Ages = BKThreadSafeDictionary<QString, int>;

// Every operation compiles, also those that nobody calls.
template class LockedArray<Array, int>;
template class BKThreadSafeArray<int>;
template class WTSafeArray<int>;
template class BKThreadSafeDictionary<QString, int>;

/// The collections that several threads use at once.
class CollectionTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changesInPlace()
    {
        const auto signedByValue = [](int left, int right, int sign) { return sign * (left - right); };
        Array array(Numbers{1, 2, 1, 3});
        array.removeObject(1);
        array.prependObjects({9, 8});
        array.setObject(7, 4);
        array.insertObjects({5, 6}, IndexSet{0, 3});
        QCOMPARE(array.objectEnumerator(), Numbers({5, 9, 8, 6, 2, 3, 7}));
        array.replaceObjectsInRange({1, 2}, {4, 4, 1}, {1, 2});
        array.removeObjectsAtIndexes({0, 6});
        array.exchangeObjectAtIndex(0, 4);
        QCOMPARE(array.objectEnumerator(), Numbers({3, 1, 6, 2, 4}));
        array.sortUsingFunction(signedByValue, -1);
        array.reverse();
        QCOMPARE(array.objectEnumerator(), Numbers({1, 2, 3, 4, 6}));
        QCOMPARE(array.popFirstObject(), 1);
        QCOMPARE(array.popLastObject(), 6);
        QCOMPARE(array.objectOrNilAtIndex(3), std::nullopt);
    }

    void refusesPlacesBeyondTheEnd()
    {
        const IndexSet beyond{0, 2};
        const ArrayRange endless{1, std::numeric_limits<qsizetype>::max()};
        const std::vector<Change> changes{
            [](Array &array) { array.objectAtIndex(2); },
            [](Array &array) { array.objectAtIndexedSubscript(-1); },
            [&](Array &array) { array.subarrayWithRange(endless); },
            [](Array &array) { array.insertObject(9, 3); },
            [](Array &array) { array.exchangeObjectAtIndex(0, 2); },
            [&](Array &array) { array.removeObjectsAtIndexes(beyond); },
            [&](Array &array) { array.insertObjects(Numbers{7}, beyond); },
        };
        for (const Change &change : changes) {
            Array array(Numbers{1, 2});
            QVERIFY_THROWS_EXCEPTION(std::out_of_range, change(array));
            QCOMPARE(array.objectEnumerator(), Numbers({1, 2}));
        }
    }

    void copiesAndEqualsItsOwnKind()
    {
        const SafeNumbers array(Numbers{1, 2});
        SafeNumbers copy = array.copy();
        QVERIFY(array.isEqualToArray(copy));
        QVERIFY(!array.isEqual(SafeNumbers(Numbers{2, 1})));
        QVERIFY(!array.isEqual(Numbers{1, 2}));
        copy.addObject(3);
        QCOMPARE(array.description(), u"(\n    1,\n    2\n)"_s);
    }

    void keepsObjectsByKey()
    {
        Ages ages(QList{36, 7}, QList{u"Ada"_s, u"Bob"_s});
        ages.addEntriesFromDictionary({{u"Ada"_s, 37}, {u"Eve"_s, 1}});
        QCOMPARE(ages.keysSortedByValueUsingComparator([](int left, int right) { return left - right; }),
                 QList({u"Eve"_s, u"Bob"_s, u"Ada"_s}));
        QCOMPARE(ages.popObjectForKey(u"Ada"_s), 37);
        QCOMPARE(ages.popObjectForKey(u"Ada"_s), std::nullopt);
        QCOMPARE(ages.description(), u"{\n    Bob = 7;\n    Eve = 1;\n}"_s);
    }

    void servesManyThreads()
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
};

QTEST_GUILESS_MAIN(CollectionTests)
#include "CollectionTests.moc"
