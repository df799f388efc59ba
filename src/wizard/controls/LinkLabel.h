#pragma once

#include <QLabel>

/// A label with one link that people reach by Tab. The toolkit gives the label the keyboard first and marks the link
/// only at the next Tab; here the first one marks it.
class LinkLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    void focusInEvent(QFocusEvent *event) override;
};
