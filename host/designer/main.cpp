#include "DesignerApp.h"

int main(int argc, char** argv)
{
    return runDesigner(argc, argv);
}
