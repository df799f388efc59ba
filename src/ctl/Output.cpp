#include "Output.h"

#include "ProgressBlock.h"
#include "untrustedText.h"

#include <QJsonDocument>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

Output::Output(bool json)
    : m_json(json)
{
}

void Output::say(const QString &text, const QJsonObject &object)
{
    if (m_json)
        writeObject(object);
    else if (!text.isEmpty())
        write(stdout, text);
}

void Output::note(const QString &text)
{
    if (m_json)
        writeObject({{u"event"_s, u"note"_s}, {u"message"_s, text}});
    else
        write(stderr, text);
}

void Output::fail(const QString &text, const QString &advice)
{
    if (m_json)
        writeObject({{u"event"_s, u"error"_s}, {u"message"_s, text}, {u"advice"_s, advice}});
    else
        write(stderr, u"wifitoolctl: "_s + text + (advice.isEmpty() ? QString() : u' ' + advice));
}

void Output::write(FILE *stream, const QString &text)
{
    if (m_block)
        m_block->hide();
    std::fputs(QByteArray(visibleText(text).toUtf8() + '\n').constData(), stream);
    std::fflush(stream);
    if (m_block)
        m_block->show();
}

void Output::writeObject(const QJsonObject &object)
{
    // The number of a hidden character is written in the same way as JSON escapes one: it is the same text to a reader.
    write(stdout, QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
}
