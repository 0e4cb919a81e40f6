// A bar on the terminal that tells how far a file has been read.
#pragma once

#include <chrono>
#include <cstdio>

namespace tools
{

class Progress
{
public:
    // Shows nothing unless it is wanted and standard error is a terminal.
    explicit Progress( bool wanted );

    // Is called now and then while the file is read; most calls cost next to nothing.
    void tick( std::FILE *file );

    // Takes the bar away.
    void clear();

private:
    using Clock = std::chrono::steady_clock;

    bool shows;
    unsigned calls = 0;
    Clock::time_point last;
};

} // namespace tools
