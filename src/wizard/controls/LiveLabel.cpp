#include "LiveLabel.h"

#include <QAccessibleWidget>

namespace
{

class LiveLabelAccessible : public QAccessibleWidget
{
public:
    explicit LiveLabelAccessible(LiveLabel *label)
        : QAccessibleWidget(label, QAccessible::Notification)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? static_cast<LiveLabel *>(widget())->text() : QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *label = qobject_cast<LiveLabel *>(object);
    return label ? new LiveLabelAccessible(label) : nullptr;
}

} // namespace

LiveLabel::LiveLabel(const QString &text, TextStyle::Size size, const QColor &color, QWidget *parent)
    : QLabel(text, parent)
{
    [[maybe_unused]] static const bool once = (QAccessible::installFactory(makeAccessible), true);
    TextStyle::apply(*this, size, color);
}

void LiveLabel::setText(const QString &text)
{
    if (text == this->text())
        return;
    QLabel::setText(text);
    if (!isVisible() || text.isEmpty())
        return;
    // What the bridge to AT-SPI knows of alerts reaches nobody; a notification that shows is read.
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}
