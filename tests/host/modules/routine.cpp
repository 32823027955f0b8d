// Something to link: a module without code is no module on every system.
extern "C" int zuTestRoutine()
{
    return 1;
}
