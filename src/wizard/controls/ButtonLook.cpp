#include "ButtonLook.h"

#include "Palette.h"

#include <QAbstractButton>
#include <QPainter>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int ringRoom = 4;    ///< Between the shape and the edge of the widget.
constexpr qreal ringWidth = 2; ///< Thinner than its room: what is left stays white between shape and ring.
constexpr int shapeHeight = 40;
constexpr int leadingShapeHeight = 24;
constexpr int shapeWidth = 128; ///< At least.
constexpr int padding = 24;
constexpr int imageSize = 20;
constexpr int imageGap = 8;
constexpr qreal imageInset = 1.5; ///< Empty edge of a check box's picture.

int titleWidth(const QAbstractButton &button)
{
    return button.fontMetrics().size(Qt::TextShowMnemonic, button.text().trimmed()).width();
}

} // namespace

void ButtonLook::paint(QPainter &painter, const QAbstractButton &button) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF shape = QRectF(button.rect()).adjusted(ringRoom, ringRoom, -ringRoom, -ringRoom);
    const qreal inset = borderWidth / 2;
    painter.setPen(border.isValid() && borderWidth > 0 ? QPen(border, borderWidth) : QPen(Qt::NoPen));
    painter.setBrush(background.isValid() ? QBrush(background) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(shape.adjusted(inset, inset, -inset, -inset), cornerRadius, cornerRadius);

    const int imageRoom = image.isNull() ? 0 : imageSize + imageGap;
    const int width = titleWidth(button);
    const qreal left = leading ? -imageInset : shape.center().x() - (imageRoom + width) / 2.0;
    if (button.hasFocus()) {
        const qreal outside = ringRoom - ringWidth / 2;
        QRectF ring = shape.adjusted(-outside, -outside, outside, outside);
        // The picture of a check box stands at the very edge of the widget, so there is room for a ring around its
        // title only.
        if (leading)
            ring.setLeft(left + imageRoom - ringRoom);
        painter.setPen(QPen(Palette::focusBlue, ringWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(ring, cornerRadius + outside, cornerRadius + outside);
    }
    image.paint(painter, QRectF(left, shape.center().y() - imageSize / 2.0, imageSize, imageSize));
    painter.setPen(text.isValid() ? text : Palette::heading);
    painter.drawText(QRectF(left + imageRoom, shape.top(), width + 1, shape.height()),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, button.text().trimmed());
}

QSize ButtonLook::sizeHint(const QAbstractButton &button, const Picture &image, bool leading)
{
    const int content = titleWidth(button) + (image.isNull() ? 0 : imageSize + imageGap);
    if (leading)
        return {content + imageGap, leadingShapeHeight + 2 * ringRoom};
    return {qMax(shapeWidth, content + 2 * padding) + 2 * ringRoom, shapeHeight + 2 * ringRoom};
}

QString ButtonLook::spokenTitle(const QString &title)
{
    // A script without Latin letters has the mnemonic behind the title, in parentheses.
    static const QRegularExpression mnemonic(u"\\(&.\\)|&"_s);
    return title.trimmed().remove(mnemonic);
}
