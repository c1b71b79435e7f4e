#include "WindowHelpers.h"

#include "EntryQuestions.h"
#include "FocusMark.h"
#include "KnownFolders.h"
#include "MainWindow.h"
#include "ManualKey.h"
#include "MessageHints.h"
#include "Mnemonics.h"
#include "UnsavedEdits.h"
#include "WheelGuard.h"

namespace ko {

namespace WindowHelpers {

void install(MainWindow& window)
{
    new WheelGuard(&window);
    new UnsavedEdits(&window);
    new EntryQuestions(&window);
    new MessageHints(&window);
    new FocusMark(&window);
    new Mnemonics(&window);
    new ManualKey(&window);
    new KnownFolders(window.database(), &window);
}

} // namespace WindowHelpers

} // namespace ko
