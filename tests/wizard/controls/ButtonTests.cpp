#include "ButtonSchemes.h"
#include "InfoList.h"
#include "KSPasswordField.h"
#include "Palette.h"
#include "Rows.h"
#include "WTApp.h"
#include "WTButton.h"
#include "WTDefaultStyleBtn.h"

#include <QEnterEvent>
#include <QSignalSpy>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

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

/// The coloured buttons: titles, states, colours.
class ButtonTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { InfoList::setResourceFolder(QStringLiteral(WT_RESOURCE_FOLDER)); }

    void titleIsPaddedByLanguage()
    {
        eachRow(
            {
                {"Chinese", u"zh-Hans"_s, {}, u"下一步"_s, 6},
                {"Japanese", u"ja"_s, {}, u"次へ"_s, 6},
                {"Korean", u"ko"_s, {}, u"Next"_s, 6},
                {"German", u"de"_s, {}, u"Weiter"_s, 4},
                {"ends in two spaces", u"en"_s, {}, u"Next  "_s, 0},
                {"ends in one space", u"en"_s, {}, u"Next "_s, 4},
                {"empty", u"en"_s, {}, u""_s, 4},
                {"picture", u"ko"_s, u"icon"_s, u"Next"_s, 2},
                {"picture, ends in two spaces", u"en"_s, u"icon"_s, u"Next  "_s, 2},
            },
            [&](const QString &language, const QString &picture, const QString &title, int added) {
                WTApp::shared().setAppLanguage(language);
                WTButton button;
                button.setImages(picture);
                button.setTitle(title);
                QCOMPARE(button.title(), title + QString(added, u' '));
            });
    }

    void titleIsSpokenWithoutPadding()
    {
        WTApp::shared().setAppLanguage(u"en"_s);
        WTButton button;
        button.setTitle(u"&Next"_s);
        button.awakeFromNib();
        QCOMPARE(button.accessibleName(), u"Next"_s);
        QCOMPARE(button.title(), u"&Next    "_s);
        button.setTitle(u"下一步(&N)"_s);
        QCOMPARE(button.accessibleName(), u"下一步"_s);
    }

    void stateChoosesColours()
    {
        eachRow(
            {
                {"on", 1, u"On"_s, Qt::blue},
                {"off", 0, u"Off"_s, Qt::green},
                {"mixed", -1, u"Mixed"_s, Qt::yellow},
                {"unknown", 2, u"Mixed"_s, Qt::yellow},
            },
            [&](int state, const QString &said, const QColor &fill) {
                WTButton button;
                button.onBlackColor = Qt::blue;
                button.offBlackColor = Qt::green;
                button.mixedBlackColor = Qt::yellow;
                button.setState(WTButton::StateMixed);
                button.setState(static_cast<short>(state));
                QCOMPARE(button.state(), static_cast<short>(state));
                QCOMPARE(button.stateString(), said);
                QCOMPARE(fillOf(button), fill);
            });
    }

    void loadingKeepsWhetherItWasEnabled()
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

    void defaultStyleFollowsInteraction()
    {
        eachRow(
            {
                {"at rest", false, false, QColor(0xD2, 0x21, 0x2B)},
                {"pressed", false, true, QColor(0xAE, 0x1B, 0x23)},
                {"disabled", true, false, Palette::redDisabled},
            },
            [&](bool disabled, bool pressed, const QColor &fill) {
                WTDefaultStyleBtn button;
                QCOMPARE(button.title(), u"初始化"_s);
                button.setTitle(u"Next"_s);
                button.setDisable(disabled);
                button.setDown(pressed);
                QCOMPARE(fillOf(button), fill);

                QSignalSpy clicked(&button, &QAbstractButton::clicked);
                QTest::mouseClick(&button, Qt::LeftButton);
                QCOMPARE(clicked.count(), disabled ? 0 : 1);
            });
    }

    void answersThePointer()
    {
        const auto makeEye = [](QWidget &window) -> QAbstractButton * {
            return (new KSPasswordField(&window))->findChild<QToolButton *>();
        };
        // The pixels that change, at least: a fill is more than a border.
        eachRow(
            {
                {"back", makeButton<ButtonSchemes::applyBack>, 4000},
                {"refresh", makeButton<ButtonSchemes::applyBlue>, 4000},
                {"check box", makeButton<ButtonSchemes::applyCheckBox>, 50},
                {"eye", makeEye, 20},
            },
            [&](Make make, int changed) {
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
            });
    }
};

QTEST_MAIN(ButtonTests)
#include "ButtonTests.moc"
