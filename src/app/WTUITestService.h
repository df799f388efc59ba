#pragma once

#include <QJsonArray>
#include <QString>
#include <cstddef>
#include <optional>

/// Answers an automated user-interface test from the program's launch arguments and environment, which are read at each
/// call. The wizard does not use it; it serves test tooling. The application object must exist.
class WTUITestService
{
public:
    WTUITestService() = delete;

    /// The program was started with the argument "UITest".
    static bool startUITest();
    /// A user-interface test that fakes printing: "printing" was given as well.
    static bool testPrinting();
    /// `text` with the test's password appended, the wrong one with the argument "passwordError". Empty outside of a
    /// user-interface test; an absent or empty text comes back as it is.
    static std::optional<QString> addPassWord(const std::optional<QString> &text);

    static QJsonArray environmentDataForUSB();
    static QJsonArray environmentDataForNet();
    /// One network with the name "UItestWifi".
    static QJsonArray environmentDataForWiFiList();
    /// The JSON texts, joined by ";", of the environment variable `name`; empty without the variable. Throws
    /// std::invalid_argument when a piece, the last and empty one included, is no JSON object or array.
    static QJsonArray getDataWith(const QString &name);

    /// The environment variable `name` is exactly "YES".
    static bool uiTestConfig(const QString &name);
    /// The outcome switch at `index`, in the order of the operations below; false past the last.
    static bool checkUITestValues(std::size_t index);
    static bool testWiFiConfig();
    static bool testWiFiConfigFailure();
    static bool testWiFiConfigSuccess();
    static bool testWiFiError();
    static bool testUpdatingError();
    static bool testNotInstallError();
    static bool testOtherError();
    static bool testManualInstall();
};
