#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

/// What is wrong with a received frame, and at which byte of it. Never quotes a byte of the payload.
struct FrameProblem {
    qsizetype offset = 0;
    QString what{};

    bool operator==(const FrameProblem &) const = default;
};

/// One command frame as it arrived, envelope included, and the verdict on it.
struct ReceivedFrame {
    QByteArray bytes{};
    quint16 command = 0; ///< 0 when the frame ended before its code.
    std::vector<FrameProblem> problems{};

    bool isSound() const { return problems.empty(); }
    /// "sound", or all problems with their offsets on one line.
    QString verdict() const;
};
