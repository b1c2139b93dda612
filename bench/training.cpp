// Makes the calls that clients make, on every kind of body, for a profile of what they need.

#include "operations.hpp"

int main()
{
    constexpr int times = 100; // what runs once in a call is far more often than what runs once in a program
    for (const body &body : all_bodies())
        for (const operation &operation : operations)
            if (const call each = prepared(operation, body))
                for (int i = 0; i < times; ++i)
                    each();
    return 0;
}
