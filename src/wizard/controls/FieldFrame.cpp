#include "FieldFrame.h"

#include "Palette.h"
#include "TextStyle.h"

#include <QAccessible>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace
{

constexpr int boxHeight = 40;
constexpr int boxPadding = 8;
constexpr qreal cornerRadius = 4;

} // namespace

FieldFrame::FieldFrame(const QString &label, QWidget *field, QWidget *parent)
    : QWidget(parent)
    , m_label(TextStyle::makeLabel(label, TextStyle::Size::Body, Palette::heading))
    , m_note(TextStyle::makeLabel({}, TextStyle::Size::Small, Palette::label))
    , m_field(field)
    , m_borderColor(Palette::frame)
{
    m_label->setBuddy(field);
    field->setAccessibleName(label);
    auto *layout = new QVBoxLayout(this);
    // The border is drawn around the field, so that it needs a line below one that has no note.
    layout->setContentsMargins(0, 0, 0, 1);
    layout->setSpacing(8);
    layout->addWidget(m_label);
    field->setFixedHeight(boxHeight);
    auto *box = new QHBoxLayout;
    box->setContentsMargins(boxPadding, 0, boxPadding, 0);
    box->addWidget(field);
    layout->addLayout(box);
    layout->addWidget(m_note);
    showNote();
}

void FieldFrame::setBorderColor(const QColor &color)
{
    m_borderColor = color;
    update();
}

void FieldFrame::setHelp(const QString &text)
{
    m_help = text;
    showNote();
}

void FieldFrame::setError(const QString &text)
{
    // Screens tell it at every keystroke; a screen reader hears it once.
    if (m_error == text)
        return;
    m_error = text;
    showNote();
    if (m_error.isEmpty())
        return;
    QAccessibleEvent alert(m_note, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void FieldFrame::addBelow(QWidget *widget)
{
    layout()->addWidget(widget);
}

void FieldFrame::showNote()
{
    const bool failed = !m_error.isEmpty();
    QPalette colors = m_note->palette();
    colors.setColor(QPalette::WindowText, failed ? Palette::red : Palette::label);
    m_note->setPalette(colors);
    m_note->setText(failed ? m_error : m_help);
    m_note->setVisible(!m_note->text().isEmpty());
    m_field->setAccessibleDescription(m_note->text());
}

void FieldFrame::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(m_borderColor, 1));
    painter.setBrush(Palette::white);
    const QRectF box = QRectF(m_field->geometry()).adjusted(-boxPadding + 0.5, -0.5, boxPadding - 0.5, 0.5);
    painter.drawRoundedRect(box, cornerRadius, cornerRadius);
}
