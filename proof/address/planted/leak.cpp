// Told: LeakSanitizer: detected memory leaks
#include <string>

int main()
{
    return new std::string(100, 'x') == nullptr;
}
