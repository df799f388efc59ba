#pragma once

#include "OSLog.h"
#include "WTAbstractLogger.h"

#include <memory>
#include <optional>

/// Sends every line to the operating system's log. For machines that have one: elsewhere the lines go nowhere.
class WTOSLogger : public WTAbstractLogger
{
public:
    WTOSLogger() = default;
    WTOSLogger(const std::optional<QString> &subsystem, const std::optional<QString> &category);
    /// One for the process, made with neither subsystem nor category.
    static std::shared_ptr<WTOSLogger> sharedInstance();

    /// The type a flag is sent as; a warning goes as information.
    static OSLogType typeForFlag(quint64 flag);

    /// A handle for the subsystem and the category when both are set, else the default one.
    std::shared_ptr<OSLog> getLogger() const;
    /// The handle in use, made by `getLogger` on first use. On the logger's queue only.
    std::shared_ptr<OSLog> logger();
    QString loggerName() const override;
    void logMessage(const WTLogMessage &message) override;
    std::optional<QString> subsystem() const;
    std::optional<QString> category() const;
    /// Before the logger is added.
    void setLogger(const std::shared_ptr<OSLog> &logger);

private:
    std::optional<QString> m_subsystem;
    std::optional<QString> m_category;
    std::shared_ptr<OSLog> m_logger;
};
