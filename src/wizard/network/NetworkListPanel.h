#pragma once

#include <QWidget>

class LiveLabel;
class NetworkRows;
class WTListView;

/// The list of networks under its heading, with words about the search: what is going on, and why nothing is listed.
class NetworkListPanel : public QWidget
{
    Q_OBJECT

public:
    explicit NetworkListPanel(NetworkRows *rows, QWidget *parent = nullptr);

    WTListView *list() const { return m_list; }

    /// One line beside the heading; empty hides it.
    void showProgress(const QString &words);
    /// A sentence above the rows; empty hides it.
    void showNote(const QString &words);

private:
    WTListView *m_list;
    LiveLabel *m_progress;
    LiveLabel *m_note;
};
