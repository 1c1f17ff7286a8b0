// Told: AddressSanitizer: heap-buffer-overflow
#include <vector>

int main(int count, char**)
{
    const std::vector<int> numbers(static_cast<unsigned>(count));
    return numbers.data()[count];
}
