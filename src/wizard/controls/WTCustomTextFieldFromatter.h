#pragma once

#include <QValidator>
#include <limits>

/// Refuses an edit that would make a text longer than its limit; the field then keeps what it had. Letters are never
/// changed. Set on a line edit with `setValidator`.
class WTCustomTextFieldFromatter : public QValidator
{
    Q_OBJECT

public:
    explicit WTCustomTextFieldFromatter(QObject *parent = nullptr);

    qint32 maximumLength() const { return m_maxLength; }
    void setMaximumLength(qint32 length) { m_maxLength = length; }

    /// Whether a field may hold `text` while it is being typed.
    bool isPartialStringValid(const QString &text) const;
    /// What a field makes of its text: the text itself.
    static QString objectValueForString(const QString &text) { return text; }

    State validate(QString &input, int &position) const override;

private:
    qint32 m_maxLength = std::numeric_limits<qint32>::max();
};
