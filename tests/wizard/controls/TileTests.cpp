#include "Palette.h"
#include "Rows.h"
#include "WTHoverView.h"

#include <QAccessible>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace
{

class CountingDelegate : public WTHoverViewDelegate
{
public:
    void selectDone(WTHoverView *item) override { chosen << item; }

    QList<WTHoverView *> chosen;
};

} // namespace

/// The selectable tile: choosing, colours, what a screen reader sees.
class TileTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosingTellsTheDelegateElseTheTarget()
    {
        using Press = std::function<void(WTHoverView &)>;
        const Press click = [](WTHoverView &tile) { QTest::mouseClick(&tile, Qt::LeftButton); };
        const Press space = [](WTHoverView &tile) { QTest::keyClick(&tile, Qt::Key_Space); };
        const Press speak = [](WTHoverView &tile) {
            const QString action = QAccessibleActionInterface::pressAction();
            QAccessible::queryAccessibleInterface(&tile)->actionInterface()->doAction(action);
        };
        const Press slipOff = [](WTHoverView &tile) {
            QTest::mousePress(&tile, Qt::LeftButton);
            QTest::mouseRelease(&tile, Qt::LeftButton, {}, QPoint(-5, -5));
        };
        eachRow(
            {
                {"mouse", click, true},
                {"space", space, true},
                {"screen reader", speak, true},
                {"mouse released elsewhere", slipOff, false},
            },
            [&](const Press &press, bool chosen) {
                WTHoverView alone(u"usb"_s, u"Title"_s, u"Help"_s);
                alone.show();
                QSignalSpy action(&alone, &QAbstractButton::clicked);
                press(alone);
                QCOMPARE(alone.isSelect(), chosen);
                QCOMPARE(action.count(), chosen ? 1 : 0);

                CountingDelegate delegate;
                WTHoverView tile(u"usb"_s, u"Title"_s, u"Help"_s);
                tile.setDelegate(&delegate);
                tile.show();
                QSignalSpy unused(&tile, &QAbstractButton::clicked);
                press(tile);
                QCOMPARE(tile.isSelect(), chosen);
                QCOMPARE(delegate.chosen, chosen ? QList{&tile} : QList<WTHoverView *>());
                QCOMPARE(unused.count(), 0);
            });
    }

    void bordersFollowChoiceAndPointer()
    {
        eachRow(
            {
                {"at rest", true, false, false, Palette::lightBlue, Palette::white},
                {"pointer over", true, false, true, Palette::focusBlue, Palette::white},
                {"selected", true, true, false, Palette::lightBlue, Palette::focusBlue},
            },
            [&](bool reacts, bool selected, bool pointerOver, const QColor &border, const QColor &innerBorder) {
                WTHoverView tile(u"usb"_s, u"Title"_s, u"Help"_s);
                tile.setIsHover(reacts);
                tile.setIsSelect(selected);
                if (pointerOver) {
                    QEnterEvent enter({}, {}, {});
                    QCoreApplication::sendEvent(&tile, &enter);
                }
                QCOMPARE(tile.borderColor(), border);
                QCOMPARE(tile.cLayerColor(), innerBorder);
                QCOMPARE(tile.bLayerColor(), selected ? Palette::lightBlue : Palette::white);
                QCOMPARE(tile.radioImageName(), selected ? u"icon_selected"_s : u"icon_select_bg"_s);

                // A tile that is not selected and does not react to the pointer keeps its border as it is.
                tile.setIsHover(false);
                tile.setIsSelect(false);
                QCOMPARE(tile.borderColor(), border);
            });
    }

    void isARadioButtonToScreenReaders()
    {
        WTHoverView tile(u"usb"_s, u"USB cable"_s, u"For the first time."_s);
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&tile);
        QVERIFY(interface);
        QCOMPARE(interface->role(), QAccessible::RadioButton);
        QCOMPARE(interface->text(QAccessible::Name), u"USB cable"_s);
        QCOMPARE(interface->text(QAccessible::Description), u"For the first time."_s);
        QVERIFY(!interface->state().checked);
        tile.setIsSelect(true);
        QVERIFY(interface->state().checkable && interface->state().checked && interface->state().focusable);
    }
};

QTEST_MAIN(TileTests)
#include "TileTests.moc"
