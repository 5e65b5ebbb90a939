// A cleartool stand-in that does nothing: what is left to measure is the cost of starting it.
int main()
{
    return 0;
}
