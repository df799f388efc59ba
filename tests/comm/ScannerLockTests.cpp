#include "ScannerLock.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

class ScannerLockTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyALockedFileIsHeld();

private:
    QTemporaryDir m_folder;
};

void ScannerLockTests::onlyALockedFileIsHeld()
{
    QFile lock(m_folder.filePath(u"lock"_s));
    QVERIFY(lock.open(QIODevice::WriteOnly));
    QCOMPARE(flock(lock.handle(), LOCK_SH), 0);
    QVERIFY(ScannerLock::isHeld({u"/nowhere/lock"_s, lock.fileName()}));

    // What another user may put at a lock's path: a link to a lock of his own, a pipe that nobody writes to.
    const QString link = m_folder.filePath(u"link"_s), pipe = m_folder.filePath(u"pipe"_s);
    QVERIFY(QFile::link(lock.fileName(), link));
    QCOMPARE(mkfifo(QFile::encodeName(pipe), 0600), 0);
    const int folder = open(QFile::encodeName(m_folder.path()), O_RDONLY | O_DIRECTORY);
    QCOMPARE(flock(folder, LOCK_EX), 0);
    QVERIFY(!ScannerLock::isHeld({link, pipe, m_folder.path()}));
    close(folder);
}

QTEST_APPLESS_MAIN(ScannerLockTests)
#include "ScannerLockTests.moc"
