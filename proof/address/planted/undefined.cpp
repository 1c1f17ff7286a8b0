// Told: runtime error: signed integer overflow
#include <limits>

int main(int count, char**)
{
    return std::numeric_limits<int>::max() + count;
}
