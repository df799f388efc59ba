#pragma once

#include "PrinterJob.h"
#include "ProgressBlock.h"

#include <vector>

class Output;

/// What `join` says of its printers: a line for each that moves, on a terminal; one for each step, elsewhere; the
/// result of each, and the sum. Main thread.
class JoinReport : public QObject
{
    Q_OBJECT

public:
    JoinReport(TimePort &time, Output &output);
    ~JoinReport() override;

    /// The job is told of from now on, until it has ended.
    void follow(PrinterJob &job);
    void tellEnd(const PrinterJob &job);
    /// @param isWorthwhile whether people want it, too.
    void tellSum(bool isWorthwhile);

    qsizetype joined() const { return m_joined; }
    qsizetype failed() const { return m_failed; }
    qsizetype notPermitted() const { return m_notPermitted; }

private:
    void tellStep(const PrinterJob &job);
    void draw();

    TimePort &m_time;
    Output &m_output;
    ProgressBlock m_block;
    const bool m_hasBlock;
    std::vector<const PrinterJob *> m_moving;
    std::unique_ptr<TimePort::Timer> m_tick;
    qsizetype m_joined = 0;
    qsizetype m_failed = 0;
    qsizetype m_brokenOff = 0;
    qsizetype m_notPermitted = 0;
};
