#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// The printer's radio as another program: name and password go to its standard input, each ended by a zero byte,
/// and never to its arguments, which everyone may read; the address comes from its standard output.
class JoinProgram
{
public:
    explicit JoinProgram(QString path)
        : m_path(std::move(path))
    {
    }

    /// Runs the program to its end; one that takes too long is killed. Absent when it did not join.
    std::optional<QByteArray> operator()(const QByteArray &name, const QByteArray &password) const;

private:
    QString m_path;
};
