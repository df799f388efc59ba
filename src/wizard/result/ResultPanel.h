#pragma once

#include <QWidget>

class LiveLabel;
class QLabel;
class QVBoxLayout;

/// The body of a result screen: one big mark, one sentence, what one can do, and where the log lies.
class ResultPanel : public QWidget
{
    Q_OBJECT

public:
    explicit ResultPanel(const QString &markName, QWidget *parent = nullptr);

    /// What happened; spoken by screen readers when the panel shows.
    void setMessage(const QString &text);
    QString message() const;
    void setAdvice(const QString &text);
    /// A choice of the screen, below the advice.
    void addCheckBox(QWidget *checkBox);
    /// Names the folder of the log as a link, where there is a log.
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
