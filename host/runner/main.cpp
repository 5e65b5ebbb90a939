#include "RunnerCommands.h"

#include <iostream>

int main(int argc, char** argv)
{
    return runWfbuild(std::vector<std::string>(argv + 1, argv + argc), std::cout, std::cerr);
}
