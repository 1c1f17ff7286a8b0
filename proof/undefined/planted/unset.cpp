// Told: Uninitialised byte(s) found during client check request
#include "doubles/LookAt.h"

int main()
{
    const int* const never = new int;
    doubles::lookAt(*never);
}
