#include "WTCustomTextFieldFromatter.h"

WTCustomTextFieldFromatter::WTCustomTextFieldFromatter(QObject *parent)
    : QValidator(parent)
{
}

bool WTCustomTextFieldFromatter::isPartialStringValid(const QString &text) const
{
    return text.size() <= qsizetype{m_maxLength};
}

QValidator::State WTCustomTextFieldFromatter::validate(QString &input, int &) const
{
    return isPartialStringValid(input) ? Acceptable : Invalid;
}
