#pragma once

#include <QWidget>

class LiveLabel;
class QLabel;
class QVBoxLayout;

/// The content of a result screen: a big mark, a sentence, what one can do, and a link to the folder of the log.
class ResultPanel : public QWidget
{
    Q_OBJECT

public:
    explicit ResultPanel(const QString &markName, QWidget *parent = nullptr);

    /// What happened; spoken by screen readers when the panel shows.
    void setMessage(const QString &text);
    QString message() const;
    void setAdvice(const QString &text);
    /// Puts a check box of the screen below the advice.
    void addCheckBox(QWidget *checkBox);
    /// Whether the link to the log's folder is shown; it is by default, if there is a log.
    void setShowsLogFolder(bool shows) { m_showsLogFolder = shows; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    LiveLabel *m_message;
    QLabel *m_advice;
    QLabel *m_log;
    QVBoxLayout *m_texts;
    bool m_showsLogFolder = true;
};
