#pragma once

#include "NoteView.h"

/// No printer is on the USB bus; the way back looks for one again.
class WTUnconnectView : public NoteView
{
    Q_OBJECT

public:
    explicit WTUnconnectView(const QString &logFolder, QWidget *parent = nullptr);

    void back();
};
