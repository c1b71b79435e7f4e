#include "CommandLine.h"

int main(int argc, char** argv)
{
    return ko::CommandLine(argc, argv).run();
}
