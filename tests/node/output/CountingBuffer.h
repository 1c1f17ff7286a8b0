#pragma once

#include <sstream>

/// Counts how often it is told to hand over what it has.
class CountingBuffer : public std::stringbuf
{
public:
    int syncs = 0;

protected:
    int sync() override
    {
        ++syncs;
        return 0;
    }
};
