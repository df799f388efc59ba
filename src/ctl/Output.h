#pragma once

#include <QJsonObject>
#include <QString>

class ProgressBlock;

/// Where a subcommand's words go: lines for people, or one JSON object a line. Hidden characters stand as their numbers
/// in both. Main thread.
class Output
{
public:
    explicit Output(bool json);

    bool isJson() const { return m_json; }

    /// What was asked for, on standard output. An empty text is said in JSON alone.
    void say(const QString &text, const QJsonObject &object);
    /// What people should know beside it, on standard error; in JSON an object with "event" "note".
    void note(const QString &text);
    /// Why it could not be done, on standard error; in JSON an object with "event" "error".
    void fail(const QString &text, const QString &advice = {});

    /// What moves below the lines on a terminal; it is taken away while a line is written. The block outlives its use.
    void setBlock(ProgressBlock *block) { m_block = block; }

private:
    void write(FILE *stream, const QString &text);
    void writeObject(const QJsonObject &object);

    const bool m_json;
    ProgressBlock *m_block = nullptr;
};
