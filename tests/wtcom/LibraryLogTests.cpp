#include "LibraryLog.h"

#include <QTemporaryDir>
#include <QTest>
#include <sys/stat.h>
#include <thread>

using namespace Qt::Literals::StringLiterals;

class LibraryLogTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void maskChoosesTheLevels();
    void theFileKeepsTheLatestLines();
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

void LibraryLogTests::theFileKeepsTheLatestLines()
{
    LibraryLog log;
    log.configure(m_path, 255);
    const QString text(1000, u'x');
    for (int number = 0; number < 5000; ++number) {
        log.write(LibraryLog::Info, text + QString::number(number));
        const qint64 size = QFile(m_path).size();
        QVERIFY(size <= 2 * LibraryLog::bytesKept);
        QVERIFY(number < 2000 || size >= LibraryLog::bytesKept - 2 * text.size());
    }
    const QByteArrayList lines = content().trimmed().split('\n');
    for (qsizetype index = 0; index < lines.size(); ++index)
        QVERIFY(lines[index].endsWith('x' + QByteArray::number(5000 - lines.size() + index)));
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
    const QString pipe = m_folder.filePath(u"pipe"_s), victim = m_folder.filePath(u"victim"_s);
    const QString link = m_folder.filePath(u"link"_s);
    QCOMPARE(mkfifo(QFile::encodeName(pipe), 0600), 0);
    QVERIFY(QFile(victim).open(QIODevice::WriteOnly) && QFile::link(victim, link));
    for (const QString &path : {QString(), m_folder.filePath(u"none/library.log"_s), m_folder.path(), pipe, link}) {
        LibraryLog log;
        log.configure(path, 255);
        log.write(LibraryLog::Error, u"nowhere"_s);
        // A path that can be written takes over later.
        QFile::remove(m_path);
        log.configure(m_path, 255);
        log.write(LibraryLog::Error, u"here"_s);
        QVERIFY2(content().endsWith(" error here\n"), qPrintable(path));
    }
    QCOMPARE(QFile(victim).size(), 0);
}

QTEST_GUILESS_MAIN(LibraryLogTests)
#include "LibraryLogTests.moc"
