#pragma once

#include "NoteView.h"

/// The printer did not take the configuration. The way back leads past the run to the screen before it.
class WTConfigFailedView : public NoteView
{
    Q_OBJECT

public:
    explicit WTConfigFailedView(QWidget *parent = nullptr);

    void backAction();
};
