#include "ListBed.h"

#include "WTWiFiListView.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

const VisibleNetwork ListBed::home{u"Home"_s, 7, 80};
const VisibleNetwork ListBed::cafe{u"Cafe"_s, 1, 60};
const VisibleNetwork ListBed::office{u"Office"_s, 5, 40};

HostWiFiState ListBed::joinedTo(const QString &ssid)
{
    return {.interfaceName = u"wlan0"_s, .poweredOn = true, .band = 1, .ssid = ssid, .rssi = -60, .security = 4};
}

ListBed::ListBed(ScanPermission permission, const QString &joined)
    : WizardBed({ModelIdentity()})
{
    prepare(permission, joined);
}

ListBed::ListBed(std::shared_ptr<UsbTestBed> usb, const QString &joined)
    : WizardBed(std::move(usb), 1, u"zh-Hans"_s)
{
    prepare(ScanPermission::Allowed, joined);
}

void ListBed::prepare(ScanPermission permission, const QString &joined)
{
    hostWiFi.permission = permission;
    hostWiFi.now = joinedTo(joined);
    hostWiFi.networks = std::vector{home, cafe, office};
    awaitPrinter();
}

void ListBed::awaitPrinter()
{
    if (!findPrinters())
        qFatal("The wizard does not find the printer.");
}

WTWiFiListView &ListBed::list()
{
    return *screen<WTWiFiListView>();
}

QLineEdit &ListBed::name()
{
    return *list().findChild<QLineEdit *>(u"ssidTextField"_s);
}

QLineEdit &ListBed::password()
{
    return *list().findChild<QLineEdit *>(u"passwordTextField"_s);
}

QAbstractButton &ListBed::next()
{
    return *list().findChild<QAbstractButton *>(u"btn_nextStep"_s);
}

QListView &ListBed::rows()
{
    return *list().findChild<QListView *>(u"wifiListView"_s);
}

QStringList ListBed::shownNames()
{
    QStringList names;
    for (int row = 0; row < rows().model()->rowCount(); ++row)
        names += rows().model()->index(row, 0).data().toString();
    return names;
}

QMessageBox *ListBed::alert()
{
    // A sheet that was answered is destroyed a moment later.
    const auto sheets = window().findChildren<QMessageBox *>();
    const auto open = std::ranges::find_if(sheets, &QWidget::isVisible);
    return open == sheets.end() ? nullptr : *open;
}

void ListBed::clickAndWait(const char *button, const std::function<void()> &meanwhile)
{
    const auto start = time().now();
    QTimer::singleShot(0, &window(), [&] {
        waitFor([&] { return time().now() >= start + 1s; });
        if (meanwhile)
            meanwhile();
        waitFor([&] { return time().now() >= start + 5s; });
    });
    click(button);
}

void ListBed::enter(const std::function<void()> &meanwhile)
{
    // The start screen looks for it anew each time it shows.
    awaitPrinter();
    clickAndWait("netxtBtn", meanwhile);
}

void ListBed::choose(int row)
{
    const QRect area = rows().visualRect(rows().model()->index(row, 0));
    QTest::mouseClick(rows().viewport(), Qt::LeftButton, {}, area.center());
}

void ListBed::type(QLineEdit &field, const QString &text)
{
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, text);
}

void ListBed::paste(QLineEdit &field, const QString &text)
{
    field.setFocus();
    field.selectAll();
    field.insert(text);
    Q_EMIT field.textEdited(field.text());
}
