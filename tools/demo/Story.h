#pragma once

#include "DemoHost.h"
#include "ModelIdentity.h"
#include "PrinterScript.h"

#include <QString>
#include <chrono>
#include <optional>
#include <span>
#include <vector>

/// One thing that a person does on a screen. Widgets are named by their object names.
struct Act {
    enum class Kind {
        Click,       ///< Clicks the widget.
        Type,        ///< Clicks the widget and replaces its text by `text`.
        CloseWindow, ///< Presses the window's close button.
        Confirm,     ///< Presses the first button of the sheet that shows.
    };
    Kind kind = Kind::Click;
    QString widget;
    QString text;
};

/// A screen on the way through the story: wait until it shows, look at it, do the acts, and take a picture before the
/// last one.
struct Visit {
    QString screen; ///< The class name.
    std::vector<Act> acts;
    std::chrono::seconds patience{10}; ///< How long the screen, and the printer, may take to come.
    std::chrono::seconds look{0};      ///< How long to look at it.
    bool awaitsPrinter = false;        ///< Go on only when the printer has been found.
};

/// A walk through the wizard, and the printer and computer that it meets.
struct Story {
    QString name;
    QString summary;
    PrinterScript printer;
    ModelIdentity model{};
    DemoHost host{};
    std::vector<Visit> visits; ///< The last act of the last one ends the program.
    /// What the printer must have been told in the end. Absent means that it must not have been told anything.
    std::optional<QByteArray> networkName{};
    std::optional<QByteArray> password{};
};

/// All stories; the first one is the main job.
std::span<const Story> stories();
/// Null when there is none of that name.
const Story *findStory(const QString &name);
