#include "ScriptFile.h"

#include "JsonFields.h"

#include <QJsonDocument>
#include <QJsonParseError>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace
{
PrinterFault readFault(const QJsonObject &object, const QString &where, QStringList &complaints)
{
    PrinterFault fault;
    JsonFields fields(object, where, complaints);
    fields.readCode(u"command"_s, fault.command);
    fields.read(u"occurrence"_s, fault.occurrence);
    fields.read(u"acceptDelay"_s, fault.acceptDelay);
    fields.read(u"stallOut"_s, fault.stallOut);
    fields.read(u"acceptOnly"_s, fault.acceptOnly);
    fields.read(u"unplugOut"_s, fault.unplugOut);
    fields.read(u"silent"_s, fault.silent);
    fields.readCode(u"echo"_s, fault.echo);
    fields.read(u"result"_s, fault.result);
    fields.read(u"lengthField"_s, fault.lengthField);
    fields.readBytes(u"data"_s, fault.data);
    fields.read(u"noData"_s, fault.noData);
    fields.read(u"delay"_s, fault.delay);
    fields.readBytes(u"garbage"_s, fault.garbage);
    fields.readBytes(u"trailingGarbage"_s, fault.trailingGarbage);
    fields.read(u"cutAt"_s, fault.cutAt);
    fields.readSizes(u"slices"_s, fault.slices);
    fields.read(u"sliceSeed"_s, fault.sliceSeed);
    fields.read(u"sliceDelay"_s, fault.sliceDelay);
    fields.read(u"stallIn"_s, fault.stallIn);
    fields.read(u"unplugIn"_s, fault.unplugIn);
    return fault;
}

BusEvent readEvent(const QJsonObject &object, const QString &where, QStringList &complaints)
{
    using enum BusEvent::Action;
    static const QStringList names{u"unplug"_s, u"plug"_s, u"hold"_s, u"release"_s, u"deny"_s, u"permit"_s};
    static constexpr std::array actions{Unplug, Plug, Hold, Release, Deny, Permit};

    BusEvent event;
    JsonFields fields(object, where, complaints);
    if (const auto choice = fields.readChoice(u"action"_s, names))
        event.action = actions.at(*choice);
    fields.read(u"delay"_s, event.delay);
    if (const auto after = fields.object(u"after"_s)) {
        JsonFields cause(*after, where + u".after"_s, complaints);
        event.after = BusEvent::Cause{};
        cause.readCode(u"command"_s, event.after->command);
        cause.read(u"occurrence"_s, event.after->occurrence);
    }
    return event;
}
} // namespace

ScriptFile ScriptFile::parse(const QByteArray &json)
{
    ScriptFile file;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (!document.isObject()) {
        file.complaints.append(document.isNull() ? u"at byte %1: %2"_s.arg(error.offset).arg(error.errorString())
                                                 : u"an object is wanted"_s);
        return file;
    }
    PrinterScript &script = file.script;
    JsonFields fields(document.object(), u"script"_s, file.complaints);
    fields.read(u"wakeUpResult"_s, script.wakeUpResult);
    fields.read(u"capabilityResult"_s, script.capabilityResult);
    fields.read(u"configurationResult"_s, script.configurationResult);
    fields.read(u"informationPageResult"_s, script.informationPageResult);
    fields.read(u"joinTime"_s, script.joinTime);
    fields.read(u"addressTime"_s, script.addressTime);
    fields.readText(u"ipv4"_s, script.ipv4);
    fields.readText(u"ipv6"_s, script.ipv6);
    fields.readText(u"secondIpv6"_s, script.secondIpv6);
    fields.read(u"joinedFromStart"_s, script.joinedFromStart);
    fields.read(u"plugged"_s, script.plugged);
    using enum PrinterScript::PulledPlug;
    static constexpr std::array pulledPlugs{AtOnce, BusErrors, Stalls};
    if (const auto choice = fields.readChoice(u"pulledPlug"_s, {u"atOnce"_s, u"busErrors"_s, u"stalls"_s}))
        script.pulledPlug = pulledPlugs.at(*choice);
    for (const QJsonObject &object : fields.objects(u"faults"_s)) {
        const QString where = u"faults[%1]"_s.arg(script.faults.size());
        script.faults.push_back(readFault(object, where, file.complaints));
    }
    for (const QJsonObject &object : fields.objects(u"events"_s)) {
        const QString where = u"events[%1]"_s.arg(script.events.size());
        script.events.push_back(readEvent(object, where, file.complaints));
    }
    return file;
}
