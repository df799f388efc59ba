#pragma once

#include "WizardBed.h"

#include <array>

class WTView;

/// Fills a screen with what a person would see on it in the middle of a job: networks of every kind, a password, a run
/// under way, the longest failure.
void fillScreen(WizardBed &bed, WTView *screen);

/// A moment that is no screen of its own: a form with both of its errors, the question before quitting.
struct Moment {
    const char *name;
    QWidget *(*show)(WizardBed &bed); ///< Returns the sheet over the window; null if there is none.
};

extern const std::array<Moment, 3> moments;
