#include "WTHoverView.h"

#include "Palette.h"
#include "PictureView.h"
#include "TextStyle.h"
#include "WTHoverViewAccessible.h"

#include <QKeyEvent>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr QSize tileSize{280, 220};
constexpr int ringRoom = 6; ///< Edge around the tile for the focus ring and a white line inside it.
constexpr int ringWidth = 4;
constexpr qreal borderWidth = 2;
constexpr qreal cornerRadius = 8;
constexpr int padding = 20;
constexpr int spacing = 8;
constexpr int radioSize = 24;
constexpr int tallestPicture = 104;

QFont titleFont()
{
    return TextStyle::font(TextStyle::Size::Large, QFont::DemiBold);
}

QFont helpFont()
{
    return TextStyle::font(TextStyle::Size::Small);
}

void strokeRounded(QPainter &painter, const QRectF &area, qreal radius, const QColor &color, qreal width)
{
    painter.setPen(QPen(color, width));
    painter.setBrush(Qt::NoBrush);
    const qreal inset = width / 2;
    painter.drawRoundedRect(area.adjusted(inset, inset, -inset, -inset), radius, radius);
}

} // namespace

WTHoverView::WTHoverView(const QString &pictureName, const QString &title, const QString &help, QWidget *parent)
    : QAbstractButton(parent)
    , m_picture(pictureName)
    , m_help(help)
    , m_radioImage(new PictureView(u"icon_select_bg"_s, {radioSize, radioSize}, this))
    , m_border(Palette::lightBlue)
    , m_bLayer(Palette::white)
    , m_cLayer(Palette::white)
{
    WTHoverViewAccessible::install();
    setText(title);
    setAccessibleName(title);
    setAccessibleDescription(help);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_pictureHeight = roomForPicture();
}

QSize WTHoverView::sizeHint() const
{
    return tileSize + QSize(2 * ringRoom, 2 * ringRoom);
}

WTHoverView::Texts WTHoverView::measureTexts() const
{
    const int width = tileSize.width() - 2 * padding;
    const auto heightOf = [](const QFont &font, int room, const QString &text) {
        return QFontMetrics(font).boundingRect(0, 0, room, 0, Qt::TextWordWrap, text).height();
    };
    return {qMax(radioSize, heightOf(titleFont(), width - radioSize - spacing, text())),
            heightOf(helpFont(), width, m_help)};
}

int WTHoverView::roomForPicture() const
{
    const Texts texts = measureTexts();
    const int taken = 2 * padding + texts.titleHeight + texts.helpHeight + spacing + spacing / 2;
    return qMin(tallestPicture, tileSize.height() - taken);
}

void WTHoverView::setPictureHeight(int height)
{
    m_pictureHeight = height;
    update();
}

QString WTHoverView::radioImageName() const
{
    return m_radioImage ? m_radioImage->pictureName() : QString();
}

void WTHoverView::setIsSelect(bool select)
{
    const bool changed = m_isSelect != select;
    m_isSelect = select;
    updateBorders();
    if (!changed)
        return;
    QAccessible::State state;
    state.checked = true;
    QAccessibleStateChangeEvent event(this, state);
    QAccessible::updateAccessibility(&event);
}

void WTHoverView::setHover(bool hover)
{
    if (!m_isHover)
        return;
    m_hover = hover;
    updateBorders();
}

void WTHoverView::updateBorders()
{
    if (m_isSelect) {
        m_border = m_bLayer = Palette::lightBlue;
        m_cLayer = Palette::focusBlue;
    } else if (m_isHover) {
        m_bLayer = m_cLayer = Palette::white;
        m_border = m_hover ? Palette::focusBlue : Palette::lightBlue;
    }
    if (m_radioImage)
        m_radioImage->setPictureName(m_isSelect ? u"icon_selected"_s : u"icon_select_bg"_s);
    update();
}

void WTHoverView::choose()
{
    setIsSelect(true);
    if (m_delegate)
        m_delegate->selectDone(this);
    else
        Q_EMIT clicked();
}

void WTHoverView::enterEvent(QEnterEvent *)
{
    setHover(true);
}

void WTHoverView::leaveEvent(QEvent *)
{
    setHover(false);
}

void WTHoverView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_area.contains(event->position().toPoint()))
        choose();
    setDown(false);
}

void WTHoverView::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
        choose();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // A chosen tile passes the key on, and the screen takes it as its main action.
        if (m_isSelect)
            event->ignore();
        else
            choose();
        break;
    default:
        QAbstractButton::keyPressEvent(event);
    }
}

void WTHoverView::resizeEvent(QResizeEvent *)
{
    m_area = rect().adjusted(ringRoom, ringRoom, -ringRoom, -ringRoom);
}

void WTHoverView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF tile = m_area;
    if (hasFocus())
        strokeRounded(painter, rect(), cornerRadius + ringRoom, Palette::tileRing, ringWidth);
    strokeRounded(painter, tile, cornerRadius, m_border, borderWidth);
    const QRectF bLayer = tile.adjusted(borderWidth, borderWidth, -borderWidth, -borderWidth);
    strokeRounded(painter, bLayer, cornerRadius - borderWidth, m_bLayer, borderWidth / 2);
    const QRectF cLayer = bLayer.adjusted(borderWidth, borderWidth, -borderWidth, -borderWidth);
    strokeRounded(painter, cLayer, cornerRadius - 2 * borderWidth, m_cLayer, borderWidth);

    const QRect inner = m_area.adjusted(padding, padding, -padding, -padding);
    const Texts texts = measureTexts();
    const int titleTop = inner.top() + m_pictureHeight + spacing;
    const int helpTop = titleTop + texts.titleHeight + spacing / 2;

    m_picture.paint(painter, QRectF(inner.left(), inner.top(), inner.width(), m_pictureHeight));
    painter.setFont(titleFont());
    painter.setPen(Palette::heading);
    painter.drawText(QRect(inner.left(), titleTop, inner.width() - radioSize - spacing, texts.titleHeight),
                     Qt::TextWordWrap | Qt::AlignVCenter, text());
    painter.setFont(helpFont());
    painter.setPen(Palette::label);
    painter.drawText(QRect(inner.left(), helpTop, inner.width(), texts.helpHeight), Qt::TextWordWrap, m_help);
    if (m_radioImage)
        m_radioImage->move(inner.right() + 1 - radioSize, titleTop + (texts.titleHeight - radioSize) / 2);
}
