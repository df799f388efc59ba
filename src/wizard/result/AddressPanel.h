#pragma once

#include <QWidget>

class CopyButton;
class LiveLabel;
class QLabel;
class SpoolerPort;
class WTButton;

/// The printer's address: to read, to select, to copy, to open as the printer's own page, and whether it answers from
/// this computer.
class AddressPanel : public QWidget
{
    Q_OBJECT

public:
    /// @param spooler lives as long as the program: a check may be under way when the panel goes.
    explicit AddressPanel(SpoolerPort &spooler, QWidget *parent = nullptr);

    /// Begins to check the address. An empty one hides the panel.
    void setAddress(const QString &address);

private:
    void openPage();
    void check(const QString &address);

    SpoolerPort &m_spooler;
    QLabel *m_address;
    CopyButton *m_copy;
    WTButton *m_open;
    LiveLabel *m_reach;
};
