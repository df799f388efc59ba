#pragma once

#include "PrinterScript.h"

#include <QByteArray>
#include <QStringList>

/// A script as JSON; README.md describes the format.
struct ScriptFile {
    PrinterScript script;
    QStringList complaints; ///< What is wrong with the text. Use the script only when there are none.

    static ScriptFile parse(const QByteArray &json);
};
