#pragma once

#include <QScrollArea>

class DetailsView;
class LiveLabel;
class QLabel;
class QVBoxLayout;

/// The content of a result screen: a big mark, a sentence, what one can do, and a link to the folder of the log.
/// Scrolls in a window that is too low for it.
class ResultPanel : public QScrollArea
{
    Q_OBJECT

public:
    /// An empty `logFolder` shows no link.
    ResultPanel(const QString &markName, const QString &logFolder, QWidget *parent = nullptr);

    /// What happened; spoken by screen readers when the panel shows.
    void setMessage(const QString &text);
    QString message() const;
    void setAdvice(const QString &text);
    /// Why it happened, below the message; spoken as well. An empty text leaves no gap.
    void setCause(const QString &text);
    /// One technical line that the person may unfold; an empty one shows nothing.
    void setDetails(const QString &line);
    /// Puts a part of the screen's own below the advice.
    void addBelow(QWidget *part);

private:
    LiveLabel *m_message;
    LiveLabel *m_cause;
    QLabel *m_advice;
    DetailsView *m_details = nullptr; ///< Made when the first details come.
    QLabel *m_log;
    QVBoxLayout *m_texts;
};
