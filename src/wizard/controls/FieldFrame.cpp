#include "FieldFrame.h"

#include "ButtonLook.h"
#include "LiveLabel.h"
#include "Palette.h"
#include "TextStyle.h"

#include <QFocusEvent>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace
{

constexpr int boxHeight = 40;
constexpr int boxPadding = 8;
/// Distance between the field and the outer edge of the frame. Without it the field would cover part of the border when
/// the scale factor of the screen is no whole number.
constexpr int boxBorder = 1;
constexpr qreal cornerRadius = 4;

} // namespace

FieldFrame::FieldFrame(const QString &label, QWidget *field, QWidget *parent)
    : QWidget(parent)
    , m_label(TextStyle::makeLabel(label, TextStyle::Size::Body, Palette::heading))
    , m_help(TextStyle::makeLabel({}, TextStyle::Size::Small, Palette::label))
    , m_error(new LiveLabel({}, TextStyle::Size::Small, Palette::red))
    , m_field(field)
    , m_borderColor(Palette::frame)
{
    m_label->setBuddy(field);
    field->installEventFilter(this);
    field->setAccessibleName(ButtonLook::spokenTitle(label));
    auto *layout = new QVBoxLayout(this);
    // The border reaches one pixel below the field. That pixel must lie in the frame also when no note follows.
    layout->setContentsMargins(0, 0, 0, 1);
    layout->setSpacing(8);
    layout->addWidget(m_label);
    field->setFixedHeight(boxHeight - 2 * boxBorder);
    auto *box = new QHBoxLayout;
    box->setContentsMargins(boxPadding, boxBorder, boxPadding, boxBorder);
    box->addWidget(field);
    layout->addLayout(box);
    layout->addWidget(m_help);
    layout->addWidget(m_error);
    showHelpOrError();
}

void FieldFrame::setBorderColor(const QColor &color)
{
    m_borderColor = color;
    update();
}

void FieldFrame::setHelp(const QString &text)
{
    m_help->setText(text);
    showHelpOrError();
}

void FieldFrame::setError(const QString &text)
{
    m_error->setText(text);
    showHelpOrError();
}

void FieldFrame::addBelow(QWidget *widget)
{
    layout()->addWidget(widget);
}

void FieldFrame::showHelpOrError()
{
    const bool failed = !m_error->text().isEmpty();
    m_error->setVisible(failed);
    m_help->setVisible(!failed && !m_help->text().isEmpty());
    m_field->setAccessibleDescription(failed ? m_error->text() : m_help->text());
}

bool FieldFrame::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        // After a menu or another window the field gets the keyboard back, so it keeps the colour meanwhile.
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
            setBorderColor(Palette::frame);
    }
    return QWidget::eventFilter(watched, event);
}

void FieldFrame::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(m_borderColor, 1));
    painter.setBrush(Palette::white);
    const qreal above = boxBorder + 0.5;
    const QRectF box = QRectF(m_field->geometry()).adjusted(-boxPadding + 0.5, -above, boxPadding - 0.5, above);
    painter.drawRoundedRect(box, cornerRadius, cornerRadius);
}
