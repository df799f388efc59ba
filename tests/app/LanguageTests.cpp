#include "BundleEx.h"
#include "FakeHost.h"
#include "HostLanguages.h"
#include "InfoList.h"
#include "Localized.h"
#include "LogCollector.h"
#include "Rows.h"
#include "WTApp.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace
{

const QString probeArgument = u"--tell-language"_s;

/// What the program does when it is started as the child process of the locale test: it prints what it made of its
/// environment, one fact a line, and then its log.
int tellLanguage(const QString &resources)
{
    LogCollector log;
    FakeHostWiFi hostWiFi;
    FakeDesktop desktop;
    InfoList::setResourceFolder(resources);
    WTApp::usePorts(hostWiFi, desktop, {});

    const QString decided = WTApp::shared().currentLocale();
    const QStringList lines = log.lines();
    const QString language = WTApp::shared().appLanguage().value_or(u"(none)"_s);
    const QString shown = BundleEx::shownLanguage().value_or(u"(none)"_s);
    std::printf("%s\n%s\n%s\n%s\n%s\n", qPrintable(decided), qPrintable(language), qPrintable(shown),
                localized(u"取消"_s).toUtf8().constData(), qPrintable(lines.join(u'\n')));
    return 0;
}

using Environment = QMap<QString, QString>;

} // namespace

class LanguageTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder.filePath(u"config"_s)));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.filePath(u"config"_s));
        WTApp::usePorts(m_hostWiFi, m_desktop, {});

        for (const QString &language : {u"en"_s, u"zh-Hans"_s, u"zh-Hant"_s, u"ja"_s})
            QVERIFY(QDir().mkpath(m_folder.filePath(u"res/%1.lproj"_s.arg(language))));
        QVERIFY(QFile::copy(QStringLiteral(WT_RESOURCES "/en.lproj/wifitool.qm"),
                            m_folder.filePath(u"res/en.lproj/wifitool.qm"_s)));
        QVERIFY(QFile(m_folder.filePath(u"res/catalogue.json"_s)).open(QIODevice::WriteOnly));
    }

    void init()
    {
        QDir(m_folder.filePath(u"config"_s)).removeRecursively();
        InfoList::setResourceFolder(m_folder.filePath(u"res"_s));
        BundleEx::showLanguage(std::nullopt);
    }

    void readsPreferredLanguages()
    {
        eachRow(
            {
                {"the C locale", {{u"LANG"_s, u"C.UTF-8"_s}, {u"LC_ALL"_s, u"POSIX"_s}}, {}},
                {"script in front of territory alone", {{u"LANG"_s, u"zh_SG.UTF-8"_s}}, {u"zh-Hans-SG"_s, u"zh-SG"_s}},
                {"best first",
                 {{u"LANGUAGE"_s, u"fr_FR:de"_s},
                  {u"LC_ALL"_s, u"fr_FR@euro"_s},
                  {u"LANG"_s, u"zh_HK.UTF-8"_s},
                  {u"LC_MESSAGES"_s, u"it_IT"_s}},
                 {u"fr-Latn-FR"_s, u"de-Latn-DE"_s, u"it-Latn-IT"_s, u"zh-Hant-HK"_s, u"fr-FR"_s, u"de"_s, u"it-IT"_s,
                  u"zh-HK"_s}},
            },
            [&](const Environment &environment, const QStringList &languages) {
                QProcessEnvironment process;
                for (const QString &variable : environment.keys())
                    process.insert(variable, environment.value(variable));
                QCOMPARE(HostLanguages::preferred(process), languages);
            });
    }

    void decidesByTheLocale()
    {
        const auto told = [](const QString &decided) { return u"info: App Language:"_s + decided; };
        const QString english = u"en"_s;
        const QString traditional = u"zh-Hant"_s;
        const QString otherLine = u"info: OS Language:fr, App Lang:en"_s;
        const QString chinese = u"zh_CN.UTF-8"_s;
        const QStringList taiwan{u"en"_s, u"zh-Hant-TW"_s, u"zh-CN"_s};
        eachRow(
            {
                {"English", u"en_GB.UTF-8"_s, {}, english, u"Cancel"_s, told(english)},
                {"the C locale", u"C"_s, {}, english, u"Cancel"_s, u"error: Error LanguageCode"_s},
                {"Hong Kong", u"zh_HK.UTF-8"_s, {}, traditional, u"取消"_s, told(traditional)},
                {"a folder without texts", u"ja_JP.UTF-8"_s, {}, u"ja"_s, u"取消"_s, told(u"ja"_s)},
                {"no folder", u"fr_FR.UTF-8"_s, {}, english, u"Cancel"_s, otherLine},
                {"an entry that is no language", u"ca_ES.UTF-8"_s, {}, u"ca"_s, u"Cancel"_s, told(u"ca"_s)},
                {"the user's list: Hant", chinese, taiwan, traditional, u"取消"_s, told(traditional)},
                {"the user's list: HK", chinese, {u"zh-HK"_s}, traditional, u"取消"_s, told(traditional)},
            },
            [&](const QString &locale, const QStringList &stored, const QString &decided, const QString &cancel,
                const QString &lastLine) {
                init();
                if (!stored.isEmpty())
                    QSettings(u"wifitool"_s, u"wifitool"_s).setValue(u"AppleLanguages", stored);

                QProcessEnvironment process = QProcessEnvironment::systemEnvironment();
                for (const QString &variable : {u"LANGUAGE"_s, u"LC_ALL"_s, u"LC_MESSAGES"_s})
                    process.remove(variable);
                process.insert(u"LANG"_s, locale);
                QProcess probe;
                probe.setProcessEnvironment(process);
                probe.start(QCoreApplication::applicationFilePath(), {probeArgument, m_folder.filePath(u"res"_s)});
                QVERIFY(probe.waitForFinished());
                const QStringList printed = QString::fromUtf8(probe.readAllStandardOutput()).trimmed().split(u'\n');
                QVERIFY2(printed.size() > 4, probe.readAllStandardError().constData());
                QCOMPARE(printed[0], decided);
                QCOMPARE(printed[1], decided);
                // The toolkit's own texts are to be in the language of the program's.
                QCOMPARE(printed[2], printed[3] == u"Cancel"_s ? u"en"_s : decided);
                QCOMPARE(printed[3], cancel);
                QCOMPARE(printed.last(), lastLine);
            });
    }

    void putsTheLanguageThatWasSetFirst()
    {
        const QStringList before{u"en"_s, u"zh-Hans-CN"_s, u"zh-Hant-TW"_s};
        QSettings(u"wifitool"_s, u"wifitool"_s).setValue(u"AppleLanguages", before);
        QCOMPARE(BundleEx::setAppLanguage(QString()), before);
        const QStringList after{u"zh-Hans-CN"_s, u"en"_s, u"zh-Hant-TW"_s};
        QCOMPARE(BundleEx::setAppLanguage(u"zh"_s), after);
        QCOMPARE(BundleEx::getCurrentLanguage(), after);
    }

    void storesOnlyWhatTheUserSet()
    {
        const QString settings = m_folder.filePath(u"config"_s);
        BundleEx::getCurrentLanguage();
        BundleEx::setAppLanguage(std::nullopt);
        WTApp::shared().setAppLanguage(u"en"_s);
        QVERIFY(!QFile::exists(settings));
        BundleEx::setAppLanguage(u"ja"_s);
        QVERIFY(QFile::exists(settings));
    }

    void looksUpInTheAttachedLanguage()
    {
        const BundleEx &bundle = BundleEx::mainBundle();
        QCOMPARE(localized(u"取消"_s), u"取消"_s);
        QCOMPARE(bundle.localizedStringForKey(u"取消"_s, u"default"_s, {}), u"default"_s);

        QVERIFY(BundleEx::showLanguage(u"en"_s));
        QCOMPARE(localized(u"取消"_s), u"Cancel"_s);
        QCOMPARE(bundle.localizedStringForKey(u"取消"_s, u"default"_s, {}), u"Cancel"_s);
        QCOMPARE(localized(u"没有这句话"_s), u"没有这句话"_s);
        QCOMPARE(localized(u"用 %Text% 代替"_s), u"用 %@ 代替"_s);

        QVERIFY(!BundleEx::showLanguage(u"xx"_s));
        QCOMPARE(localized(u"取消"_s), u"取消"_s);

        WTApp &app = WTApp::shared();
        app.setAppLanguage(u"en"_s);
        QCOMPARE(localized(u"取消"_s), u"Cancel"_s);
        app.setAppLanguage(u"ja"_s);
        app.setAppLanguage(u""_s);
        QCOMPARE(app.appLanguage(), u"ja"_s);
    }

private:
    QTemporaryDir m_folder;
    FakeHostWiFi m_hostWiFi;
    FakeDesktop m_desktop;
};

int main(int argc, char **argv)
{
    if (argc == 3 && QString::fromLocal8Bit(argv[1]) == probeArgument)
        return tellLanguage(QFile::decodeName(argv[2]));
    QCoreApplication application(argc, argv);
    LanguageTests test;
    return QTest::qExec(&test, argc, argv);
}

#include "LanguageTests.moc"
