#include "ResultPanel.h"

#include "DetailsView.h"
#include "LiveLabel.h"
#include "Localized.h"
#include "Palette.h"
#include "PictureView.h"
#include "SlimScrollBar.h"
#include "TextFormat.h"
#include "TextStyle.h"

#include <QFocusEvent>
#include <QHBoxLayout>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr QSize markSize{96, 96};
constexpr int markGap = 32;
constexpr int causeGap = 8;
constexpr int logGap = 8;
constexpr int widestText = 560;

/// A label with one link that people reach by Tab. The toolkit gives the keyboard to the label at the first Tab and
/// marks the link only at the second; here the first Tab marks the link.
class LinkLabel : public QLabel
{
protected:
    void focusInEvent(QFocusEvent *event) override
    {
        QLabel::focusInEvent(event);
        if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
            QLabel::focusNextPrevChild(true);
    }
};

QString folderLink(const QString &folder)
{
    const QString address = QString::fromLatin1(QUrl::fromLocalFile(folder).toEncoded());
    const QString link =
        u"<a href=\"%1\" style=\"color: %2\">%3</a>"_s.arg(address, Palette::link.name(), folder.toHtmlEscaped());
    return formatText(localized(u"运行日志：%@"_s), {link});
}

} // namespace

ResultPanel::ResultPanel(const QString &markName, const QString &logFolder, QWidget *parent)
    : QScrollArea(parent)
    , m_message(new LiveLabel({}, TextStyle::Size::Large, Palette::heading))
    , m_cause(new LiveLabel({}, TextStyle::Size::Body, Palette::heading))
    , m_advice(TextStyle::makeLabel({}, TextStyle::Size::Body, Palette::label))
    , m_log(new LinkLabel)
    , m_texts(new QVBoxLayout)
{
    m_message->setObjectName(u"message"_s);
    m_message->setFont(TextStyle::font(TextStyle::Size::Large, QFont::DemiBold));
    auto *adviceTitle = TextStyle::makeLabel(localized(u"您可以这样做"_s), TextStyle::Size::Body, Palette::heading);
    adviceTitle->setFont(TextStyle::font(TextStyle::Size::Body, QFont::DemiBold));
    m_cause->setObjectName(u"cause"_s);
    m_cause->setContentsMargins(0, causeGap, 0, 0);
    setCause({});
    m_log->setObjectName(u"logFolder"_s);
    TextStyle::apply(*m_log, TextStyle::Size::Small, Palette::label);
    m_log->setTextFormat(Qt::RichText);
    m_log->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    m_log->setOpenExternalLinks(true);
    m_log->setVisible(!logFolder.isEmpty());
    m_log->setText(folderLink(logFolder));
    m_log->setContentsMargins(0, logGap, 0, 0);

    auto *column = new QWidget;
    column->setMaximumWidth(widestText);
    m_texts->setContentsMargins(0, 0, 0, 0);
    m_texts->setSpacing(0);
    column->setLayout(m_texts);
    m_texts->addWidget(m_message);
    m_texts->addWidget(m_cause);
    m_texts->addSpacing(24);
    m_texts->addWidget(adviceTitle);
    m_texts->addSpacing(8);
    m_texts->addWidget(m_advice);
    m_texts->addSpacing(16);
    m_texts->addWidget(m_log);

    auto *content = new QWidget;
    auto *layout = new QHBoxLayout(content);
    layout->setContentsMargins(0, 8, 0, 0);
    layout->setSpacing(markGap);
    layout->addWidget(new PictureView(markName, markSize), 0, Qt::AlignTop);
    layout->addWidget(column, 1, Qt::AlignTop);
    layout->addStretch(0);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(new SlimScrollBar);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(content);
    // The page shows through.
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
}

void ResultPanel::setMessage(const QString &text)
{
    m_message->setText(text);
}

QString ResultPanel::message() const
{
    return m_message->text();
}

void ResultPanel::setAdvice(const QString &text)
{
    m_advice->setText(text);
}

void ResultPanel::setCause(const QString &text)
{
    m_cause->setText(text);
    m_cause->setVisible(!text.isEmpty());
}

void ResultPanel::setDetails(const QString &line)
{
    if (!m_details) {
        m_details = new DetailsView;
        m_texts->insertWidget(m_texts->indexOf(m_log), m_details);
    }
    m_details->setLine(line);
}

void ResultPanel::addBelow(QWidget *part)
{
    m_texts->insertWidget(m_texts->indexOf(m_log), part);
}
