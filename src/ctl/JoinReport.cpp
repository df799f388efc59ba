#include "JoinReport.h"

#include "Output.h"
#include "PrinterFacts.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr TimePort::Duration frame{200};

/// In JSON.
QString stepName(RunStep step)
{
    switch (step) {
    case RunStep::Idle:
    case RunStep::Ended:
        break;
    case RunStep::Waking:
        return u"waking"_s;
    case RunStep::Checking:
        return u"checking"_s;
    case RunStep::Sending:
        return u"sending"_s;
    case RunStep::WaitingForAddress:
        return u"address"_s;
    }
    return {};
}

/// What a printer that was left alone half-way may be doing.
QString remainder(RunStep step)
{
    switch (step) {
    case RunStep::Idle:
    case RunStep::Waking:
    case RunStep::Checking:
    case RunStep::Ended:
        break;
    case RunStep::Sending:
        return u"it may have got the network and be joining it; \"wifitoolctl address\" tells"_s;
    case RunStep::WaitingForAddress:
        return u"it has got the network and is joining it; \"wifitoolctl address\" tells"_s;
    }
    return u"it has been told nothing"_s;
}

QString lineOf(const PrinterJob &job)
{
    constexpr int width = 20, whole = 100;
    const int filled = job.progress() * width / whole;
    const QString bar = QString(filled, u'#') + QString(width - filled, u'.');
    return u"%1  [%2] %3 %  %4"_s.arg(nameOf(*job.printer()), bar).arg(job.progress(), 3).arg(job.stepText());
}

} // namespace

JoinReport::JoinReport(TimePort &time, Output &output)
    : m_time(time)
    , m_output(output)
    , m_hasBlock(!output.isJson() && ProgressBlock::isPossible())
{
    if (m_hasBlock)
        m_output.setBlock(&m_block);
}

JoinReport::~JoinReport()
{
    m_block.hide();
    m_output.setBlock(nullptr);
}

void JoinReport::follow(PrinterJob &job)
{
    m_moving.push_back(&job);
    connect(&job, &PrinterJob::stepChanged, this, [this, &job] { tellStep(job); });
    if (m_hasBlock && !m_tick)
        draw();
}

void JoinReport::tellStep(const PrinterJob &job)
{
    const QString text = m_hasBlock ? QString() : nameOf(*job.printer()) + u": "_s + job.stepText();
    m_output.say(text, {{u"event"_s, u"step"_s},
                        {u"printer"_s, jsonOf(*job.printer())},
                        {u"step"_s, stepName(job.step())},
                        {u"attempt"_s, job.attempt() + 1}});
}

void JoinReport::tellEnd(const PrinterJob &job)
{
    std::erase(m_moving, &job);
    if (m_hasBlock)
        draw();
    const JobResult &result = job.result();
    QJsonObject object{{u"event"_s, u"result"_s},
                       {u"printer"_s, jsonOf(*job.printer())},
                       {u"milliseconds"_s, qint64{job.duration().count()}}};
    QString text = nameOf(*job.printer()) + u": "_s;
    switch (result.kind) {
    case JobResult::Kind::Joined:
        ++m_joined;
        text += result.address.isEmpty() ? u"joined"_s : u"joined, address "_s + result.address;
        object[u"result"_s] = u"joined"_s;
        object[u"address"_s] = result.address;
        break;
    case JobResult::Kind::Failed:
        ++m_failed;
        m_notPermitted += result.isNotPermitted ? 1 : 0;
        text += u"failed: "_s + result.told.cause + u' ' + result.told.advice;
        object[u"result"_s] = u"failed"_s;
        object[u"code"_s] = result.code;
        object[u"message"_s] = result.told.cause;
        object[u"advice"_s] = result.told.advice;
        object[u"details"_s] = result.told.details;
        break;
    case JobResult::Kind::BrokenOff:
        ++m_brokenOff;
        text += u"broken off: "_s + remainder(job.step());
        object[u"result"_s] = u"brokenOff"_s;
        object[u"step"_s] = stepName(job.step());
        object[u"message"_s] = remainder(job.step());
        break;
    }
    m_output.say(text.trimmed(), object);
}

void JoinReport::tellSum(bool isWorthwhile)
{
    const QString text = u"%1 joined, %2 failed, %3 broken off"_s.arg(m_joined).arg(m_failed).arg(m_brokenOff);
    m_output.say(
        isWorthwhile ? text : QString(),
        {{u"event"_s, u"summary"_s}, {u"joined"_s, m_joined}, {u"failed"_s, m_failed}, {u"brokenOff"_s, m_brokenOff}});
}

void JoinReport::draw()
{
    QStringList lines;
    for (const PrinterJob *job : m_moving)
        lines += lineOf(*job);
    m_block.setLines(lines);
    m_tick.reset();
    if (!lines.isEmpty())
        m_tick = onMainThreadAfter(m_time, frame, [this] { draw(); });
}
