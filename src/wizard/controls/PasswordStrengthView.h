#pragma once

#include <QWidget>

class KSPasswordField;
class LiveLabel;
class QLabel;

/// The line below a password field: a strength meter, its word, and a warning, spoken by screen readers, while
/// caps lock is on. Follows the field.
class PasswordStrengthView : public QWidget
{
    Q_OBJECT

public:
    explicit PasswordStrengthView(KSPasswordField *field, QWidget *parent = nullptr);

    QString word() const;

private:
    class Meter;

    void update();

    KSPasswordField *m_field;
    Meter *m_meter;
    QLabel *m_word;
    LiveLabel *m_capsLock;
};
