#pragma once

#include "MainThread.h"

#include <QPointer>
#include <functional>
#include <utility>

/// Runs one action after the other on a background thread that lives as long as the process, so that the end of the
/// program never waits for an action. What an action uses must live as long.
void runInBackground(std::function<void()> action);

/// Whether all actions given so far have run.
bool isBackgroundIdle();

/// Asks something that takes its time, and hands the answer to `done` on the main thread, if `listener` lives then.
template <typename Question, typename Done>
void askInBackground(QObject *listener, Question question, Done done)
{
    runInBackground([listener = QPointer(listener), question = std::move(question), done = std::move(done)] {
        onMainThread([listener, done, answer = question()] {
            if (listener)
                done(answer);
        });
    });
}
