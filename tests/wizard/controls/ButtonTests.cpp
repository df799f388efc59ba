#include "ButtonSchemes.h"
#include "InfoList.h"
#include "KSPasswordField.h"
#include "Palette.h"
#include "WTApp.h"
#include "WTButton.h"
#include "WTDefaultStyleBtn.h"

#include <QEnterEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

/// The coloured buttons: titles, states, colours.
class ButtonTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void titleIsPaddedByLanguage_data();
    void titleIsPaddedByLanguage();
    void titleIsSpokenWithoutPadding();
    void stateChoosesColours_data();
    void stateChoosesColours();
    void loadingKeepsWhetherItWasEnabled();
    void defaultStyleFollowsInteraction_data();
    void defaultStyleFollowsInteraction();
    void coloursFromText_data();
    void coloursFromText();
    void answersThePointer_data();
    void answersThePointer();
};

namespace
{

/// The fill of a button, read from its picture next to its left edge.
QColor fillOf(QWidget &button)
{
    const QImage picture = button.grab().toImage();
    return picture.pixelColor(12, picture.height() / 2);
}

using Make = QAbstractButton *(*)(QWidget &window);

template <void (*Apply)(WTButton &)>
QAbstractButton *makeButton(QWidget &window)
{
    auto *button = new WTButton(&window);
    button->setTitle(u"Title"_s);
    Apply(*button);
    button->adjustSize();
    return button;
}

QAbstractButton *makeEye(QWidget &window)
{
    return (new KSPasswordField(&window))->findChild<QToolButton *>();
}

int countDifferences(const QImage &one, const QImage &other)
{
    int different = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            different += one.pixel(x, y) != other.pixel(x, y);
    }
    return different;
}

} // namespace

void ButtonTests::initTestCase()
{
    InfoList::setResourceFolder(QStringLiteral(WT_RESOURCE_FOLDER));
}

void ButtonTests::titleIsPaddedByLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("added");

    QTest::newRow("Chinese") << u"zh-Hans"_s << u""_s << u"下一步"_s << 6;
    QTest::newRow("Japanese") << u"ja"_s << u""_s << u"次へ"_s << 6;
    QTest::newRow("Korean") << u"ko"_s << u""_s << u"Next"_s << 6;
    QTest::newRow("English") << u"en"_s << u""_s << u"Next"_s << 4;
    QTest::newRow("German") << u"de"_s << u""_s << u"Weiter"_s << 4;
    QTest::newRow("ends in two spaces") << u"en"_s << u""_s << u"Next  "_s << 0;
    QTest::newRow("ends in one space") << u"en"_s << u""_s << u"Next "_s << 4;
    QTest::newRow("empty") << u"en"_s << u""_s << u""_s << 4;
    QTest::newRow("picture") << u"ko"_s << u"icon"_s << u"Next"_s << 2;
    QTest::newRow("picture, ends in two spaces") << u"en"_s << u"icon"_s << u"Next  "_s << 2;
}

void ButtonTests::titleIsPaddedByLanguage()
{
    QFETCH(QString, language);
    QFETCH(QString, picture);
    QFETCH(QString, title);
    QFETCH(int, added);
    WTApp::shared().setAppLanguage(language);
    WTButton button;
    button.setImages(picture);
    button.setTitle(title);
    QCOMPARE(button.title(), title + QString(added, u' '));
}

void ButtonTests::titleIsSpokenWithoutPadding()
{
    WTButton button;
    button.setTitle(u"&Next"_s);
    button.awakeFromNib();
    QCOMPARE(button.accessibleName(), u"Next"_s);
    QCOMPARE(button.title(), u"&Next    "_s);
    button.setTitle(u"下一步(&N)"_s);
    QCOMPARE(button.accessibleName(), u"下一步"_s);
}

void ButtonTests::stateChoosesColours_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("stateString");
    QTest::addColumn<QColor>("fill");

    QTest::newRow("on") << 1 << u"On"_s << QColor(Qt::blue);
    QTest::newRow("off") << 0 << u"Off"_s << QColor(Qt::green);
    QTest::newRow("mixed") << -1 << u"Mixed"_s << QColor(Qt::yellow);
    QTest::newRow("unknown") << 2 << u"Mixed"_s << QColor(Qt::yellow);
}

void ButtonTests::stateChoosesColours()
{
    QFETCH(int, state);
    WTButton button;
    button.onBlackColor = Qt::blue;
    button.offBlackColor = Qt::green;
    button.mixedBlackColor = Qt::yellow;
    button.setState(WTButton::StateMixed);
    button.setState(static_cast<short>(state));
    QCOMPARE(button.state(), static_cast<short>(state));
    QTEST(button.stateString(), "stateString");
    QTEST(fillOf(button), "fill");
}

void ButtonTests::loadingKeepsWhetherItWasEnabled()
{
    WTButton button;
    button.setEnabled(false);
    button.awakeFromNib();
    QVERIFY(!button.idEnabled());
    QVERIFY(button.isEnabled());
    QVERIFY(button.isBorder());
    QCOMPARE(button.stateString(), u"Off"_s);
    QCOMPARE(fillOf(button), Palette::white);
}

void ButtonTests::defaultStyleFollowsInteraction_data()
{
    QTest::addColumn<bool>("disabled");
    QTest::addColumn<bool>("pressed");
    QTest::addColumn<QColor>("fill");

    QTest::newRow("at rest") << false << false << Palette::red;
    QTest::newRow("pressed") << false << true << Palette::redPressed;
    QTest::newRow("disabled") << true << false << Palette::redDisabled;
}

void ButtonTests::defaultStyleFollowsInteraction()
{
    QFETCH(bool, disabled);
    QFETCH(bool, pressed);
    WTDefaultStyleBtn button;
    QCOMPARE(button.title(), u"初始化"_s);
    button.setTitle(u"Next"_s);
    button.setDisable(disabled);
    button.setDown(pressed);
    QTEST(fillOf(button), "fill");

    QSignalSpy clicked(&button, &QAbstractButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(clicked.count(), disabled ? 0 : 1);
}

void ButtonTests::coloursFromText_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QColor>("color");

    QTest::newRow("with 0x") << QByteArray("0xD2212B") << QColor(0xD2, 0x21, 0x2B);
    QTest::newRow("without") << QByteArray("D2212B") << QColor(0xD2, 0x21, 0x2B);
    QTest::newRow("lower case") << QByteArray("0xae1b23") << QColor(0xAE, 0x1B, 0x23);
    QTest::newRow("too short") << QByteArray("0xFFF") << QColor(Qt::black);
    QTest::newRow("no digit") << QByteArray("0xGG0000") << QColor(Qt::black);
}

void ButtonTests::coloursFromText()
{
    QFETCH(QByteArray, text);
    QTEST(Palette::color(text.toStdString()), "color");
}

void ButtonTests::answersThePointer_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<int>("changed"); ///< Pixels, at least: a fill is more than a border.

    QTest::newRow("back") << Make(makeButton<ButtonSchemes::applyBack>) << 4000;
    QTest::newRow("refresh") << Make(makeButton<ButtonSchemes::applyBlue>) << 4000;
    QTest::newRow("check box") << Make(makeButton<ButtonSchemes::applyCheckBox>) << 50;
    QTest::newRow("eye") << Make(makeEye) << 20;
}

void ButtonTests::answersThePointer()
{
    QFETCH(Make, make);
    QFETCH(int, changed);
    QWidget window;
    QAbstractButton *button = make(window);
    const QImage atRest = button->grab().toImage();
    QEnterEvent enter({}, {}, {});
    QCoreApplication::sendEvent(button, &enter);
    const int different = countDifferences(button->grab().toImage(), atRest);
    QVERIFY2(different >= changed, qPrintable(QString::number(different)));
    QCOMPARE(button->cursor().shape(), Qt::ArrowCursor);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(button, &leave);
    QCOMPARE(button->grab().toImage(), atRest);
}

QTEST_MAIN(ButtonTests)
#include "ButtonTests.moc"
