#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <deque>

/// What a printer may still say about earlier commands, and how that is told from its reply to the present one. A
/// printer answers in the order in which it was asked. A reply names its command, and the length of its data:
///
///     0       2         4        6        8        16
///     +-------+---------+--------+--------+--------+--------
///     | 00 AC | command | result | length |        | data ...
///     +-------+---------+--------+--------+--------+--------
///
/// Numbers are big-endian. Late replies are dropped, but for one: if the earlier command and the present one are the
/// same, the late reply cannot be told from the new one, and is taken for it.
class EarlierReplies
{
public:
    /// Nothing more can come.
    bool isEmpty() const { return m_asked.empty() && m_rest == 0; }

    /// These bytes came before the present command was sent.
    void drop(QByteArray bytes);

    /// The frame goes to the printer: it is the present command, and may be answered from now on.
    void asked(QByteArrayView frame);

    /// Takes what belongs to earlier commands off the front of what came after `asked`.
    /// @return whether it took something, so that more has to be read.
    bool takeFrom(QByteArray &bytes);

    /// What is handed on as the present reply: its header, possibly cut short, and then so many bytes of its data. What
    /// it announces beyond that may still come.
    void headerCame(QByteArrayView header);
    void dataCame(qsizetype size);

private:
    bool take(QByteArray &bytes, qsizetype earlierCommands);
    bool mayBegin(QByteArrayView bytes) const;
    /// The reply to this command has come, so that those to the commands before it will not.
    void settle(quint16 command);

    std::deque<quint16> m_asked; ///< The commands that may be answered, in order; the present one is the last.
    qsizetype m_rest = 0;        ///< At most so many bytes of a reply that has begun may come ahead of the next header.
};
