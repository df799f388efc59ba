#pragma once

/// What wifitoolctl ends with; the manual page tells what each means.
enum class ExitCode : int {
    Done = 0,
    SomeFailed = 1,
    Usage = 2,
    NoneFound = 3,
    NotPermitted = 4,
    BrokenOff = 5,
};
