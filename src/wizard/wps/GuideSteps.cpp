#include "GuideSteps.h"

#include "Localized.h"
#include "Palette.h"
#include "Picture.h"
#include "TextFormat.h"
#include "TextStyle.h"

#include <QHBoxLayout>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int panelHeight = 168;
constexpr int panelPadding = 16;
constexpr int columnGap = 32;
constexpr qreal borderWidth = 2;
constexpr qreal cornerRadius = 8;

/// A step's picture, framed like a tile and as wide as the column.
class PicturePanel : public QWidget
{
public:
    explicit PicturePanel(const QString &pictureName)
        : m_picture(pictureName)
    {
        setFixedHeight(panelHeight);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Palette::lightBlue, borderWidth));
        const qreal inset = borderWidth / 2;
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), cornerRadius, cornerRadius);
        m_picture.paint(painter, rect().adjusted(panelPadding, panelPadding, -panelPadding, -panelPadding));
    }

private:
    Picture m_picture;
};

QVBoxLayout *makeColumn(int number, const GuideStep &step)
{
    auto *title =
        TextStyle::makeLabel(formatText(localized(u"第%d步"_s), {number}), TextStyle::Size::Large, Palette::red);
    title->setFont(TextStyle::font(TextStyle::Size::Large, QFont::DemiBold));
    auto *text = TextStyle::makeLabel(step.text, TextStyle::Size::Body, Palette::heading);
    text->setAlignment(Qt::AlignTop | Qt::AlignLeft);

    auto *column = new QVBoxLayout;
    column->setSpacing(8);
    column->addWidget(new PicturePanel(step.pictureName));
    column->addSpacing(8);
    column->addWidget(title);
    column->addWidget(text, 1);
    return column;
}

} // namespace

GuideSteps::GuideSteps(const QList<GuideStep> &steps, QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 8, 0, 0);
    layout->setSpacing(columnGap);
    for (int index = 0; index < steps.size(); ++index)
        layout->addLayout(makeColumn(index + 1, steps[index]), 1);
}
