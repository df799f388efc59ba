#pragma once

#include "CauseText.h"
#include "NoteView.h"

/// The printer did not take the configuration. The way back leads past the run to the screen before it.
class WTConfigFailedView : public NoteView
{
    Q_OBJECT

public:
    explicit WTConfigFailedView(const QString &logFolder, QWidget *parent = nullptr);

    /// Set before this screen is pushed; without a cause the screen gives its general advice.
    void setCause(const CauseText &cause);

    void backAction();
};
