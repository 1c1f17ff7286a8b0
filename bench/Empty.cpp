// What the start of a program costs that does next to nothing.
#include <iostream>

int main()
{
    std::cout << "nothing\n";
}
