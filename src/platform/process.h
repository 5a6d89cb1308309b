// Starting the other programs of the handheld: the help viewer and the browser.
#pragma once

#include "platform/types.h"

// Returns without waiting for the program. The programs are
//   PegHelp.exe    "document.htm" or "document.htm#chapter": the bundled help in its one window,
//                  which comes forward when it is open already
//   iexplore.exe   an http or https address: the user's own browser
// FALSE for any other program, a document that is not bundled and another kind of address, and when
// no browser can be started; the player has been told so then, and can read the address. A browser
// that fails after its start is told of in the same way. What follows the command line is unused.
BOOL CreateProcessW(const WCHAR* program, const WCHAR* commandLine, void* processSecurity = nullptr,
                    void* threadSecurity = nullptr, BOOL inheritHandles = FALSE, DWORD flags = 0,
                    void* environment = nullptr, const WCHAR* folder = nullptr,
                    void* startUp = nullptr, void* process = nullptr);
