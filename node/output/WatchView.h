#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "node/output/TextOutput.h"

namespace node::output
{

/// The rounds of a watch, one after the other or, at a terminal, each drawn over the one before. Lines that differ from
/// the round before begin with '*'; where there are colours, the letters that differ are reversed.
class WatchView : public Output
{
public:
    /// @param output  that the rounds are printed to; borrowed
    WatchView(const commands::Watch& watch, TextOutput& output, const Look& look);

    /// Tells the messages that came too late to be drawn.
    ~WatchView() override;
    WatchView(const WatchView&) = delete;
    WatchView& operator=(const WatchView&) = delete;

    /// Where a round is drawn on the screen that errors go to as well, its trace messages are drawn with it; elsewhere
    /// they go where they always go.
    void trace(const TimedMessage& message) override;
    void show(const Answer& answer) override;
    void closeLine() override;
    void interrupted() override;
    bool good() const override;
    std::unique_ptr<Output> beginWatch(const commands::Watch& watch) override;

private:
    /// Each shows a round and answers its lines as they were shown.
    std::vector<std::string> print(const Answer& answer, const std::vector<std::string>& lines);
    std::vector<std::string> draw(const Answer& answer, std::vector<std::string> lines);

    std::string title(const Answer& answer) const;
    using ToShow = std::function<std::string(const std::string& line)>; ///< as much of a line as there is room for

    std::vector<std::string> marked(const std::vector<std::string>& lines, const ToShow& shown) const;
    static std::vector<std::string> fitted(std::vector<std::string> lines, std::size_t room, const ToShow& shown);

    /// Whether all that is told of a round stands in its frame.
    bool isFrameAll() const;
    void showRest(const Answer& answer);

    commands::Watch m_watch;
    TextOutput& m_output;
    Look m_look;
    bool m_first = true;
    std::vector<TimedMessage> m_toDraw; ///< messages of the next frame
    std::vector<std::string> m_before;  ///< lines of the round before
};

} // namespace node::output
