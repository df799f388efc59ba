#include "BKThreadSafeDictionary.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Ages = BKThreadSafeDictionary<QString, int>;
using PlainAges = QMap<QString, int>;

// Every operation compiles, also those that nobody calls.
template class BKThreadSafeDictionary<QString, int>;

class LockedDictionaryTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAndChanges();
    void sortsKeysByTheirValues();
    void describesItself();
    void copiesAndEqualsItsOwnKind();

private:
    const PlainAges m_plain{{u"Ada"_s, 36}, {u"Bob"_s, 7}, {u"Cyd"_s, 36}};
};

void LockedDictionaryTests::readsAndChanges()
{
    Ages ages(QList{36, 7}, QList{u"Ada"_s, u"Bob"_s});
    ages.setObject(8, u"Bob"_s);
    ages.addEntriesFromDictionary({{u"Ada"_s, 37}, {u"Eve"_s, 1}});
    QCOMPARE(ages.allKeys(), QList({u"Ada"_s, u"Bob"_s, u"Eve"_s}));
    QCOMPARE(ages.allValues(), QList({37, 8, 1}));
    QCOMPARE(ages.objectsForKeys({u"Eve"_s, u"Zoe"_s}, -1), QList({1, -1}));
    QCOMPARE(ages.popObjectForKey(u"Ada"_s), 37);
    QCOMPARE(ages.popObjectForKey(u"Ada"_s), std::nullopt);
    QCOMPARE(ages.popEntriesForKeys({u"Bob"_s, u"Zoe"_s}), PlainAges({{u"Bob"_s, 8}}));
    QCOMPARE(ages.allKeys(), QList({u"Eve"_s}));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, Ages(QList{1}, QList<QString>()));
}

void LockedDictionaryTests::sortsKeysByTheirValues()
{
    const Ages ages(m_plain);
    QCOMPARE(ages.keysSortedByValueUsingComparator([](int left, int right) { return left - right; }),
             QList({u"Bob"_s, u"Ada"_s, u"Cyd"_s}));
    QCOMPARE(ages.allKeysForObject(36), QList({u"Ada"_s, u"Cyd"_s}));
    const auto old = [](const QString &, int age, bool &stop) { return stop = age > 30; };
    QCOMPARE(ages.keysOfEntriesPassingTest(old), QSet({u"Ada"_s}));
    QCOMPARE(ages.keysOfEntriesWithOptions(EnumerationOption::Reverse, old), QSet({u"Cyd"_s}));
}

void LockedDictionaryTests::describesItself()
{
    const Ages ages(PlainAges{{u"Ada"_s, 36}, {u"Bob"_s, 7}});
    QCOMPARE(ages.description(), u"{\n    Ada = 36;\n    Bob = 7;\n}"_s);
    QCOMPARE(ages.descriptionInStringsFileFormat(), u"\"Ada\" = \"36\";\n\"Bob\" = \"7\";\n"_s);
    QCOMPARE(ages.jsonStringEncoded(), uR"({"Ada":36,"Bob":7})"_s);
}

void LockedDictionaryTests::copiesAndEqualsItsOwnKind()
{
    const Ages ages(m_plain);
    Ages copy = ages.copy();
    QVERIFY(ages.isEqualToDictionary(copy));
    QVERIFY(!ages.isEqual(m_plain));
    copy.removeAllObjects();
    QVERIFY(!ages.isEqual(copy));
    QCOMPARE(ages.count(), 3);
}

QTEST_GUILESS_MAIN(LockedDictionaryTests)
#include "LockedDictionaryTests.moc"
