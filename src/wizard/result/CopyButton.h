#pragma once

#include "WTButton.h"

class LiveLabel;

/// Puts a text onto the clipboard and says so in a label beside it.
class CopyButton : public WTButton
{
    Q_OBJECT

public:
    explicit CopyButton(const QString &title, QWidget *parent = nullptr);

    void setCopiedText(const QString &text);
    /// The label that says "copied" after a click; the owner of the layout puts it beside the button.
    LiveLabel *answer() const { return m_answer; }

private:
    QString m_text;
    LiveLabel *m_answer;
};
