#include "Alert.h"

#include <QMessageBox>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

void showAlert(QWidget *window, const Alert &alert, std::function<void(int response)> answered)
{
    auto *box =
        new QMessageBox(QMessageBox::NoIcon, window->windowTitle(), alert.messageText, QMessageBox::NoButton, window);
    box->setObjectName(u"alert"_s);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::WindowModal);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(alert.informativeText);
    for (const QString &title : alert.buttons) {
        const bool first = box->buttons().isEmpty();
        QPushButton *button = box->addButton(title, first ? QMessageBox::AcceptRole : QMessageBox::RejectRole);
        if (first)
            box->setDefaultButton(button);
        box->setEscapeButton(button);
    }
    if (answered) {
        QObject::connect(box, &QMessageBox::finished, window, [box, answered] {
            // No button was clicked when the window system closed the sheet: that answers like the Escape key.
            const QAbstractButton *button = box->clickedButton() ? box->clickedButton() : box->escapeButton();
            answered(alertFirstButtonReturn + int(box->buttons().indexOf(button)));
        });
    }
    box->open();
}
