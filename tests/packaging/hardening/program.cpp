#include <cstdio>
#include <cstring>

// What a compiler guards when told to: an array on the stack, and a copy into it.
int main(int, char **argv)
{
    char name[32];
    std::strcpy(name, argv[0]);
    return std::puts(name) < 0;
}
