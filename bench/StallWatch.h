#pragma once

#include <QApplication>
#include <QMap>
#include <chrono>
#include <glib.h>
#include <optional>

/// An application that times how long the main thread works without looking for events, nested loops included: for so
/// long the window answers nobody. One per process; needs Qt's event loop on glib.
class StallWatch : public QApplication
{
public:
    /// One frame at 60 Hz.
    static constexpr std::chrono::milliseconds frame{16};

    /// Stretches of work that began alike.
    struct Work {
        int stretches = 0;
        int stalls = 0;       ///< Those longer than a frame.
        double longest = 0.0; ///< Milliseconds.
    };

    StallWatch(int &argc, char **argv);

    /// Only what happens in between counts.
    void begin();
    void end();
    /// By the event that took the longest part of the stretch ("QWidgetWindow MouseButtonRelease").
    const QMap<QString, Work> &work() const { return m_work; }
    void clear() { m_work.clear(); }

    bool notify(QObject *receiver, QEvent *event) override;

private:
    using Clock = std::chrono::steady_clock;

    struct Stretch {
        Clock::time_point start = Clock::now();
        Clock::duration longestEvent{0};
        const char *receiver = "no event";
        QEvent::Type event = QEvent::None;
    };

    static gint poll(GPollFD *descriptors, guint count, gint timeout);
    void closeStretch();

    std::optional<Stretch> m_stretch; ///< Absent while nothing counts.
    QMap<QString, Work> m_work;
};
