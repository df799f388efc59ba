#include "showAlert.h"

#include "Palette.h"

#include <QLayout>
#include <QMessageBox>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int margin = 24;
constexpr int iconRoom = 24;

/// QMessageBox names its two labels so: "qt_msgbox_label" for the message, "qt_msgbox_informativelabel" for the rest.
QString sheetStyle()
{
    return uR"(
    QMessageBox { background: %1; }
    QLabel { color: %2; background: transparent; }
    QLabel#qt_msgbox_label { font-size: 16px; font-weight: 600; min-width: 400px; padding: 0 0 1px 0; }
    QLabel#qt_msgbox_informativelabel { font-size: 14px; min-width: 400px; padding: 0 0 8px 0; }
    QPushButton {
        min-width: 96px; min-height: 36px; padding: 0 16px; border-radius: 4px; font-size: 14px;
        color: %2; background: %1; border: 1px solid %3;
    }
    QPushButton:default { color: %1; background: %4; border-color: %4; font-weight: 600; }
    QPushButton:hover { border-color: %5; }
    QPushButton:default:hover { background: %5; }
    QPushButton:focus { border: 2px solid %6; }
    QPushButton:pressed, QPushButton:default:pressed { background: %7; color: %1; border-color: %7; }
)"_s.arg(Palette::white.name(), Palette::heading.name(), Palette::frame.name(), Palette::red.name(),
         Palette::redHover.name(), Palette::focusBlue.name(), Palette::redPressed.name());
}

} // namespace

void showAlert(QWidget *window, const Alert &alert, std::function<void(int response)> answered)
{
    auto *box =
        new QMessageBox(QMessageBox::NoIcon, window->windowTitle(), alert.messageText, QMessageBox::NoButton, window);
    box->setObjectName(u"alert"_s);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setStyleSheet(sheetStyle());
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(alert.informativeText);
    box->setAccessibleName(alert.messageText);
    box->setAccessibleDescription(alert.informativeText);
    for (const QString &title : alert.buttons) {
        const bool first = box->buttons().isEmpty();
        QPushButton *button = box->addButton(title, first ? QMessageBox::AcceptRole : QMessageBox::RejectRole);
        if (first)
            box->setDefaultButton(button);
        box->setEscapeButton(button);
    }
    // The layout of QMessageBox keeps room for an icon left of the text, even without one. A smaller margin makes up
    // for it.
    box->layout()->setContentsMargins(margin - iconRoom, margin, margin, margin);
    if (answered) {
        QObject::connect(box, &QMessageBox::finished, window, [box, answered = std::move(answered)] {
            // When the window system closes the sheet, no button was clicked; that counts as the Escape key.
            const QAbstractButton *button = box->clickedButton() ? box->clickedButton() : box->escapeButton();
            answered(alertFirstButtonReturn + static_cast<int>(box->buttons().indexOf(button)));
        });
    }
    // Makes the box modal to the window. QMessageBox::setWindowModality would also make it a window of type Qt::Sheet,
    // which has neither frame nor title on Wayland.
    box->open();
}
