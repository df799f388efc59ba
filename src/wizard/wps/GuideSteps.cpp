#include "GuideSteps.h"

#include "Localized.h"
#include "Palette.h"
#include "PictureView.h"
#include "TextFormat.h"
#include "TextStyle.h"

#include <QHBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr QSize pictureSize{192, 131};
constexpr int columnGap = 32;

QVBoxLayout *makeColumn(int number, const GuideStep &step)
{
    auto *title =
        TextStyle::makeLabel(formatText(localized(u"第%d步"_s), {number}), TextStyle::Size::Large, Palette::red);
    title->setFont(TextStyle::font(TextStyle::Size::Large, QFont::DemiBold));
    auto *text = TextStyle::makeLabel(step.text, TextStyle::Size::Body, Palette::heading);
    text->setAlignment(Qt::AlignTop | Qt::AlignLeft);

    auto *column = new QVBoxLayout;
    column->setSpacing(8);
    column->addWidget(new PictureView(step.pictureName, pictureSize), 0, Qt::AlignHCenter);
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
    layout->setContentsMargins(0, 24, 0, 0);
    layout->setSpacing(columnGap);
    for (int index = 0; index < steps.size(); ++index)
        layout->addLayout(makeColumn(index + 1, steps[index]), 1);
}
