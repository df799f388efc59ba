/// The name of a network on the widgets that show it: a row of the list, the name field, the label of the run.
#include "FakeHost.h"
#include "FakeSpooler.h"
#include "Fuzz.h"
#include "HostileName.h"
#include "NetworkForm.h"
#include "NetworkListPanel.h"
#include "NetworkRows.h"
#include "ScreenPorts.h"
#include "SystemTime.h"
#include "WTInstallingView.h"
#include "WTListView.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;
using Fuzz::require;
using HostileName::showsAll;

namespace
{

/// The widgets, made once, of a printer with a harmless name.
class Widgets
{
public:
    static Widgets &shared()
    {
        static auto *widgets = new Widgets;
        return *widgets;
    }

    void show(const WTWiFiPtr &network)
    {
        m_rows.setNetworks({network}, *network->SSID, 0);
        const QModelIndex row = m_rows.index(0);
        for (const int role : {int(Qt::DisplayRole), int(NetworkRows::NameRole), int(Qt::AccessibleTextRole)})
            require(showsAll(row.data(role).toString()), "a row shows all of a name on one line, to eyes and ears");
        require(m_panel.list()->sizeHintForRow(0) == m_rowHeight, "no name grows its row");
        m_panel.list()->grab();

        m_form.showName(*network->SSID);
        const auto *field = m_form.findChild<QLineEdit *>(u"ssidTextField"_s);
        require(showsAll(field->text()), "the name field shows all of a name");
        require(m_form.entry().name == network->SSID, "what is shown changes nothing in the name");
        m_form.showErrors();

        m_run.setWifi(network);
        const auto *label = m_run.findChild<QLabel *>(u"networkLabel"_s);
        require(showsAll(label->text()) && label->textFormat() == Qt::PlainText, "the run's label shows all of a name");
        QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(const_cast<QLabel *>(label));
        require(showsAll(spoken->text(QAccessible::Name)), "a screen reader says what the label shows");
    }

private:
    Widgets()
    {
        auto printer = std::make_shared<WTPrinter>();
        m_run.setPrinter(printer);
        auto harmless = std::make_shared<WTWiFi>();
        harmless->SSID = u"Home"_s;
        m_rows.setNetworks({harmless}, {}, 0);
        m_rowHeight = m_panel.list()->sizeHintForRow(0);
    }

    SystemTime m_time;
    FakeSpooler m_spooler;
    FakeDesktop m_desktop;
    FakeHostWiFi m_host;
    NetworkRows m_rows;
    NetworkListPanel m_panel{&m_rows};
    NetworkForm m_form{{}, u"showPwdBtn"_s, NetworkForm::Strength::Hidden};
    WTInstallingView m_run{ScreenPorts{m_time, m_spooler, m_desktop, m_host, {}}};
    int m_rowHeight = 0;
};

QApplication &application()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "shown_names";
    static char *argv[] = {name, nullptr};
    static auto *running = new QApplication(argc, argv);
    return *running;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    application();
    const QByteArrayView input = Fuzz::view(bytes, size);
    auto network = std::make_shared<WTWiFi>();
    network->SSID = HostileName::fromTheAir(input.first(std::min(input.size(), HostileName::longest)));
    Widgets::shared().show(network);
    return 0;
}
