#include "RunnerCommands.h"

#include <iostream>

int main(int argc, char** argv)
{
    // wfbuild writes through iostreams only; unsynchronised they buffer without stdio's locks.
    std::ios::sync_with_stdio(false);
    return runWfbuild(std::vector<std::string>(argv + 1, argv + argc), std::cout, std::cerr);
}
