#include "Commands.h"
#include "Interactive.h"

#include <iostream>

int main(int argc, char** argv)
{
    std::vector<std::string> args(argv + 1, argv + argc);
    std::error_code ec;
    auto cwd = std::filesystem::current_path(ec);
    if (ccsim::isInteractiveInvocation(args))
        return ccsim::runInteractive(args, cwd, std::cout, std::cerr, std::cin);
    return ccsim::runCleartool(args, cwd, std::cout, std::cerr, std::cin);
}
