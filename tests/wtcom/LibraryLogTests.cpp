#include "LibraryLog.h"

#include <QTemporaryDir>
#include <QTest>
#include <thread>

using namespace Qt::Literals::StringLiterals;

class LibraryLogTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void maskChoosesTheLevels();
    void theFileStaysWithinItsLimit();
    void linesOfManyThreadsStayWhole();
    void worksWithoutAFile();

private:
    QByteArray content() const
    {
        QFile file(m_path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(u"library.log"_s);
};

void LibraryLogTests::maskChoosesTheLevels()
{
    LibraryLog log;
    log.configure(m_path, LibraryLog::Error | LibraryLog::Info);
    log.write(LibraryLog::Info, u"kept"_s);
    log.write(LibraryLog::Debug, u"dropped"_s);
    log.configure(m_path, 255);
    log.write(LibraryLog::Debug, u"kept as well"_s);
    const QByteArrayList lines = content().trimmed().split('\n');
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines[0].endsWith(" info kept"));
    QVERIFY(lines[1].endsWith(" debug kept as well"));
    QCOMPARE(QFile::permissions(m_path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
}

void LibraryLogTests::theFileStaysWithinItsLimit()
{
    LibraryLog log;
    log.configure(m_path, 255);
    const QString text(1000, u'x');
    qint64 largest = 0;
    for (int i = 0; i < 2500; ++i) {
        log.write(LibraryLog::Info, text);
        largest = std::max(largest, QFile(m_path).size());
    }
    QVERIFY(largest <= LibraryLog::sizeLimit);
    QVERIFY(largest > LibraryLog::sizeLimit / 2);
    log.write(LibraryLog::Info, u"last"_s);
    QVERIFY(content().endsWith(" info last\n"));
}

void LibraryLogTests::linesOfManyThreadsStayWhole()
{
    QFile::remove(m_path);
    LibraryLog log;
    log.configure(m_path, 255);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int line = 0; line < 100; ++line)
                log.write(LibraryLog::Info, u"a line"_s);
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    const QByteArrayList lines = content().trimmed().split('\n');
    QCOMPARE(lines.size(), 400);
    for (const QByteArray &line : lines)
        QVERIFY(line.endsWith(" info a line"));
}

void LibraryLogTests::worksWithoutAFile()
{
    for (const QString &path : {QString(), m_folder.filePath(u"none/library.log"_s), m_folder.path()}) {
        LibraryLog log;
        log.configure(path, 255);
        log.write(LibraryLog::Error, u"nowhere"_s);
        // A path that can be written takes over later.
        QFile::remove(m_path);
        log.configure(m_path, 255);
        log.write(LibraryLog::Error, u"here"_s);
        QVERIFY2(content().endsWith(" error here\n"), qPrintable(path));
    }
}

QTEST_GUILESS_MAIN(LibraryLogTests)
#include "LibraryLogTests.moc"
