#include "FieldFrame.h"
#include "KSPasswordField.h"
#include "LogCollector.h"
#include "Palette.h"
#include "Rows.h"
#include "RunBed.h"
#include "WTApp.h"
#include "WTButton.h"
#include "WTDefaultStyleBtn.h"
#include "WTNetworkWithManualAddition.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMessageBox>

using namespace Qt::Literals::StringLiterals;
using namespace EmulatedCommand;

/// The manual entry screen, used as a person uses it, with a printer on real libusb in virtual time.
class ManualAdditionTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log = std::make_unique<LogCollector>(); }

    void cleanup()
    {
        m_bed.reset();
        m_log.reset();
    }

    void saysWhyThereIsNoList()
    {
        WTApp::shared().currentInterface.reset();
        open();
        QVERIFY(m_screen->accessibleDescription().startsWith(u"此电脑没有 Wi-Fi 适配器"_s));
        WTApp::shared().currentInterface = HostWiFiState{};
        m_screen->viewDidApear();
        QVERIFY(m_screen->accessibleDescription().startsWith(u"此电脑的无线网络已关闭"_s));
    }

    void typing()
    {
        const QString widest(32, u'n');
        const QString longest(64, u'x');
        eachRow(
            {
                {"33rd letter, 65th sign", widest + u'm', longest + u'y', widest, longest, true},
                {"letters outside the pattern", u"Home"_s, u"caféß1"_s, u"Home"_s, u"caf1"_s, true},
            },
            [&](const QString &name, const QString &password, const QString &shownName, const QString &shownPassword,
                bool nextEnabled) {
                open();
                QVERIFY(!nextButton()->isEnabled());
                nameField()->setFocus();
                for (const QChar letter : name)
                    QTest::sendKeyEvent(QTest::Click, nameField(), Qt::Key_unknown, QString(letter), Qt::NoModifier);
                QTest::keyClick(nameField(), Qt::Key_Tab);
                QVERIFY(passwordField()->hasFocus());
                for (const QChar letter : password)
                    QTest::sendKeyEvent(QTest::Click, passwordField(), Qt::Key_unknown, QString(letter),
                                        Qt::NoModifier);
                QCOMPARE(nameField()->text(), shownName);
                QCOMPARE(passwordField()->text(), shownPassword);
                QCOMPARE(m_screen->lastPwd(), passwordField()->text());
                QCOMPARE(nextButton()->isEnabled(), nextEnabled);
            });
    }

    void focusColoursTheFrames()
    {
        open();
        const auto colour = [](const QWidget *field) {
            return qobject_cast<FieldFrame *>(field->parentWidget())->borderColor();
        };
        nameField()->setFocus();
        QCOMPARE(colour(nameField()), Palette::focusBlue);
        QCOMPARE(colour(passwordField()), Palette::frame);
        QTest::mouseClick(passwordField(), Qt::LeftButton);
        QCOMPARE(colour(nameField()), Palette::frame);
        QCOMPARE(colour(passwordField()), Palette::focusBlue);
        find<WTButton>("showPwdBtn"_L1)->setFocus();
        QCOMPARE(colour(passwordField()), Palette::frame);
    }

    void showsAndHidesThePassword()
    {
        open();
        auto *checkBox = find<WTButton>("showPwdBtn"_L1);
        QTest::mouseClick(checkBox, Qt::LeftButton);
        QVERIFY(passwordField()->showsText());
        QCOMPARE(checkBox->imageName(), u"icon_selected 1"_s);
        // The mark in the field and the check box are one switch.
        Q_EMIT passwordField()->showHidePressed();
        QVERIFY(!passwordField()->showsText());
        QCOMPARE(checkBox->imageName(), u"Rectangle 394"_s);
        Q_EMIT passwordField()->showHidePressed();
        QVERIFY(passwordField()->showsText());
        const QStringList lines = m_log->lines().filter(u"show pwd"_s);
        QCOMPARE(lines, (QStringList{u"info: show pwd👉🏻yes"_s, u"info: show pwd👉🏻no"_s,
                                     u"info: show pwd👉🏻yes"_s}));

        m_bed->window().setContentView(&m_bed->entry());
        m_bed->window().setContentView(m_screen);
        QVERIFY(!passwordField()->showsText());
        QCOMPARE(checkBox->imageName(), u"Rectangle 394"_s);
    }

    void enterStartsTheRun()
    {
        open();
        nameField()->setFocus();
        QTest::keyClicks(nameField(), u"Home"_s);
        passwordField()->setFocus();
        QTest::keyClicks(passwordField(), u"secret pass"_s);
        m_bed->installing().setProgress(40);
        QTest::keyClick(passwordField(), Qt::Key_Return);
        QCOMPARE(m_bed->current(), &m_bed->installing());
        QCOMPARE(m_bed->installing().printer(), m_screen->printer());
        QCOMPARE(m_bed->installing().wifi()->security, 0);
        QCOMPARE(m_bed->run().progress(), 0);
        QCOMPARE(m_bed->screenAtEnd(), &m_bed->complete());
        QCOMPARE(m_bed->bus().record().networkName, "Home");
        QCOMPARE(m_bed->bus().record().password, "secret pass");
        QVERIFY(m_log->lines().filter(u"secret pass"_s).isEmpty());
    }

    void staysAndSaysWhy()
    {
        const auto busy = u"打印端口被占用，无法打印无线网络信息页。"_s;
        const auto tooLong =
            u"密码太长，打印机最多接受 31 个字节（普通字母或数字各占一个）。请为网络设置较短的密码。"_s;
        const QString longPassword = u"-long-password-"_s.repeated(3);
        eachRow(
            {
                {"printing", false, QByteArray("4"), u"Home"_s, u"secret"_s, u"printer is busy now"_s, busy},
                {"no name", false, QByteArray("3"), QString(), longPassword, u"empty ssid"_s, QString()},
                {"password of 45 bytes", false, QByteArray("3"), u"Home"_s, longPassword,
                 u"password over 31 bytes refused"_s, tooLong},
            },
            [&](bool printsPage, const QByteArray &queueState, const QString &name, const QString &password,
                const QString &warning, const QString &informativeText) {
                open();
                m_bed->spooler.queues = {{"Quillmark_QZ100", queueState}};
                nameField()->setText(name);
                passwordField()->setText(password);
                if (printsPage)
                    m_screen->printWiFiList();
                else
                    m_screen->nextView();
                QCOMPARE(m_bed->current(), m_screen);
                QVERIFY(m_log->lines().contains(printsPage ? u"info: print WiFi list"_s : u"info: next step"_s));
                QVERIFY(m_log->lines().contains(u"warning: "_s + warning));
                QVERIFY(m_log->lines().filter(password).isEmpty());
                QCOMPARE(alert() != nullptr, !informativeText.isEmpty());
                if (!alert())
                    return;
                QCOMPARE(alert()->text(), u"温馨提示："_s);
                QCOMPARE(alert()->informativeText(), informativeText);
                QCOMPARE(alert()->windowModality(), Qt::WindowModal);
                QTest::keyClick(alert(), Qt::Key_Return);
                QVERIFY(m_bed->waitFor([this] { return !alert(); }));
                QCOMPARE(m_bed->current(), m_screen);
                QCOMPARE(m_bed->bus().record().commands(), std::vector<quint16>{});
            });
    }

    void printsInformationPage()
    {
        using Commands = std::vector<quint16>;
        using Faults = std::vector<PrinterFault>;
        const Commands both{WakeUp, InformationPage};
        eachRow(
            {
                {"new dialect", u"QZ100"_s, PrinterScript{}, both, 59},
                {"old dialect", u"QZ110"_s, PrinterScript{}, both, 61},
                {"unplugged", u"QZ100"_s, PrinterScript{.faults = Faults{{.command = WakeUp, .unplugIn = 0}}},
                 Commands{WakeUp}, 0},
            },
            [&](const QString &model, const PrinterScript &script, const std::vector<quint16> &commands,
                int pageBytes) {
                open(script, {.model = model});
                QTest::mouseClick(find<WTButton>("printWiFiHomePage"_L1), Qt::LeftButton);
                QVERIFY(m_bed->waitFor([this] { return alert() != nullptr; }));
                // The alert says "sent" whatever the printer answered; a cause stands below it.
                const QStringList said = alert()->informativeText().split(u"\n\n"_s);
                QCOMPARE(said.constFirst(), u"已将无线网络信息页发送给打印机"_s);
                QCOMPARE(said.size(), m_bed->bus().isPlugged() ? 1 : 3);
                const PrinterRecord record = m_bed->bus().record();
                QCOMPARE(record.commands(), commands);
                QVERIFY(record.allSound());
                if (record.count(InformationPage) > 0)
                    QCOMPARE(int(record.frames.back().bytes.size()), pageBytes);
            });
    }

private:
    template <typename Widget>
    Widget *find(QLatin1StringView name) const
    {
        return m_screen->findChild<Widget *>(QString(name));
    }
    WTTextfield *nameField() const { return find<WTTextfield>("ssidTextField"_L1); }
    KSPasswordField *passwordField() const { return find<KSPasswordField>("passwordTextField"_L1); }
    WTDefaultStyleBtn *nextButton() const { return find<WTDefaultStyleBtn>("nextBtn"_L1); }
    QMessageBox *alert() const { return m_bed->window().findChild<QMessageBox *>(u"alert"_s); }
    void open(const PrinterScript &script = {}, const ModelIdentity &identity = {})
    {
        cleanup();
        init();
        m_bed = std::make_unique<RunBed>(script, identity);
        m_screen = m_bed->screen<WTNetworkWithManualAddition>();
        m_screen->setPrinter(m_bed->findPrinter());
        m_bed->entry().pushView(m_screen);
    }

    std::unique_ptr<LogCollector> m_log;
    std::unique_ptr<RunBed> m_bed;
    WTNetworkWithManualAddition *m_screen = nullptr;
};

QTEST_MAIN(ManualAdditionTests)
#include "ManualAdditionTests.moc"
