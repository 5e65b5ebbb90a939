// A package linked against a function that no library provides, as when a package was built
// for a newer runtime than the one that loads it.
void functionNoRuntimeProvides();

extern "C" __attribute__((visibility("default"))) void WFRegister(bool /*registerPages*/)
{
    functionNoRuntimeProvides();
}
