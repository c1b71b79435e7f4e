#include "FirstPicture.h"

#include "Application.h"

// Before the program's own code runs, which makes the application by itself.
using bench::endAtFirstPicture;
Q_COREAPP_STARTUP_FUNCTION(endAtFirstPicture)

int main(int argc, char** argv)
{
    return ko::Application(argc, argv).run();
}
