// A shared library that is not a package: it exports no entry point.
extern "C" __attribute__((visibility("default"))) int SomethingElse()
{
    return 1;
}
