#pragma once

#include <csignal>
#include <functional>
#include <utility>

#include <sys/time.h>

/// Signals that the program under test knows nothing of, one each millisecond for as long as it lives.
class ForeignSignals
{
public:
    /// @param afterSome  called in the handler once a few have come: by then one of them has met a wait
    explicit ForeignSignals(std::function<void()> afterSome)
    {
        s_count = 0;
        s_afterSome = std::move(afterSome);
        struct sigaction action = {};
        action.sa_handler = [](int)
        {
            s_count = s_count + 1;
            if (s_count == Some)
            {
                s_afterSome();
            }
        };
        sigaction(SIGALRM, &action, &m_before);
        const itimerval eachMillisecond{{0, 1000}, {0, 1000}};
        setitimer(ITIMER_REAL, &eachMillisecond, nullptr);
    }

    ForeignSignals(const ForeignSignals&) = delete;
    ForeignSignals& operator=(const ForeignSignals&) = delete;

    ~ForeignSignals()
    {
        const itimerval never{};
        setitimer(ITIMER_REAL, &never, nullptr);
        sigaction(SIGALRM, &m_before, nullptr);
    }

private:
    static constexpr int Some = 20;

    inline static volatile std::sig_atomic_t s_count = 0;
    inline static std::function<void()> s_afterSome;

    struct sigaction m_before = {};
};
