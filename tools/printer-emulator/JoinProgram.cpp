#include "JoinProgram.h"

#include <QProcess>
#include <chrono>

namespace
{
/// Well within the time that a host waits for the answer.
constexpr std::chrono::milliseconds limit = std::chrono::seconds(50);
} // namespace

std::optional<QByteArray> JoinProgram::operator()(const QByteArray &name, const QByteArray &password) const
{
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(m_path, {});
    program.write(name + '\0' + password + '\0');
    program.closeWriteChannel();
    // The destructor of `program` kills what has not finished.
    if (!program.waitForFinished(static_cast<int>(limit.count())) || program.exitStatus() != QProcess::NormalExit ||
        program.exitCode() != 0)
        return std::nullopt;
    const QByteArray address = program.readAllStandardOutput().trimmed();
    return address.isEmpty() ? std::nullopt : std::optional(address);
}
