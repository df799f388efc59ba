#pragma once

class QWidget;

/// Logs that a password was refused, without it, and says on `window` what the limit is.
void refuseLongPassword(QWidget *window);
