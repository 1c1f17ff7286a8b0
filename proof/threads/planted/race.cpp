// Told: ThreadSanitizer: data race
#include <thread>

int main()
{
    int number = 0;
    std::thread other([&] { ++number; });
    ++number;
    other.join();
}
