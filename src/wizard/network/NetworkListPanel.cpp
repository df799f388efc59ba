#include "NetworkListPanel.h"

#include "LiveLabel.h"
#include "Localized.h"
#include "NetworkRows.h"
#include "Palette.h"
#include "SlimScrollBar.h"
#include "WTListView.h"

#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

NetworkListPanel::NetworkListPanel(NetworkRows *rows, QWidget *parent)
    : QWidget(parent)
    , m_list(new WTListView)
    , m_progress(new LiveLabel({}, TextStyle::Size::Small, Palette::label))
    , m_note(new LiveLabel({}, TextStyle::Size::Small, Palette::label))
{
    const QString title = localized(u"附近的无线网络"_s);
    m_list->setModel(rows);
    m_list->setVerticalScrollBar(new SlimScrollBar);
    m_list->setObjectName(u"wifiListView"_s);
    m_list->setAccessibleName(title);
    m_progress->setObjectName(u"activeView"_s);
    m_progress->setWordWrap(false);
    m_progress->hide();
    m_note->setObjectName(u"listNote"_s);
    m_note->hide();

    auto *header = new QHBoxLayout;
    header->addWidget(TextStyle::makeLabel(title, TextStyle::Size::Body, Palette::heading), 1);
    header->addWidget(m_progress);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(8);
    column->addLayout(header);
    column->addWidget(m_note);
    column->addWidget(m_list, 1);
}

void NetworkListPanel::showProgress(const QString &words)
{
    m_progress->setText(words);
    m_progress->setVisible(!words.isEmpty());
}

void NetworkListPanel::showNote(const QString &words)
{
    m_note->setText(words);
    m_note->setVisible(!words.isEmpty());
}
