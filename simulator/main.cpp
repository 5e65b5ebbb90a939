#include "Commands.h"

#include <iostream>

int main(int argc, char** argv)
{
    std::vector<std::string> args(argv + 1, argv + argc);
    std::error_code ec;
    auto cwd = std::filesystem::current_path(ec);
    return ccsim::runCleartool(args, cwd, std::cout, std::cerr, std::cin);
}
